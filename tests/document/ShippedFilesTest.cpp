#include "document/RunningCopies.h"

#include "support/CommonUser.h"
#include "support/ShippedFixture.h"

#include <future>
#include <memory>

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
    TakeShippedFiles({ .work = user.Path(), .shipped = "" }, UpdateShippedCatalog);

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

TEST_F(ShippedFiles, ThatTheUserHasDeletedDoNotComeBack)
{
    Ship("TIPOFDAY.TXT", "old\n");
    Ship("PalmApp.dat", Owner("Palm Clock", "CLCK"));
    Start();
    DeleteOwn("TIPOFDAY.TXT");
    DeleteOwn("PalmApp.dat");
    StartLater();
    Ship("TIPOFDAY.TXT", "new\n");
    Ship("PalmApp.dat", Owner("Palm Clock", "CLCK") + Owner("Palm New", "NEWA"));

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

TEST_F(ShippedFiles, ThatHaveNotChangedAreNotLookedAtAgain)
{
    Ship("AppList.dat", Owner("One", "ONEA"));
    Ship("samples/set.prc", "set");
    StartLater();
    StartLater();
    const auto state = platform::IdentityOf(user.File("shipped-state.txt"));
    DeleteOwn("copies.lock"); // which a start that goes to work makes
    DeleteOwn("ini.lock");

    StartLater();

    EXPECT_EQ(platform::IdentityOf(user.File("shipped-state.txt")), state);
    EXPECT_FALSE(Has("copies.lock"));
    EXPECT_FALSE(Has("ini.lock"));
}

TEST_F(ShippedFiles, GivenByAVersionThatKeptOnlyTheirNamesAreAllTheUsers)
{
    Ship("TIPOFDAY.TXT", "new\n");
    Ship("VYPX.chm", "help");
    Ship("PalmApp.dat", Owner("Palm Clock", "CLCK") + Owner("Palm Gone", "GONE"));
    WriteOwn("shipped.txt", "PalmApp.dat\nTIPOFDAY.TXT\nVYPX.chm\n");
    WriteOwn("TIPOFDAY.TXT", "old or changed\n");
    WriteOwn("PalmApp.dat", Owner("Palm Clock", "CLCK"));

    StartLater();

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "old or changed\n");
    EXPECT_EQ(Own("PalmApp.dat"), Owner("Palm Clock", "CLCK")) << "one may have been deleted";
    EXPECT_FALSE(Has("VYPX.chm"));

    Ship("PalmApp.dat",
        Owner("Palm Clock", "CLCK") + Owner("Palm Gone", "GONE") + Owner("Palm New", "NEWA"));
    StartLater();
    EXPECT_EQ(Own("PalmApp.dat"), Owner("Palm Clock", "CLCK") + Owner("Palm New", "NEWA"));
}

TEST_F(ShippedFiles, OfWhichNothingIsKnownStayAndOnlyWhatIsMissingIsGiven)
{
    Ship("AppList.dat", "[Shipped]\n");
    Ship("PalmApp.dat", "[Palm]\n");
    Ship("TIPOFDAY.TXT", "tip\n");
    WriteOwn("AppList.dat", "[Mine]\n");
    WriteOwn("TIPOFDAY.TXT", "mine\n");

    Start();

    EXPECT_EQ(Own("AppList.dat"), "[Mine]\n");
    EXPECT_EQ(Own("PalmApp.dat"), "[Palm]\n");
    EXPECT_EQ(Own("TIPOFDAY.TXT"), "mine\n");
}

TEST_F(ShippedFiles, AreLeftAloneWhereWhatWasGivenCannotBeRead)
{
    for (const char* name : { "shipped.txt", "shipped-state.txt" }) {
        fs::create_directory(user.File(name));
        Ship("TIPOFDAY.TXT", "tip\n");

        Start();

        EXPECT_FALSE(Has("TIPOFDAY.TXT")) << "or what the user deleted would come back: " << name;
        DeleteOwn(name);
    }
    Start();
    EXPECT_TRUE(Has("TIPOFDAY.TXT"));
}

TEST_F(ShippedFiles, SurviveAnythingInTheFileOfWhatWasGiven)
{
    Ship("TIPOFDAY.TXT", "tip\n");
    Start();
    for (const std::string& state :
        { std::string(3000, '\0'), std::string("seen \nseen x\nversion"),
            std::string("version 99999999999999999999.x\n"), std::string("\tTIPOFDAY.TXT") }) {
        WriteOwn("shipped-state.txt", state);
        WriteOwn("TIPOFDAY.TXT", "mine\n");

        StartLater();

        EXPECT_EQ(Own("TIPOFDAY.TXT"), "mine\n");
    }
}

#ifndef _WIN32

TEST_F(ShippedFiles, InPlaceOfWhichAFolderOrALinkStandsAreNotForced)
{
    Ship("TIPOFDAY.TXT", "old\n");
    Ship("VYPX.chm", "old");
    Start();
    DeleteOwn("TIPOFDAY.TXT");
    fs::create_directory(user.File("TIPOFDAY.TXT"));
    fs::rename(user.File("VYPX.chm"), user.File("elsewhere.chm"));
    fs::create_symlink("elsewhere.chm", user.File("VYPX.chm"));
    Ship("TIPOFDAY.TXT", "new\n");
    Ship("VYPX.chm", "new");

    StartLater();

    EXPECT_TRUE(fs::is_empty(user.File("TIPOFDAY.TXT")));
    EXPECT_TRUE(fs::is_symlink(user.File("VYPX.chm")));
    EXPECT_EQ(Own("elsewhere.chm"), "new");
    fs::remove(user.File("TIPOFDAY.TXT"));
    WriteOwn("TIPOFDAY.TXT", "old\n");
    StartLater();
    EXPECT_EQ(Own("TIPOFDAY.TXT"), "new\n") << "what could not be done is done as soon as it can";
}

#endif

TEST_F(ShippedFiles, AreWaitedForWhileAnotherCopyGivesThem)
{
    Ship("AppList.dat", "[First]\n");
    auto another = std::make_unique<CopiesGate>(user.Path());
    std::future<void> start = std::async(std::launch::async, [&] { Start(); });

    EXPECT_EQ(start.wait_for(std::chrono::milliseconds(100)), std::future_status::timeout);
    WriteOwn("AppList.dat", "[Filled by another]\n");
    another.reset();
    start.get();

    EXPECT_EQ(Own("AppList.dat"), "[Filled by another]\n");
}

} // namespace
} // namespace vypx::test
