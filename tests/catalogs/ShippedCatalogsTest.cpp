#include "support/ShippedFixture.h"

namespace vypx::test {

namespace {

class CatalogsOfANewVersion : public Shipping { };

TEST_F(CatalogsOfANewVersion, GetTheEntriesOfANewVersionAtTheirEnd)
{
    Bring("PalmApp.dat", "; shipped\n\n" + OwnerText("Palm Clock", "CLCK"));
    const std::string own = "; mine\n" + OwnerText("Palm Mine", "MINE")
        + OwnerText("Palm Clock", "CLCK") + "; the end\n";
    WriteOwn("PalmApp.dat", own);

    Bring("PalmApp.dat",
        "; shipped\n" + OwnerText("Palm New", "NEWA") + "; why\n" + OwnerText("Palm Clock", "CLCK")
            + "[Palm Other]\nType=panl\nCreator={NEWB}\nNote=x\n");

    EXPECT_EQ(Own("PalmApp.dat"),
        own + "[Palm New]\nType=appl\nCreator={NEWA}\n"
            + "[Palm Other]\nType=panl\nCreator={NEWB}\nNote=x\n");
}

TEST_F(CatalogsOfANewVersion, DoNotGetBackWhatTheUserHasDeletedRenamedOrChanged)
{
    const std::string first = OwnerText("Deleted", "DELE") + OwnerText("Before", "RENA")
        + OwnerText("Changed", "CHAN") + OwnerText("Kept", "KEPT");
    Bring("AppList.dat", first);
    const std::string own =
        OwnerText("After", "RENA") + OwnerText("Changed", "OWNA") + OwnerText("Kept", "KEPT");
    WriteOwn("AppList.dat", own);

    Bring("AppList.dat", first + OwnerText("New", "NEWA"));

    EXPECT_EQ(Own("AppList.dat"), own + OwnerText("New", "NEWA"));
}

TEST_F(CatalogsOfANewVersion, DoNotGetADeletedEntryBackUnderAnotherNameOrWithAnotherCreator)
{
    Bring("AppList.dat", OwnerText("One", "ONEA") + OwnerText("Two", "TWOA"));
    WriteOwn("AppList.dat", "");

    Bring("AppList.dat", OwnerText("One renamed", "ONEA") + OwnerText("Two", "TWOB"));

    EXPECT_EQ(Own("AppList.dat"), "");
}

TEST_F(CatalogsOfANewVersion, DoNotGetAnEntryBackThatAVersionBetweenLeftOut)
{
    Bring("AppList.dat", OwnerText("One", "ONEA"));
    WriteOwn("AppList.dat", "");
    Bring("AppList.dat", OwnerText("Two", "TWOA"));

    Bring("AppList.dat", OwnerText("One", "ONEA") + OwnerText("Two", "TWOA"));

    EXPECT_EQ(Own("AppList.dat"), OwnerText("Two", "TWOA"));
}

TEST_F(CatalogsOfANewVersion, KeepAnEntryThatANewVersionLeavesOut)
{
    Bring("AppList.dat", OwnerText("One", "ONEA"));

    Bring("AppList.dat", OwnerText("Two", "TWOA"));

    EXPECT_EQ(Own("AppList.dat"), OwnerText("One", "ONEA") + OwnerText("Two", "TWOA"));
}

TEST_F(CatalogsOfANewVersion, GetNoSecondEntryOfAName)
{
    EXPECT_EQ(
        Merged(OwnerText("MINE", "ONEA"), OwnerText("mine", "TWOA") + OwnerText(" Mine ", "TREE")),
        OwnerText("MINE", "ONEA"));
}

TEST_F(CatalogsOfANewVersion, GetNoSecondEntryOfATypeAndCreator)
{
    EXPECT_EQ(
        Merged(OwnerText("Mine", "ONEA"), OwnerText("Other", "ONEA")), OwnerText("Mine", "ONEA"));
}

TEST_F(CatalogsOfANewVersion, ReadACreatorWithoutBracesAsTheirReadersDo)
{
    const std::string own = "[Mine]\nCreator=ONEA\nType=appl\n[Short]\nType=appl\nCreator=AB\n";

    EXPECT_EQ(Merged(own, OwnerText("Other", "ONEA") + OwnerText("Third", "AB  ")), own);
}

TEST_F(CatalogsOfANewVersion, GetAnEntryWithAnotherCaseOfTheCreator)
{
    EXPECT_EQ(Merged(OwnerText("Mine", "ONEA"), OwnerText("Small", "oneA")),
        OwnerText("Mine", "ONEA") + OwnerText("Small", "oneA"));
}

TEST_F(CatalogsOfANewVersion, GetNoEntryOfAnotherTypeWithACreatorThatIsThere)
{
    const std::string panels =
        "[Panel]\nType=panl\nCreator={ONEA}\n[Other panel]\nType=panl\nCreator={TWOA}\n";
    Ship("PalmApp.dat", "");
    Bring("AppList.dat", "");
    WriteOwn("AppList.dat", OwnerText("Mine", "ONEA"));
    WriteOwn("PalmApp.dat", "[Untyped]\nCreator={TWOA}\n");

    Bring("AppList.dat",
        panels + OwnerText("New", "NEWA") + "[New panel]\nType=panl\nCreator={NEWA}\n");

    EXPECT_EQ(Own("AppList.dat"), OwnerText("Mine", "ONEA") + OwnerText("New", "NEWA"));
}

TEST_F(CatalogsOfANewVersion, GetNothingThatTheOtherCatalogTellsAlready)
{
    Ship("AppList.dat", "");
    Bring("PalmApp.dat", "");
    WriteOwn("AppList.dat", OwnerText("Palm by hand", "HAND"));

    Bring("PalmApp.dat", OwnerText("Palm Hand", "HAND") + OwnerText("Palm Else", "ELSE"));

    EXPECT_EQ(Own("PalmApp.dat"), OwnerText("Palm Else", "ELSE"))
        << "or each start would tell of a duplicate";
}

TEST_F(CatalogsOfANewVersion, OfTheLauncherCompareNamesAndIdsAsNumbers)
{
    Bring("VY_Icons.dat", LauncherItem("Start (Large Icon)", "2000"));
    const std::string own =
        LauncherItem("Start (Large Icon)", "2000") + "[Mine (Large Icon)]\nNumber= 02002 \n";
    WriteOwn("VY_Icons.dat", own);

    Bring("VY_Icons.dat",
        LauncherItem("Start (Large Icon)", "2001") + LauncherItem("Other (Large Icon)", "2002")
            + LauncherItem("mine (large icon)", "2003") + LauncherItem("New (Large Icon)", "2004")
            + LauncherItem("New (Small Icon)", "+2004") + LauncherItem("No number", "x"));

    EXPECT_EQ(Own("VY_Icons.dat"), own + LauncherItem("New (Large Icon)", "2004"));
}

TEST_F(CatalogsOfANewVersion, PassOverEntriesThatTellNothing)
{
    EXPECT_EQ(Merged("",
                  "Type=appl\nCreator={NONE}\n[]\nType=appl\nCreator={NONE}\n[Empty]\n"
                  "[No creator]\nType=appl\nCreator=\n[No type]\nCreator={ONEA}\n"
                  "[Five]\nType=appl\nCreator=ABCDE\n[broken\nType=appl\n"
                      + OwnerText("Whole", "WHOL")),
        OwnerText("Whole", "WHOL"));
}

TEST_F(CatalogsOfANewVersion, OfRepeatedSectionsTakeTheFirst)
{
    const std::string own = OwnerText("Twice", "ONEA") + "; a\n" + OwnerText("Twice", "TWOA");

    EXPECT_EQ(Merged(own,
                  OwnerText("New", "NEWA") + OwnerText("New", "NEWB") + OwnerText("twice", "TREE")),
        own + OwnerText("New", "NEWA"));
}

TEST_F(CatalogsOfANewVersion, KeepLineEndsCommentsAndBytesOfAnyKind)
{
    const std::string own = "\xEF\xBB\xBF; mine \xFF\r\n\r\n[Caf\xE9]\r\nType = appl \r\n"
                            "Creator= \"{ONEA}\"\r\nno key\r\n[\xC3\x84rger]\r\n;end";

    Merged(own,
        OwnerText("caf\xE9", "TWOA") + OwnerText("Z\xFCrich", "TREE")
            + "[K\xC3\xB6ln]\nType=appl\nCreator={FOUR}\n");

    EXPECT_EQ(ReadText(user.File("AppList.dat")),
        own + "\r\n[Z\xFCrich]\r\nType=appl\r\nCreator={TREE}\r\n"
            + "[K\xC3\xB6ln]\r\nType=appl\r\nCreator={FOUR}\r\n");
}

TEST_F(CatalogsOfANewVersion, KeepTheBlanksOfACreator)
{
    EXPECT_EQ(Merged("", OwnerText("Blank", "A   ") + OwnerText("Blanks", " B  ")),
        "[Blank]\nType=appl\nCreator={A   }\n[Blanks]\nType=appl\nCreator={ B  }\n");
}

TEST_F(CatalogsOfANewVersion, AreNotTouchedWhereNothingIsNew)
{
    Bring("AppList.dat", OwnerText("One", "ONEA"));
    WriteOwn("AppList.dat", OwnerText("Mine", "MINE"));
    const auto before = platform::IdentityOf(user.File("AppList.dat"));

    Bring("AppList.dat",
        "; another comment\n" + OwnerText("One", "ONEA") + OwnerText("Else", "MINE"));

    EXPECT_EQ(platform::IdentityOf(user.File("AppList.dat")), before);
}

TEST_F(CatalogsOfANewVersion, LetAnEntryBeDeletedAfterItCame)
{
    Bring("AppList.dat", "");
    Bring("AppList.dat", OwnerText("New", "NEWA"));
    ASSERT_EQ(Own("AppList.dat"), OwnerText("New", "NEWA"));
    WriteOwn("AppList.dat", "");
    StartLater();
    EXPECT_EQ(Own("AppList.dat"), "");

    Bring("AppList.dat", OwnerText("New", "NEWA") + OwnerText("Newer", "NEWB"));

    EXPECT_EQ(Own("AppList.dat"), OwnerText("Newer", "NEWB"));
}

} // namespace
} // namespace vypx::test
