#include "Child.h"
#include "FaultAt.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <vector>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

/// What a user notices of a folder, by name.
using Contents = std::map<std::string, std::string>;

/// Starts of a version that ships more than what the user's folder has, each a process of its own.
class UpdateStarts : public ::testing::Test {
protected:
    UpdateStarts()
    {
        fs::create_directories(root.File("shipped/samples"));
        WriteText(root.File("shipped/AppList.dat"), "; none\n");
        WriteText(root.File("shipped/PalmApp.dat"), OldPalm);
        WriteText(root.File("shipped/TIPOFDAY.TXT"), "old\n");
    }

    /// `at` of `kind` is at fault in the user's folder.
    int Start(const std::string& kind = {}, int at = 0) const
    {
        Child child({ VYPX_SHIPPED_HELPER, root.File("shipped"), User() },
            FaultAt(User(), kind, at, root.File("count")));
        return child.Wait();
    }
    void StartFourAtOnce() const
    {
        std::vector<std::unique_ptr<Child>> starts;
        for (int i = 0; i < 4; ++i)
            starts.push_back(std::make_unique<Child>(
                std::vector<std::string>{ VYPX_SHIPPED_HELPER, root.File("shipped"), User() }));
        for (const auto& start : starts)
            EXPECT_EQ(start->Wait(), 0);
    }
    int Operations() const { return std::stoi(ReadText(root.File("count"))); }

    void ShipNewVersion() const
    {
        WriteText(root.File("shipped/AppList.dat"), NewApp);
        WriteText(root.File("shipped/PalmApp.dat"), std::string(OldPalm) + NewPalm);
        WriteText(root.File("shipped/TIPOFDAY.TXT"), "new\n");
        WriteText(root.File("shipped/samples/set.prc"), "set");
    }
    /// A folder that the old version filled and whose user deleted an entry and added one.
    void MakeUsersFolder()
    {
        fs::create_directory(User());
        ASSERT_EQ(Start(), 0);
        WriteText(User() + "/AppList.dat", Mine);
        WriteText(User() + "/PalmApp.dat", "");
        fs::copy(User(), root.File("kept"), fs::copy_options::recursive);
    }
    void RestoreUsersFolder() const
    {
        fs::remove_all(User());
        fs::copy(root.File("kept"), User(), fs::copy_options::recursive);
    }

    Contents Now() const
    {
        Contents contents;
        for (const char* name : { "AppList.dat", "PalmApp.dat", "TIPOFDAY.TXT", "samples/set.prc" })
            contents[name] = fs::exists(User() + '/' + name) ? ReadText(User() + '/' + name) : "";
        return contents;
    }
    static Contents Updated()
    {
        return { { "AppList.dat", std::string(Mine) + NewApp }, { "PalmApp.dat", NewPalm },
            { "TIPOFDAY.TXT", "new\n" }, { "samples/set.prc", "set" } };
    }
    std::string User() const { return root.File("user"); }

    static constexpr const char* OldPalm = "[Palm Clock]\nType=appl\nCreator={CLCK}\n";
    static constexpr const char* NewPalm = "[Palm New]\nType=appl\nCreator={NEWP}\n";
    static constexpr const char* NewApp = "[App]\nType=panl\nCreator={NEWA}\n";
    static constexpr const char* Mine = "; mine\n[Mine]\nType=appl\nCreator={MINE}\n";
    TempFolder root;
};

TEST_F(UpdateStarts, OfManyAtOnceBringEverythingOnce)
{
    MakeUsersFolder();
    ShipNewVersion();
    for (int round = 0; round < 10 / VYPX_ROUNDS_DIVISOR; ++round) {
        RestoreUsersFolder();
        StartFourAtOnce();

        EXPECT_EQ(Now(), Updated());
    }
}

TEST_F(UpdateStarts, OfManyAtOnceFillANewFolder)
{
    ShipNewVersion();
    for (int round = 0; round < 10 / VYPX_ROUNDS_DIVISOR; ++round) {
        fs::remove_all(User());
        fs::create_directory(User());
        StartFourAtOnce();

        EXPECT_EQ(Now(),
            (Contents{ { "AppList.dat", NewApp }, { "PalmApp.dat", std::string(OldPalm) + NewPalm },
                { "TIPOFDAY.TXT", "new\n" }, { "samples/set.prc", "set" } }));
    }
}

/// Every operation in the user's folder fails once in every way, or the process dies there.
class UpdateFaults : public UpdateStarts, public ::testing::WithParamInterface<std::string> { };

TEST_P(UpdateFaults, LeaveEachFileOldOrNewAndTheNextStartCompletesThem)
{
    MakeUsersFolder();
    ShipNewVersion();
    const Contents old = Now(), updated = Updated();
    ASSERT_EQ(Start(), 0);
    ASSERT_EQ(Now(), updated);
    const int operations = Operations();
    ASSERT_GE(operations, 25) << "open, write, sync, close and rename of five files at least";

    for (int at = 1; at <= operations; at += VYPX_ROUNDS_DIVISOR) {
        RestoreUsersFolder();
        EXPECT_EQ(Start(GetParam(), at), Kills(GetParam()) ? -1 : 0) << at;

        for (const auto& [name, text] : Now())
            EXPECT_TRUE(text == old.at(name) || text == updated.at(name)) << name << ' ' << at;
        EXPECT_EQ(Start(), 0);
        EXPECT_EQ(Now(), updated) << at;
        fs::remove(User() + "/samples/set.prc");
        WriteText(User() + "/AppList.dat", "");
        EXPECT_EQ(Start(), 0);
        EXPECT_EQ(Now().at("AppList.dat"), "")
            << "what the user deletes then stays deleted, " << at;
        EXPECT_EQ(Now().at("samples/set.prc"), "") << at;
    }
}

TEST_P(UpdateFaults, AtTheFirstStartAreMadeGoodByTheNext)
{
    const auto begin = [&] {
        fs::remove_all(User());
        fs::create_directory(User());
    };
    begin();
    ASSERT_EQ(Start(), 0);
    const Contents filled = Now();
    ASSERT_EQ(filled.at("PalmApp.dat"), OldPalm);
    const int operations = Operations();

    for (int at = 1; at <= operations; at += VYPX_ROUNDS_DIVISOR) {
        begin();
        EXPECT_EQ(Start(GetParam(), at), Kills(GetParam()) ? -1 : 0) << at;
        EXPECT_EQ(Start(), 0);
        EXPECT_EQ(Now(), filled) << at;
        EXPECT_EQ(PassingFiles(User()), 0u) << at;
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, UpdateFaults,
    ::testing::Values("space", "short", "before", "within", "after"),
    [](const auto& kind) { return kind.param; });

} // namespace
} // namespace vypx::test
