#include "support/CommonUser.h"
#include "support/ShippedFixture.h"

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

class ShippedFiles : public Shipping { };

TEST_F(ShippedFiles, AreGivenAtTheFirstStart)
{
    Ship("AppList.dat", "[First]\n");
    Ship("TIPOFDAY.TXT", "tip\n");
    Ship("samples/drawings/one.svg", "<svg/>");
    Ship("vy-pixelworks", "no data");

    Start();

    EXPECT_EQ(Own("AppList.dat"), "[First]\n");
    EXPECT_EQ(Own("TIPOFDAY.TXT"), "tip\n");
    EXPECT_EQ(Own("samples/drawings/one.svg"), "<svg/>");
    EXPECT_FALSE(Has("vy-pixelworks"));
}

TEST_F(ShippedFiles, AreNoneForAFolderOfTheProgramsOwn)
{
    TakeShippedFiles({ .work = user.Path(), .shipped = "" }, ShippedCatalogRules);

    EXPECT_TRUE(fs::is_empty(user.Path()));
}

#ifndef _WIN32

TEST_F(ShippedFiles, ThatCannotBeReadKeepNoOtherFromBeingGiven)
{
    Ship("samples/closed/one.prc", "x");
    Ship("samples/open.prc", "set");
    fs::permissions(shipped.File("samples/closed"), fs::perms::none);
    fs::permissions(user.Path(), fs::perms::all);
    {
        const CommonUser common;
        Start();
    }
    fs::permissions(shipped.File("samples/closed"), fs::perms::owner_all);

    EXPECT_EQ(Own("samples/open.prc"), "set");
    EXPECT_FALSE(Has("samples/closed/one.prc"));
    Start();
    EXPECT_EQ(Own("samples/closed/one.prc"), "x");
}

#endif

TEST_F(ShippedFiles, ThatAStartLeftHalfWrittenAreGivenWhole)
{
    Ship("TIPOFDAY.TXT", "tip\n");
    WriteOwn("TIPOFDAY.TXT.12-1.vypx-new", "t");

    Start();

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "tip\n");
    EXPECT_FALSE(Has("TIPOFDAY.TXT.12-1.vypx-new"));
}

TEST_F(ShippedFiles, ThatANewVersionBringsAreGiven)
{
    Ship("AppList.dat", "");
    Start();
    Ship("VYPX.chm", "help");
    Ship("samples/new/set.prc", "set");

    StartLater();

    EXPECT_EQ(Own("VYPX.chm"), "help");
    EXPECT_EQ(Own("samples/new/set.prc"), "set");
}

TEST_F(ShippedFiles, ThatTheUserHasLeftAloneAreReplaced)
{
    Ship("TIPOFDAY.TXT", "old\n");
    Ship("samples/set.prc", "old set");
    Start();
    Ship("TIPOFDAY.TXT", "new\n");
    Ship("samples/set.prc", "new set");

    StartLater();

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "new\n");
    EXPECT_EQ(Own("samples/set.prc"), "new set");
}

TEST_F(ShippedFiles, ThatTheUserHasChangedStayAtEveryLaterVersion)
{
    Ship("TIPOFDAY.TXT", "old\n");
    Start();
    WriteOwn("TIPOFDAY.TXT", "mine\n");
    for (const char* text : { "new\n", "newer\n" }) {
        Ship("TIPOFDAY.TXT", text);
        StartLater();
        EXPECT_EQ(Own("TIPOFDAY.TXT"), "mine\n");
    }

    WriteOwn("TIPOFDAY.TXT", "old\n"); // no longer the user's
    Ship("TIPOFDAY.TXT", "newest\n");
    StartLater();

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "newest\n");
}

TEST_F(ShippedFiles, OfAnEarlierVersionComeWhenALaterOneShipsThemAgain)
{
    const std::pair<const char*, const char*> versions[] = { { "1.0.0", "A" }, { "1.1.0", "B" },
        { "1.2.0", "A" }, { "1.3.0", "B" } };
    for (const auto& [version, text] : versions) {
        Ship("TIPOFDAY.TXT", text);
        StartLater(version);

        EXPECT_EQ(Own("TIPOFDAY.TXT"), text) << version;
    }
}

TEST_F(ShippedFiles, ThatTheUserPutsBackAreReplacedAgain)
{
    Ship("TIPOFDAY.TXT", "A");
    StartLater("1.0.0");
    WriteOwn("TIPOFDAY.TXT", "mine");
    Ship("TIPOFDAY.TXT", "B");
    StartLater("1.1.0");
    ASSERT_EQ(Own("TIPOFDAY.TXT"), "mine");
    WriteOwn("TIPOFDAY.TXT", "B"); // what that version ships
    Ship("TIPOFDAY.TXT", "C");

    StartLater("1.2.0");

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "C");
}

TEST_F(ShippedFiles, OfAFolderThatTheUserHasDeletedComeNoMoreButNewOnes)
{
    Ship("samples/one.prc", "1");
    Ship("samples/drawings/two.svg", "2");
    Start("1.0.0");
    fs::remove_all(user.File("samples"));
    Ship("samples/one.prc", "1 changed");
    Ship("samples/drawings/three.svg", "3");

    StartLater("1.1.0");

    EXPECT_EQ(Own("samples/drawings/three.svg"), "3");
    EXPECT_FALSE(Has("samples/one.prc"));
    EXPECT_FALSE(Has("samples/drawings/two.svg"));
}

TEST_F(ShippedFiles, OfOneInstalledCopyAreEachUsersOwn)
{
    const TempFolder second;
    const auto startSecond = [&](std::string_view version) {
        TakeShippedFiles(
            { .work = second.Path(), .shipped = shipped.Path() }, ShippedCatalogRules, version);
    };
    Ship("AppList.dat", OwnerText("One", "ONEA"));
    Ship("TIPOFDAY.TXT", "old\n");
    Start("1.0.0");
    startSecond("1.0.0");
    WriteOwn("AppList.dat", OwnerText("Mine", "MINE"));
    WriteText(second.File("TIPOFDAY.TXT"), "theirs\n");
    Ship("AppList.dat", OwnerText("One", "ONEA") + OwnerText("New", "NEWA"));
    Ship("TIPOFDAY.TXT", "new\n");

    StartLater("1.1.0");
    startSecond("1.1.0");

    EXPECT_EQ(Own("AppList.dat"), OwnerText("Mine", "MINE") + OwnerText("New", "NEWA"));
    EXPECT_EQ(Own("TIPOFDAY.TXT"), "new\n");
    EXPECT_EQ(ReadText(second.File("TIPOFDAY.TXT")), "theirs\n");
    EXPECT_EQ(ReadText(shipped.File("TIPOFDAY.TXT")), "new\n");
}

TEST_F(ShippedFiles, AllComeBackWithoutTheUsersAndWhatIsKnownOfThem)
{
    Ship("AppList.dat", OwnerText("One", "ONEA"));
    Ship("TIPOFDAY.TXT", "tip\n");
    Ship("samples/set.prc", "set");
    StartLater();
    WriteOwn("AppList.dat", "");
    DeleteOwn("samples/set.prc");
    StartLater();
    ASSERT_FALSE(Has("samples/set.prc"));

    for (const char* name : { "AppList.dat", "TIPOFDAY.TXT", "shipped.txt", "shipped-state.txt" })
        DeleteOwn(name);
    StartLater();

    EXPECT_EQ(Own("AppList.dat"), OwnerText("One", "ONEA"));
    EXPECT_EQ(Own("TIPOFDAY.TXT"), "tip\n");
    EXPECT_EQ(Own("samples/set.prc"), "set");
}

TEST_F(ShippedFiles, ThatTheUserHasDeletedDoNotComeBack)
{
    Ship("TIPOFDAY.TXT", "old\n");
    Ship("PalmApp.dat", OwnerText("Palm Clock", "CLCK"));
    Start();
    DeleteOwn("TIPOFDAY.TXT");
    DeleteOwn("PalmApp.dat");
    StartLater();
    Ship("TIPOFDAY.TXT", "new\n");
    Ship("PalmApp.dat", OwnerText("Palm Clock", "CLCK") + OwnerText("Palm New", "NEWA"));

    StartLater();

    EXPECT_FALSE(Has("TIPOFDAY.TXT"));
    EXPECT_FALSE(Has("PalmApp.dat"));
}

TEST_F(ShippedFiles, ThatANewVersionDropsStay)
{
    Ship("samples/set.prc", "set");
    Start();
    fs::remove(shipped.File("samples/set.prc"));

    StartLater();

    EXPECT_EQ(Own("samples/set.prc"), "set");
}

TEST_F(ShippedFiles, OfTwoVersionsInTurnTheOlderTakesNothingBack)
{
    Ship("TIPOFDAY.TXT", "2.9\n");
    Start("2.9.0");
    Ship("TIPOFDAY.TXT", "2.10\n");
    StartLater("2.10.0");
    ASSERT_EQ(Own("TIPOFDAY.TXT"), "2.10\n");
    const std::string state = Own("shipped-state.txt");

    Ship("TIPOFDAY.TXT", "2.9.1\n");
    StartLater("2.9.1");

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "2.10\n");
    EXPECT_EQ(Own("shipped-state.txt"), state);
}

TEST_F(ShippedFiles, OfTwoCopiesOfOneVersionInTurnAreNotReplacedToAndFro)
{
    for (const char* text : { "one\n", "other\n", "one\n", "other\n" }) {
        Ship("TIPOFDAY.TXT", text);
        StartLater();
    }
    const auto before = platform::IdentityOf(user.File("TIPOFDAY.TXT"));
    Ship("TIPOFDAY.TXT", "one\n");

    StartLater();

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "other\n");
    EXPECT_EQ(platform::IdentityOf(user.File("TIPOFDAY.TXT")), before);
}

} // namespace
} // namespace vypx::test
