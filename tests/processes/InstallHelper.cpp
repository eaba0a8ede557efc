// What the tests of the queues run: iconsets are queued in one way.
//
//   palm-sync FOLDER FILE...    in palm-sync's folder, for the user "Ada"
//   jpilot FOLDER FILE...       on J-Pilot's list
//
// Exit code 0: all were queued; 1: the first that was not gave the unknown error; 3: it gave
// another.

#include "install/InstallResult.h"
#include "install/InstallWays.h"

#include <vector>

namespace vypx {

namespace {

int Run(InstallWay& way, const std::vector<std::string>& files)
{
    for (std::string file : files) {
        std::string user = "Ada";
        const std::int16_t result = way.Install(user, file);
        if (result != InstallResult::Queued)
            return result == InstallResult::Unknown ? 1 : 3;
    }
    return 0;
}

} // namespace
} // namespace vypx

int main(int argc, char** argv)
{
    if (argc < 4)
        return 2;
    const std::string way = argv[1];
    const auto made =
        way == "jpilot" ? vypx::MakeJPilotWay(argv[2]) : vypx::MakePalmSyncWay(argv[2]);
    return vypx::Run(*made, std::vector<std::string>(argv + 3, argv + argc));
}
