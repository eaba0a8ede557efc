#include "document/RunningCopies.h"
#include "document/Shipment.h"

#include "support/ShippedFixture.h"

#include <future>
#include <memory>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;

/// What a folder knows of the shipments before, or lacks of it.
class KnownShipments : public Shipping { };

TEST_F(KnownShipments, ThatHaveNotChangedAreNotLookedAtAgain)
{
    Ship("AppList.dat", OwnerText("One", "ONEA"));
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

TEST_F(KnownShipments, GivenByAVersionThatKeptOnlyTheirNamesAreAllTheUsers)
{
    Ship("TIPOFDAY.TXT", "new\n");
    Ship("VYPX.chm", "help");
    Ship("PalmApp.dat", OwnerText("Palm Clock", "CLCK") + OwnerText("Palm Gone", "GONE"));
    WriteOwn("shipped.txt", "PalmApp.dat\nTIPOFDAY.TXT\nVYPX.chm\n");
    WriteOwn("TIPOFDAY.TXT", "old or changed\n");
    WriteOwn("PalmApp.dat", OwnerText("Palm Clock", "CLCK"));

    StartLater();

    EXPECT_EQ(Own("TIPOFDAY.TXT"), "old or changed\n");
    EXPECT_EQ(Own("PalmApp.dat"), OwnerText("Palm Clock", "CLCK")) << "one may have been deleted";
    EXPECT_FALSE(Has("VYPX.chm"));

    Ship("PalmApp.dat",
        OwnerText("Palm Clock", "CLCK") + OwnerText("Palm Gone", "GONE")
            + OwnerText("Palm New", "NEWA"));
    StartLater();
    EXPECT_EQ(Own("PalmApp.dat"), OwnerText("Palm Clock", "CLCK") + OwnerText("Palm New", "NEWA"));
}

TEST_F(KnownShipments, OfWhichNothingIsKnownStayAndOnlyWhatIsMissingIsGiven)
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

TEST_F(KnownShipments, LetAFileOfTheUsersHaveAllOfACatalogThatWasNeverGiven)
{
    Ship("AppList.dat", "");
    Start();
    WriteOwn("PalmApp.dat", OwnerText("Mine", "MINE")); // before it could be given
    Ship("PalmApp.dat", OwnerText("Palm Clock", "CLCK") + OwnerText("Palm Else", "ELSE"));

    StartLater();

    EXPECT_EQ(Own("PalmApp.dat"),
        OwnerText("Mine", "MINE") + OwnerText("Palm Clock", "CLCK")
            + OwnerText("Palm Else", "ELSE"));
}

TEST_F(KnownShipments, AreNotOfAFileThatIsWrittenWhileItIsRead)
{
    Ship("AppList.dat", "");
    Ship("TIPOFDAY.TXT", "half of the t");
    CatalogRules rules = ShippedCatalogRules;
    rules.facts = [&](const ShippedFile& file) { // of AppList.dat, once the names were listed
        Ship("TIPOFDAY.TXT", "half of the tips\n");
        return ShippedCatalogRules.facts(file);
    };
    WriteOwn("AppList.dat", "");
    const AppFolders folders{ .work = user.Path(), .shipped = shipped.Path() };

    TakeShippedFiles(folders, rules);
    EXPECT_FALSE(Has("TIPOFDAY.TXT"));

    StartLater();
    EXPECT_EQ(Own("TIPOFDAY.TXT"), "half of the tips\n");
}

TEST_F(KnownShipments, OfMoreThanAnyStateHasAreNotRead)
{
    Start();
    WriteOwn("shipped-state.txt", std::string((4u << 20) + 1, '\n'));
    Ship("TIPOFDAY.TXT", "tip\n");

    StartLater();

    EXPECT_FALSE(Has("TIPOFDAY.TXT"));
}

TEST_F(KnownShipments, TellAFileOnAnotherMountForTheSame)
{
    platform::FileIdentity file{ .volume = 7, .file = 11, .size = 3, .modified = 4, .changed = 5 };
    ShippedState state;
    state.seen["one"] = { .version = "2.0.0", .identity = TextOfIdentity(file) };

    file.volume = 8;
    EXPECT_TRUE(IsSeen(state, "one", file));
    file.size = 4;
    EXPECT_FALSE(IsSeen(state, "one", file));
}

TEST_F(KnownShipments, AreLeftAloneWhereWhatWasGivenCannotBeRead)
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

TEST_F(KnownShipments, SurviveAnythingInTheFileOfWhatWasGiven)
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

TEST_F(KnownShipments, OfOtherSizesNeedNoReadOfAFileOfAnySize)
{
    Ship("TIPOFDAY.TXT", "old\n");
    StartLater();
    constexpr std::uintmax_t Size = 3ull << 40;
    fs::resize_file(user.File("TIPOFDAY.TXT"), Size); // all of it a hole
    Ship("TIPOFDAY.TXT", "new\n");

    StartLater();
    EXPECT_EQ(fs::file_size(user.File("TIPOFDAY.TXT")), Size);

    WriteOwn("TIPOFDAY.TXT", "new\n");
    Ship("TIPOFDAY.TXT", "newer\n");
    StartLater();
    EXPECT_EQ(Own("TIPOFDAY.TXT"), "newer\n");
}

TEST_F(KnownShipments, InPlaceOfWhichAFolderOrALinkStandsAreNotForced)
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

TEST_F(KnownShipments, AreWaitedForWhileAnotherCopyGivesThem)
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

TEST_F(KnownShipments, AreNotTouchedBesideACopyThatDoesNotLetGo)
{
    Ship("AppList.dat", "[First]\n");
    const CopiesGate another(user.Path());

    Start();

    EXPECT_FALSE(Has("AppList.dat"));
    EXPECT_FALSE(Has("shipped-state.txt"));
}

} // namespace
} // namespace vypx::test
