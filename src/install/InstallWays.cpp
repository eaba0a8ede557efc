#include "install/InstallWays.h"

#include "document/WorkingFolder.h"
#include "platform/JPilotHome.h"
#include "platform/Platform.h"
#include "settings/Settings.h"

#ifdef _WIN32
#include "install/InstAideWay.h"
#endif

namespace vypx {

InstallPlaces PlacesForInstall()
{
    InstallPlaces places{ .programFolder = ProgramFolder, .palmSyncFolder = PalmSyncFolder };
    if (const std::string home = platform::JPilotHome(); !home.empty())
        places.jpilotFolder = platform::Utf8Path(platform::NativePath(home) / ".jpilot");
    return places;
}

#ifdef _WIN32

std::unique_ptr<InstallWay> ChooseInstallWay(const InstallPlaces& places)
{
    return MakeInstAideWay(places.programFolder);
}

#else

std::unique_ptr<InstallWay> ChooseInstallWay(const InstallPlaces& places)
{
    const auto isFolder = [](const std::string& path) {
        std::error_code error;
        return std::filesystem::is_directory(platform::NativePath(path), error);
    };
    if (isFolder(places.palmSyncFolder))
        return MakePalmSyncWay(places.palmSyncFolder);
    if (isFolder(places.jpilotFolder))
        return MakeJPilotWay(places.jpilotFolder);
    return nullptr;
}

#endif

} // namespace vypx
