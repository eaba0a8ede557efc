#include "platform/SystemTool.h"

#include <gtest/gtest.h>
#include <map>

namespace vypx::test {

namespace {

using namespace std::string_literals;

/// A machine with a registry of these values, by key and name.
struct Machine {
    std::map<std::pair<std::string, std::string>, std::string> values;
    std::string file; ///< the one that exists

    std::optional<std::string> Find() const
    {
        return platform::FindSystemTool({
            .value = [this](const std::string& key,
                         const std::string& name) -> std::optional<std::string> {
                const auto found = values.find({ key, name });
                return found == values.end() ? std::nullopt : std::optional(found->second);
            },
            .exists = [this](const std::string& path) { return path == file; },
        });
    }
};

const std::pair Path{ "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"s, "PATH"s };
const std::pair Folder{ "SOFTWARE\\Microsoft\\Shared Tools Location"s, "MSINFO"s };

TEST(SystemTool, IsTheProgramThatTheRegistryNames)
{
    EXPECT_EQ(
        (Machine{ .values = { { Path, "C:\\i.exe" }, { Folder, "C:\\t" } } }).Find(), "C:\\i.exe");
}

TEST(SystemTool, IsElseLookedForInTheFolderOfSharedTools)
{
    EXPECT_EQ((Machine{ .values = { { Folder, "C:\\t" } }, .file = "C:\\t\\MSINFO32.EXE" }).Find(),
        "C:\\t\\MSINFO32.EXE");
}

TEST(SystemTool, ThatHasGoneFromItsFolderIsNone)
{
    EXPECT_EQ((Machine{ .values = { { Folder, "C:\\t" } } }).Find(), std::nullopt);
    EXPECT_EQ(Machine{}.Find(), std::nullopt);
}

TEST(RegistryText, OfATextLosesItsTerminatorAlone)
{
    EXPECT_EQ(platform::RegistryText(1, "C:\\t\0"s), "C:\\t");
    EXPECT_EQ(platform::RegistryText(1, "C:\\t"), "C:\\t");
    EXPECT_EQ(platform::RegistryText(1, "a\0\0"s), "a\0"s);
    EXPECT_EQ(platform::RegistryText(1, ""), "");
}

TEST(RegistryText, OfANumberIsDecimal)
{
    EXPECT_EQ(platform::RegistryText(4, "\x39\x30\x00\x00"s), "12345");
    EXPECT_EQ(platform::RegistryText(4, "\x00\x00\x00\x00"s), "0");
    EXPECT_EQ(platform::RegistryText(4, "\xFF\xFF\xFF\xFF"), "-1");
}

TEST(RegistryText, OfAnythingElseIsEmpty) { EXPECT_EQ(platform::RegistryText(3, "bytes"), ""); }

#ifndef _WIN32

TEST(SystemTool, IsMissingWhereThereIsNoRegistry)
{
    EXPECT_EQ(platform::MachineValue(Path.first, Path.second), std::nullopt);
}

#endif

} // namespace
} // namespace vypx::test
