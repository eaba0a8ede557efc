#include "catalogs/CatalogFiles.h"
#include "document/Catalogs.h"
#include "document/WorkingFolder.h"
#include "settings/IniStore.h"

#include "support/CommonUser.h"
#include "support/ShippedFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// Catalogs that are large, odd, locked or elsewhere when a new version brings entries.
class ShippedCatalogFiles : public Shipping {
protected:
    std::vector<std::string> BoxesOfARead() const
    {
        std::vector<std::string> boxes;
        AppFolder = user.Path();
        ReadCatalogs([&](std::string_view text) { boxes.emplace_back(text); });
        AppFolder.clear();
        ResetCatalogs();
        return boxes;
    }
};

TEST_F(ShippedCatalogFiles, GetOnlyWhatTheirReadersStillSee)
{
    // 8191 characters of names with one more for each are seen whole.
    std::string own;
    for (int i = 0; i < 81; ++i)
        own += OwnerText(
            std::string(97, 'a') + std::to_string(10 + i), "OWN" + std::string(1, char('0' + i)));
    const std::string last(8191 - 81 * 100 - 1, 'z');
    ASSERT_EQ(last.size(), 90u);

    const std::string tooLong = OwnerText(last + "y", "NEWA"), fits = OwnerText(last, "NEWB");
    EXPECT_EQ(Merged(own, tooLong + fits + OwnerText("x", "NEWC")), own + fits);

    AppFolder = user.Path();
    EXPECT_EQ(ReadAppIni([](std::string_view) {}), std::nullopt) << "all names are seen";
    AppFolder.clear();
    ResetCatalogs();

    WriteOwn("AppList.dat", OwnerText("Short", "SHRT"));
    Bring("AppList.dat", tooLong + fits + OwnerText("x", "NEWC") + "; changed\n");
    EXPECT_EQ(Own("AppList.dat"), OwnerText("Short", "SHRT") + tooLong + OwnerText("x", "NEWC"))
        << "what had no room comes when there is some";
}

TEST_F(ShippedCatalogFiles, ThatCannotBeReadStayAndAreTakenUpLater)
{
    Bring("AppList.dat", OwnerText("One", "ONEA"));
    DeleteOwn("AppList.dat");
    fs::create_directory(user.File("AppList.dat"));

    Bring("AppList.dat", OwnerText("One", "ONEA") + OwnerText("New", "NEWA"));
    EXPECT_TRUE(fs::is_empty(user.File("AppList.dat")));
    DeleteOwn("AppList.dat");
    WriteOwn("AppList.dat", OwnerText("Mine", "MINE"));
    StartLater();

    EXPECT_EQ(Own("AppList.dat"), OwnerText("Mine", "MINE") + OwnerText("New", "NEWA"));
}

#ifndef _WIN32

TEST_F(ShippedCatalogFiles, BehindALinkAreChangedWhereTheyStand)
{
    Bring("AppList.dat", "");
    const TempFolder elsewhere;
    WriteText(elsewhere.File("apps"), OwnerText("Mine", "MINE"));
    DeleteOwn("AppList.dat");
    fs::create_symlink(elsewhere.File("apps"), user.File("AppList.dat"));

    Bring("AppList.dat", OwnerText("New", "NEWA"));

    EXPECT_EQ(
        ReadText(elsewhere.File("apps")), OwnerText("Mine", "MINE") + OwnerText("New", "NEWA"));
    EXPECT_TRUE(fs::is_symlink(user.File("AppList.dat")));
}

TEST_F(ShippedCatalogFiles, ThatTheUserMadeReadOnlyStayUntilTheyAreNot)
{
    fs::permissions(user.Path(), fs::perms::all);
    Ship("AppList.dat", "");
    {
        const CommonUser common;
        Start();
        WriteOwn("AppList.dat", OwnerText("Mine", "MINE"));
        fs::permissions(user.File("AppList.dat"), fs::perms(0444));
    }
    Ship("AppList.dat", OwnerText("New", "NEWA"));
    {
        const CommonUser common;
        StartLater();
        EXPECT_EQ(Own("AppList.dat"), OwnerText("Mine", "MINE"));

        fs::permissions(user.File("AppList.dat"), fs::perms(0644));
        StartLater();
        EXPECT_EQ(Own("AppList.dat"), OwnerText("Mine", "MINE") + OwnerText("New", "NEWA"));
    }
}

#endif

TEST_F(ShippedCatalogFiles, WaitForTheOtherOneThatCannotBeRead)
{
    Ship("PalmApp.dat", "");
    Bring("AppList.dat", "");
    DeleteOwn("PalmApp.dat");
    fs::create_directory(user.File("PalmApp.dat"));

    Bring("AppList.dat", OwnerText("Hand", "HAND") + OwnerText("New", "NEWA"));
    EXPECT_EQ(Own("AppList.dat"), "");
    DeleteOwn("PalmApp.dat");
    WriteOwn("PalmApp.dat", OwnerText("Palm by hand", "HAND"));
    StartLater();

    EXPECT_EQ(Own("AppList.dat"), OwnerText("New", "NEWA"));
}

TEST_F(ShippedCatalogFiles, WithManySectionsOfOneNameAreReadOnceEach)
{
    std::string own = "[Long (Large Icon)]\n";
    for (int i = 0; i < 20000; ++i)
        own += "k" + std::to_string(i) + "=1\n";
    for (int i = 0; i < 20000; ++i)
        own += "[long (large icon)]\n";
    const IniText newer(LauncherItem("New (Large Icon)", "2004"));
    IniText text(own);

    const auto learnt =
        AddShippedEntries(CatalogForm::Launcher, "VY_Icons.dat", newer, {}, {}, text);

    EXPECT_TRUE(learnt.empty()) << "there is no room behind so many";
    EXPECT_EQ(text.Bytes(), own);
}

TEST_F(ShippedCatalogFiles, OfAnyBytesHarmNobody)
{
    std::string garbage("\0[\xFF]\x01=\n\n]=[\r", 13);
    for (int i = 0; i < 12; ++i)
        garbage += garbage;

    EXPECT_EQ(Merged(OwnerText("Mine", "MINE"), garbage), OwnerText("Mine", "MINE"));
    Merged(garbage, OwnerText("New", "NEWA"));
    EXPECT_THAT(ReadText(user.File("AppList.dat")),
        ::testing::AllOf(StartsWith(garbage), EndsWith(OwnerText("New", "NEWA"))));
}

TEST_F(ShippedCatalogFiles, ThatAreTooLargeAreNotReplaced)
{
    const auto size = static_cast<std::uintmax_t>(MaxIniSize);
    Bring("AppList.dat", "");
    fs::resize_file(user.File("AppList.dat"), size + 1);

    Bring("AppList.dat", OwnerText("New", "NEWA"));
    EXPECT_EQ(fs::file_size(user.File("AppList.dat")), size + 1);

    fs::resize_file(user.File("AppList.dat"), size - 5);
    StartLater();
    EXPECT_EQ(fs::file_size(user.File("AppList.dat")), size - 5) << "it could not be read then";
}

TEST_F(ShippedCatalogFiles, ThatWereMergedShowNoBoxAtAStart)
{
    Ship("VY_Icons.dat", LauncherItem("Start (Large Icon)", "2000"));
    Ship("PalmApp.dat", OwnerText("Palm Clock", "CLCK"));
    Bring("AppList.dat", "");
    WriteOwn("AppList.dat", OwnerText("Mine", "MINE") + "[Own panel]\nType=panl\nCreator={PANL}\n");
    WriteOwn("PalmApp.dat", OwnerText("Palm Own", "POWN"));
    const std::string added = OwnerText("Their mine", "MINE") + OwnerText("Their panel", "PANL")
        + "[Their own]\nType=panl\nCreator={POWN}\n" + OwnerText("New", "NEWA");
    Ship("PalmApp.dat", OwnerText("Palm Clock", "CLCK") + added);
    Bring("AppList.dat", added);

    EXPECT_THAT(BoxesOfARead(), IsEmpty());
    EXPECT_THAT(Own("AppList.dat"), EndsWith(OwnerText("New", "NEWA")));
    EXPECT_EQ(Own("PalmApp.dat"), OwnerText("Palm Own", "POWN"));
}

TEST_F(ShippedCatalogFiles, ThatAProgramShipsComeToAUserWithoutADuplicate)
{
    const std::string data(VYPX_SHIPPED_DATA);
    TakeShippedFiles({ .work = user.Path(), .shipped = data }, ShippedCatalogRules);

    EXPECT_THAT(BoxesOfARead(), IsEmpty());
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat", "TIPOFDAY.TXT" })
        EXPECT_EQ(Own(name), ReadText(data + '/' + name));
}

} // namespace
} // namespace vypx::test
