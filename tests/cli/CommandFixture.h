#pragma once

#include "Tool.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace vypx::test {

/// For the commands that write a file: `set.prc`, a sample at first, catalogs and a fresh work
/// folder stand in a folder of the test, and `out.prc` is what is written.
class CommandFixture : public ::testing::Test {
protected:
    CommandFixture()
    {
        std::filesystem::copy(TestData("iconsets/catalogs"), folder.File("catalogs"));
        UseSample("owners");
    }

    void UseSample(const std::string& name)
    {
        std::filesystem::copy_file(TestData("iconsets/" + name + ".prc"), folder.File("set.prc"),
            std::filesystem::copy_options::overwrite_existing);
    }
    ToolRun RunCommand(const std::string& command, const std::vector<std::string>& more,
        const std::string& environment = {}, const std::string& out = "out.prc")
    {
        std::filesystem::remove_all(folder.File("work"));
        std::vector<std::string> arguments{ command, folder.File("set.prc"), folder.File(out),
            "--app-folder", folder.File("catalogs"), "--work", folder.File("work") };
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunTool(arguments, environment);
    }
    /// What `dump` prints of a file; its working pictures are in the folder `dump` then.
    nlohmann::json Dumped(const std::string& file)
    {
        std::filesystem::remove_all(folder.File("dump"));
        return RunTool({ "dump", folder.File(file), "--app-folder", folder.File("catalogs"),
                           "--work", folder.File("dump") })
            .Json();
    }
    /// The file without its dates.
    static Bytes WithoutDates(Bytes file)
    {
        if (file.size() > 44)
            std::fill(file.begin() + 36, file.begin() + 44, std::uint8_t{ 0 });
        return file;
    }

    TempFolder folder;
};

} // namespace vypx::test
