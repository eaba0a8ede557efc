#include "support/ShippedFixture.h"

namespace vypx::test {

namespace {

class CatalogsOfANewVersion : public Shipping { };

TEST_F(CatalogsOfANewVersion, GetTheEntriesOfANewVersionAtTheirEnd)
{
    Bring("PalmApp.dat", "; shipped\n\n" + Owner("Palm Clock", "CLCK"));
    const std::string own =
        "; mine\n" + Owner("Palm Mine", "MINE") + Owner("Palm Clock", "CLCK") + "; the end\n";
    WriteOwn("PalmApp.dat", own);

    Bring("PalmApp.dat",
        "; shipped\n" + Owner("Palm New", "NEWA") + "; why\n" + Owner("Palm Clock", "CLCK")
            + "[Palm Other]\nType=panl\nCreator={NEWB}\nNote=x\n");

    EXPECT_EQ(Own("PalmApp.dat"),
        own + "[Palm New]\nType=appl\nCreator={NEWA}\n"
            + "[Palm Other]\nType=panl\nCreator={NEWB}\nNote=x\n");
}

TEST_F(CatalogsOfANewVersion, DoNotGetBackWhatTheUserHasDeletedRenamedOrChanged)
{
    const std::string first = Owner("Deleted", "DELE") + Owner("Before", "RENA")
        + Owner("Changed", "CHAN") + Owner("Kept", "KEPT");
    Bring("AppList.dat", first);
    const std::string own =
        Owner("After", "RENA") + Owner("Changed", "OWNA") + Owner("Kept", "KEPT");
    WriteOwn("AppList.dat", own);

    Bring("AppList.dat", first + Owner("New", "NEWA"));

    EXPECT_EQ(Own("AppList.dat"), own + Owner("New", "NEWA"));
}

TEST_F(CatalogsOfANewVersion, DoNotGetADeletedEntryBackUnderAnotherNameOrWithAnotherCreator)
{
    Bring("AppList.dat", Owner("One", "ONEA") + Owner("Two", "TWOA"));
    WriteOwn("AppList.dat", "");

    Bring("AppList.dat", Owner("One renamed", "ONEA") + Owner("Two", "TWOB"));

    EXPECT_EQ(Own("AppList.dat"), "");
}

TEST_F(CatalogsOfANewVersion, DoNotGetAnEntryBackThatAVersionBetweenLeftOut)
{
    Bring("AppList.dat", Owner("One", "ONEA"));
    WriteOwn("AppList.dat", "");
    Bring("AppList.dat", Owner("Two", "TWOA"));

    Bring("AppList.dat", Owner("One", "ONEA") + Owner("Two", "TWOA"));

    EXPECT_EQ(Own("AppList.dat"), Owner("Two", "TWOA"));
}

TEST_F(CatalogsOfANewVersion, KeepAnEntryThatANewVersionLeavesOut)
{
    Bring("AppList.dat", Owner("One", "ONEA"));

    Bring("AppList.dat", Owner("Two", "TWOA"));

    EXPECT_EQ(Own("AppList.dat"), Owner("One", "ONEA") + Owner("Two", "TWOA"));
}

TEST_F(CatalogsOfANewVersion, GetNoSecondEntryOfAName)
{
    EXPECT_EQ(Merged(Owner("MINE", "ONEA"), Owner("mine", "TWOA") + Owner(" Mine ", "TREE")),
        Owner("MINE", "ONEA"));
}

TEST_F(CatalogsOfANewVersion, GetNoSecondEntryOfATypeAndCreator)
{
    EXPECT_EQ(Merged(Owner("Mine", "ONEA"), Owner("Other", "ONEA")), Owner("Mine", "ONEA"));
}

TEST_F(CatalogsOfANewVersion, ReadACreatorWithoutBracesAsTheirReadersDo)
{
    const std::string own = "[Mine]\nCreator=ONEA\nType=appl\n[Short]\nType=appl\nCreator=AB\n";

    EXPECT_EQ(Merged(own, Owner("Other", "ONEA") + Owner("Third", "AB  ")), own);
}

TEST_F(CatalogsOfANewVersion, GetAnEntryWithAnotherCaseOfTheCreator)
{
    EXPECT_EQ(Merged(Owner("Mine", "ONEA"), Owner("Small", "oneA")),
        Owner("Mine", "ONEA") + Owner("Small", "oneA"));
}

TEST_F(CatalogsOfANewVersion, GetNoEntryOfAnotherTypeWithACreatorThatIsThere)
{
    const std::string panels =
        "[Panel]\nType=panl\nCreator={ONEA}\n[Other panel]\nType=panl\nCreator={TWOA}\n";
    Ship("PalmApp.dat", "");
    Bring("AppList.dat", "");
    WriteOwn("AppList.dat", Owner("Mine", "ONEA"));
    WriteOwn("PalmApp.dat", "[Untyped]\nCreator={TWOA}\n");

    Bring(
        "AppList.dat", panels + Owner("New", "NEWA") + "[New panel]\nType=panl\nCreator={NEWA}\n");

    EXPECT_EQ(Own("AppList.dat"), Owner("Mine", "ONEA") + Owner("New", "NEWA"));
}

TEST_F(CatalogsOfANewVersion, GetNothingThatTheOtherCatalogTellsAlready)
{
    Ship("AppList.dat", "");
    Bring("PalmApp.dat", "");
    WriteOwn("AppList.dat", Owner("Palm by hand", "HAND"));

    Bring("PalmApp.dat", Owner("Palm Hand", "HAND") + Owner("Palm Else", "ELSE"));

    EXPECT_EQ(Own("PalmApp.dat"), Owner("Palm Else", "ELSE"))
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
                      + Owner("Whole", "WHOL")),
        Owner("Whole", "WHOL"));
}

TEST_F(CatalogsOfANewVersion, OfRepeatedSectionsTakeTheFirst)
{
    const std::string own = Owner("Twice", "ONEA") + "; a\n" + Owner("Twice", "TWOA");

    EXPECT_EQ(Merged(own, Owner("New", "NEWA") + Owner("New", "NEWB") + Owner("twice", "TREE")),
        own + Owner("New", "NEWA"));
}

TEST_F(CatalogsOfANewVersion, KeepLineEndsCommentsAndBytesOfAnyKind)
{
    const std::string own = "\xEF\xBB\xBF; mine \xFF\r\n\r\n[Caf\xE9]\r\nType = appl \r\n"
                            "Creator= \"{ONEA}\"\r\nno key\r\n[\xC3\x84rger]\r\n;end";

    Merged(own,
        Owner("caf\xE9", "TWOA") + Owner("Z\xFCrich", "TREE")
            + "[K\xC3\xB6ln]\nType=appl\nCreator={FOUR}\n");

    EXPECT_EQ(ReadText(user.File("AppList.dat")),
        own + "\r\n[Z\xFCrich]\r\nType=appl\r\nCreator={TREE}\r\n"
            + "[K\xC3\xB6ln]\r\nType=appl\r\nCreator={FOUR}\r\n");
}

TEST_F(CatalogsOfANewVersion, KeepTheBlanksOfACreator)
{
    EXPECT_EQ(Merged("", Owner("Blank", "A   ") + Owner("Blanks", " B  ")),
        "[Blank]\nType=appl\nCreator={A   }\n[Blanks]\nType=appl\nCreator={ B  }\n");
}

TEST_F(CatalogsOfANewVersion, AreNotTouchedWhereNothingIsNew)
{
    Bring("AppList.dat", Owner("One", "ONEA"));
    WriteOwn("AppList.dat", Owner("Mine", "MINE"));
    const auto before = platform::IdentityOf(user.File("AppList.dat"));

    Bring("AppList.dat", "; another comment\n" + Owner("One", "ONEA") + Owner("Else", "MINE"));

    EXPECT_EQ(platform::IdentityOf(user.File("AppList.dat")), before);
}

TEST_F(CatalogsOfANewVersion, LetAnEntryBeDeletedAfterItCame)
{
    Bring("AppList.dat", "");
    Bring("AppList.dat", Owner("New", "NEWA"));
    ASSERT_EQ(Own("AppList.dat"), Owner("New", "NEWA"));
    WriteOwn("AppList.dat", "");
    StartLater();
    EXPECT_EQ(Own("AppList.dat"), "");

    Bring("AppList.dat", Owner("New", "NEWA") + Owner("Newer", "NEWB"));

    EXPECT_EQ(Own("AppList.dat"), Owner("Newer", "NEWB"));
}

} // namespace
} // namespace vypx::test
