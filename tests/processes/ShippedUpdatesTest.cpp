#include "Child.h"
#include "FaultAt.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
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

    /// `at` of `kind` is at fault in the user's folder, or with its file `name`.
    int Start(const std::string& kind = {}, int at = 0, const std::string& name = {}) const
    {
        Child child({ VYPX_SHIPPED_HELPER, root.File("shipped"), User() },
            FaultAt(User() + '/' + name, kind, at, root.File("count")));
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
    /// The user's folder less all that was shipped.
    void DeleteAll() const
    {
        WriteText(User() + "/AppList.dat", Mine);
        WriteText(User() + "/PalmApp.dat", "");
        fs::remove(User() + "/TIPOFDAY.TXT");
        fs::remove(User() + "/samples/set.prc");
    }
    static Contents Deleted()
    {
        return { { "AppList.dat", Mine }, { "PalmApp.dat", "" }, { "TIPOFDAY.TXT", "" },
            { "samples/set.prc", "" } };
    }
    std::string User() const { return root.File("user"); }

    static constexpr const char* OldPalm = "[Palm Clock]\nType=appl\nCreator={CLCK}\n";
    static constexpr const char* NewPalm = "[Palm New]\nType=appl\nCreator={NEWP}\n";
    static constexpr const char* NewApp = "[App]\nType=panl\nCreator={NEWA}\n";
    static constexpr const char* Mine = "; mine\n[Mine]\nType=appl\nCreator={MINE}\n";
    static constexpr const char* StateName = "shipped-state.txt";
    static constexpr int Rounds = VYPX_ROUNDS_DIVISOR > 1 ? 1 : 3;
    TempFolder root;
};

TEST_F(UpdateStarts, OfManyAtOnceBringEverythingOnce)
{
    MakeUsersFolder();
    ShipNewVersion();
    for (int round = 0; round < Rounds; ++round) {
        RestoreUsersFolder();
        StartFourAtOnce();

        EXPECT_EQ(Now(), Updated());
    }
}

TEST_F(UpdateStarts, OfManyAtOnceFillANewFolder)
{
    ShipNewVersion();
    for (int round = 0; round < Rounds; ++round) {
        fs::remove_all(User());
        fs::create_directory(User());
        StartFourAtOnce();

        EXPECT_EQ(Now(),
            (Contents{ { "AppList.dat", NewApp }, { "PalmApp.dat", std::string(OldPalm) + NewPalm },
                { "TIPOFDAY.TXT", "new\n" }, { "samples/set.prc", "set" } }));
    }
}

constexpr const char* Kinds[] = { "space", "short", "before", "within", "after" };

/// Operations in the user's folder that fail once, or where the process dies: for each kind every
/// third, so that all of them have their turn in some kind.
class UpdateFaults : public UpdateStarts, public ::testing::WithParamInterface<int> {
protected:
    static std::string Kind() { return Kinds[GetParam()]; }
    static constexpr int Step = 3;
};

TEST_P(UpdateFaults, LeaveEachFileOldOrNewAndTheNextStartCompletesThem)
{
    MakeUsersFolder();
    ShipNewVersion();
    const Contents old = Now(), updated = Updated();
    ASSERT_EQ(Start(), 0);
    ASSERT_EQ(Now(), updated);
    const int operations = Operations();
    ASSERT_GE(operations, 25) << "open, write, sync, close and rename of five files at least";

    for (int at = 1 + GetParam() % Step; at <= operations; at += Step) {
        RestoreUsersFolder();
        EXPECT_EQ(Start(Kind(), at), Kills(Kind()) ? -1 : 0) << at;

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

    for (int at = 1 + GetParam() % Step; at <= operations; at += Step) {
        begin();
        EXPECT_EQ(Start(Kind(), at), Kills(Kind()) ? -1 : 0) << at;
        EXPECT_EQ(Start(), 0);
        EXPECT_EQ(Now(), filled) << at;
        EXPECT_EQ(PassingFiles(User()), 0u) << at;
    }
}

TEST_P(UpdateFaults, OfWhatIsKnownBringNothingBackMoreThanOnce)
{
    MakeUsersFolder();
    ShipNewVersion();
    const Contents old = Now(), updated = Updated();
    ASSERT_EQ(Start({}, 0, StateName), 0);
    const int operations = Operations();
    ASSERT_GE(operations, 10) << "open, write, sync, close and rename of two writes";
    ASSERT_EQ(operations % 2, 0);

    int changedInSpite = 0;
    for (int at = 1; at <= operations; ++at) {
        if (Kills(Kind()) && at % 2 != 0)
            continue;
        RestoreUsersFolder();
        Start(Kind(), at, StateName);
        const bool isChanged = Now() == updated;
        EXPECT_TRUE(isChanged || Now() == old) << at;
        changedInSpite += !Kills(Kind()) && isChanged && at <= operations / 2 ? 1 : 0;
        int returns = 0;
        for (int start = 0; start < 3; ++start) {
            DeleteAll();
            Start();
            returns += Now() != Deleted() ? 1 : 0;
        }
        EXPECT_LE(returns, 1) << at;
        EXPECT_EQ(Now(), Deleted()) << at;
    }
    EXPECT_LE(changedInSpite, 1) << "where the passing file can't be locked";
}

TEST_F(UpdateStarts, ThatCanNeverWriteDownWhatTheyDidBringBackADeletedEntryOnce)
{
    MakeUsersFolder();
    ShipNewVersion();
    ASSERT_EQ(Start({}, 0, StateName), 0);
    const int last = Operations();
    RestoreUsersFolder();
    int returns = -1; // that they come first is no return
    for (int start = 0; start < 4; ++start) {
        DeleteAll();
        Start("space", last, StateName);
        returns += Now() != Deleted() ? 1 : 0;
    }

    EXPECT_EQ(returns, 1);
    EXPECT_EQ(Now(), Deleted());
}

TEST_F(UpdateStarts, WithoutTheListOfNamesBringNothingBack)
{
    MakeUsersFolder();
    ShipNewVersion();
    ASSERT_EQ(Start({}, 0, "shipped.txt"), 0);
    const int operations = Operations();
    ASSERT_GE(operations, 5);
    for (int at = 1; at <= operations; ++at) {
        RestoreUsersFolder();
        Start("space", at, "shipped.txt");
        EXPECT_EQ(Now(), Updated());
        DeleteAll();
        Start();
        EXPECT_EQ(Now(), Deleted()) << at;
    }
}

TEST_F(UpdateStarts, ThatCouldNotGiveACatalogAddItsEntriesToTheOneThatTheUserMade)
{
    fs::create_directory(User());
    ASSERT_EQ(Start("space", 1, "PalmApp.dat"), 0);
    ASSERT_FALSE(fs::exists(User() + "/PalmApp.dat"));
    WriteText(User() + "/PalmApp.dat", Mine);

    ASSERT_EQ(Start(), 0);

    EXPECT_EQ(Now().at("PalmApp.dat"), std::string(Mine) + OldPalm);
}

INSTANTIATE_TEST_SUITE_P(Kinds, UpdateFaults,
    ::testing::Range(0, static_cast<int>(std::size(Kinds))),
    [](const auto& kind) { return std::string(Kinds[kind.param]); });

} // namespace
} // namespace vypx::test
