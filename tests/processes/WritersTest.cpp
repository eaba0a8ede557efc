#include "Child.h"
#include "FaultAt.h"
#include "platform/Platform.h"
#include "settings/Inifile.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <thread>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

/// Several processes that write one file.
class Writers : public ::testing::Test {
protected:
    std::unique_ptr<Child> Write(
        char letter, int size, int count, const std::vector<std::string>& environment = {}) const
    {
        return std::make_unique<Child>(
            std::vector<std::string>{ VYPX_HELPER, "write", folder.File("set.prc"),
                std::string(1, letter), std::to_string(size), std::to_string(count) },
            environment);
    }
    /// The file, shortened: "A" where it is nothing but that letter in its full number.
    std::string Whole() const
    {
        const std::string text = ReadText(folder.File("set.prc"));
        for (const auto& [letter, size] : { std::pair('A', SizeA), std::pair('B', SizeB) })
            if (text == std::string(static_cast<std::size_t>(size), letter))
                return std::string(1, letter);
        return "a mixture";
    }
    void ExpectOneWholeFile() const
    {
        EXPECT_NE(Whole(), "a mixture");
        EXPECT_EQ(PassingFiles(folder.Path()), 0u);
    }

    static constexpr int SizeA = 30'000, SizeB = 70'000;
    TempFolder folder;
};

TEST_F(Writers, TwoOfOneFileBothSucceedAndOneOfThemHasWrittenItWhole)
{
    constexpr int Rounds = 300 / VYPX_ROUNDS_DIVISOR;
    for (int round = 0; round < Rounds && !HasFailure(); ++round) {
        const auto first = Write('A', SizeA, 2), second = Write('B', SizeB, 1);

        EXPECT_EQ(first->Wait(), 0);
        EXPECT_EQ(second->Wait(), 0);
        ExpectOneWholeFile();
    }
}

TEST_F(Writers, OneThatIsKilledHarmsNoOther)
{
    constexpr int Rounds = 100 / VYPX_ROUNDS_DIVISOR;
    std::mt19937 random(13);
    for (int round = 0; round < Rounds && !HasFailure(); ++round) {
        const auto victim = Write('A', SizeA, 0), other = Write('B', SizeB, 3);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 10'000));
        victim->Kill();
        EXPECT_EQ(victim->Wait(), -1);
        EXPECT_EQ(other->Wait(), 0);

        EXPECT_EQ(Write('B', SizeB, 1)->Wait(), 0);
        EXPECT_EQ(Whole(), "B");
        EXPECT_EQ(PassingFiles(folder.Path()), 0u) << "the next save takes it away";
    }
}

/// Killed before and after each operation, a writer leaves a file that nobody may read who could
/// not read the original.
TEST_F(Writers, APrivateFileIsPrivateWhileItIsWritten)
{
    const std::string file = folder.File("set.prc");
    int left = 0;
    for (const unsigned rights : { 0600u, 0640u, 0604u })
        for (const char* kind : { "before", "within", "after" })
            for (int at = 1; at <= 9; ++at) {
                WriteText(file, "old");
                fs::permissions(file, fs::perms(rights));
                Write('A', SizeA, 1, FaultAt("set.prc", kind, at))->Wait();
                for (const auto& entry : fs::directory_iterator(folder.Path())) {
                    const auto now = static_cast<unsigned>(entry.status().permissions());
                    EXPECT_EQ(now & ~rights, 0u) << entry.path() << kind << at;
                }
                left += PassingFiles(folder.Path()) != 0 ? 1 : 0;
                RemovePassingFiles(folder.Path());
            }
    EXPECT_GE(left, 30) << "the kills came while it was written";
}

TEST_F(Writers, TwoThatEditOneIniFileLoseNoKeyOfEachOther)
{
    constexpr int Keys = 150;
    const std::string file = folder.File("VYPX.ini");
    const auto edit = [&](const char* name) {
        return std::make_unique<Child>(
            std::vector<std::string>{ VYPX_HELPER, "edit", file, name, std::to_string(Keys) });
    };
    const auto first = edit("first"), second = edit("second");
    EXPECT_EQ(first->Wait(), 0);
    EXPECT_EQ(second->Wait(), 0);

    cInifile ini;
    ini.path(file);
    ini.Section("Keys");
    for (const std::string name : { "first", "second" })
        for (int i = 1; i <= Keys; ++i) {
            ini.key(name + std::to_string(i));
            EXPECT_EQ(ini.Value(), "x") << ini.key();
        }
}

/// The tool itself, as a batch job runs it.
TEST_F(Writers, TwoRunsOfConvertToOneFileBothSucceed)
{
    constexpr int Rounds = 60 / VYPX_ROUNDS_DIVISOR;
    const auto convert = [&](const char* name, const std::string& work) {
        return std::make_unique<Child>(std::vector<std::string>{ VYPX_CLI, "convert",
            TestData("iconsets/owners.prc"), folder.File("set.prc"), "--app-folder",
            TestData("iconsets/catalogs"), "--name", name, "--work", folder.File(work) });
    };
    const auto withoutDates = [&] {
        Bytes file = ReadBytes(folder.File("set.prc"));
        std::fill(file.begin() + 36, file.begin() + 44, std::uint8_t{ 0 });
        return file;
    };
    ASSERT_EQ(convert("First", "first")->Wait(), 0);
    const Bytes first = withoutDates();
    ASSERT_EQ(convert("Second", "second")->Wait(), 0);
    const Bytes second = withoutDates();

    for (int round = 0; round < Rounds && !HasFailure(); ++round) {
        const std::string number = std::to_string(round);
        const auto one = convert("First", "a" + number), other = convert("Second", "b" + number);

        EXPECT_EQ(one->Wait(), 0);
        EXPECT_EQ(other->Wait(), 0);
        const Bytes now = withoutDates();
        EXPECT_TRUE(now == first || now == second) << "a mixture";
        EXPECT_EQ(PassingFiles(folder.Path()), 0u);
    }
}

} // namespace
} // namespace vypx::test
