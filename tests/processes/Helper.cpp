// What the tests of several processes run: one part of the program, told by the arguments.
//
//   copy FOLDER                     takes a working folder, tells its name, leaves at a line
//   "leave" write FILE LETTER SIZE COUNT    replaces FILE by SIZE letters, COUNT times (0: for
//   ever) edit FILE NAME COUNT            writes the keys NAME1 to NAMEcount of an ini file
//
// Exit code 0: all went well; 1: an operation failed; 3: another process came between.

#include "document/RunCount.h"
#include "document/RunningCopies.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "settings/Inifile.h"

#include <fstream>
#include <iostream>
#include <vector>

namespace vypx {

namespace {

/// As the program does it from its start to its end, but without windows.
int RunCopy(const std::string& folder)
{
    AppFolder = folder;
    RunningCopies copies;
    if (!copies.Enter(folder))
        return 1;
    TempSuffix = BelowFolder(copies.FolderName());
    // Whoever shared the folder would put a number of its own there.
    const std::string own = std::to_string(platform::ProcessNumber());
    std::ofstream(WorkPath("owner.bmp")) << own;
    std::cout << copies.FolderName() << std::endl;

    std::string line;
    std::getline(std::cin, line);
    std::string owner;
    std::ifstream(WorkPath("owner.bmp")) >> owner;
    if (owner != own)
        return 3;
    if (copies.Number() >= 1 && !WriteRunCount(copies.Number() - 1))
        return 1;
    DeleteWorkingFiles({ ".bmp" });
    copies.Leave();
    return 0;
}

int Write(const std::string& file, char letter, std::size_t size, int count)
{
    const std::vector<std::uint8_t> bytes(size, static_cast<std::uint8_t>(letter));
    for (int i = 0; count == 0 || i < count; ++i)
        if (platform::ReplaceFile(file, bytes))
            return 1;
    return 0;
}

int Edit(const std::string& file, const std::string& name, int count)
{
    cInifile ini;
    ini.path(file);
    ini.Section("Keys");
    for (int i = 1; i <= count; ++i) {
        ini.key(name + std::to_string(i));
        ini.Value("x");
        if (!ini.Success())
            return 1;
    }
    return 0;
}

} // namespace
} // namespace vypx

int main(int argc, char** argv)
{
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() == 2 && words[0] == "copy")
        return vypx::RunCopy(words[1]);
    if (words.size() == 5 && words[0] == "write")
        return vypx::Write(words[1], words[2][0], std::stoul(words[3]), std::stoi(words[4]));
    if (words.size() == 4 && words[0] == "edit")
        return vypx::Edit(words[1], words[2], std::stoi(words[3]));
    return 2;
}
