#include "catalogs/AddPrcFiles.h"

#include "support/SearchFixture.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PrcRules : public Searching { };

TEST_F(PrcRules, ANewApplicationIsAddedWithTypeAndCreatorInThisOrder)
{
    Catalogs("; mine\n" + Entry("Old", "OLDA"), "");

    const JudgedPrc judged = JudgedAs(PrcFile("My App", "appl", "MyAp"));

    EXPECT_EQ(judged.verdict, PrcVerdict::Added);
    EXPECT_EQ(judged.path, InPalm("app.prc"));
    EXPECT_EQ(judged.entry, "My App");
    EXPECT_EQ(
        Apps(), "; mine\n[Old]\nType=appl\nCreator={OLDA}\n[My App]\nType=appl\nCreator={MyAp}\n");
    EXPECT_THAT(listener.texts, IsEmpty());
}

TEST_F(PrcRules, APanelKeepsItsTypeAndEndsInPanel)
{
    JudgedAs(PrcFile("Clock", "panl", "ClkP"));

    EXPECT_EQ(Apps(), "[Clock Panel]\nType=panl\nCreator={ClkP}\n");
}

TEST_F(PrcRules, FilesOfOtherTypesAddNothing)
{
    for (const char* const type : { "libr", "DATA", "APPL", "Panl" })
        EXPECT_EQ(JudgedAs(PrcFile("Lib", type)).verdict, PrcVerdict::NoApplication) << type;
    EXPECT_EQ(Apps(), "");
}

TEST_F(PrcRules, ACreatorInLowerCaseIsPassedOverAndOneCapitalIsEnough)
{
    EXPECT_EQ(JudgedAs(PrcFile("Sys", "appl", "syst")).verdict, PrcVerdict::OfPalmOS);
    EXPECT_EQ(JudgedAs(PrcFile("Sys", "appl", "sysT")).verdict, PrcVerdict::Added);
}

TEST_F(PrcRules, ACreatorOfPalmAppIsPassedOver)
{
    Catalogs("", Entry("Palm Clock", "CLCK"));

    const JudgedPrc judged = JudgedAs(PrcFile("My Clock", "appl", "CLCK"));

    EXPECT_EQ(judged.verdict, PrcVerdict::CreatorOfPalmItem);
    EXPECT_EQ(judged.entry, "Palm Clock");
    EXPECT_EQ(Apps(), "");
}

TEST_F(PrcRules, TheFileSaysWhatPalmItemsHaveAndNotTheTable)
{
    Catalogs("", Entry("Palm Clock", "CLCK"));
    WriteText(PalmAppFile(), Entry("Palm Clock", "OTHR"));

    EXPECT_EQ(JudgedAs(PrcFile("My Clock", "appl", "CLCK")).verdict, PrcVerdict::Added);
}

/// "BCDE" behind its first character is "CDE".
TEST_F(PrcRules, OnPurposeAPalmCreatorWithoutBracesIsNotKnown)
{
    Catalogs("", Entry("Palm Clock", "BCDE"));
    WriteText(PalmAppFile(), "[Palm Clock]\nType=appl\nCreator=BCDE\n");

    EXPECT_EQ(JudgedAs(PrcFile("My Clock", "appl", "BCDE")).verdict, PrcVerdict::Added);
}

TEST_F(PrcRules, BracketsAreStoredAsBraces)
{
    JudgedAs(PrcFile("[New] App"));

    EXPECT_EQ(Apps(), Entry("{New} App", "ABCD"));
}

TEST_F(PrcRules, ANameIsCutAtItsStarAndTheBlanksBeforeIt)
{
    JudgedAs(PrcFile("App  *v1.2*"));

    EXPECT_EQ(Apps(), Entry("App", "ABCD"));
}

TEST_F(PrcRules, APanelIsCutAtItsStarFirst)
{
    JudgedAs(PrcFile("App *x", "panl"));

    EXPECT_EQ(Apps(), Entry("App Panel", "ABCD", "panl"));
}

TEST_F(PrcRules, AnEmptyNameIsNeverWrittenNotEvenAsPanel)
{
    for (const char* const name : { "",
             "\x01"
             "App",
             "   ", "*App", "  *", "\xE9t\xE9" })
        for (const char* const type : { "appl", "panl" })
            EXPECT_EQ(JudgedAs(PrcFile(name, type)).verdict, PrcVerdict::NoName) << name << type;
    EXPECT_EQ(Apps(), "");
}

TEST_F(PrcRules, AKnownCreatorIsPassedOverAndCaseCounts)
{
    Catalogs(Entry("Other", "ABCD"), "");

    const JudgedPrc judged = JudgedAs(PrcFile("My App", "appl", "ABCD"));
    EXPECT_EQ(judged.verdict, PrcVerdict::KnownCreator);
    EXPECT_EQ(judged.entry, "Other");

    EXPECT_EQ(JudgedAs(PrcFile("My App", "appl", "ABCd")).verdict, PrcVerdict::Added);
}

TEST_F(PrcRules, ANameThatHoldsAKnownOneIsPassedOverInAnyCase)
{
    Catalogs(Entry("Chess", "CHES"), "");

    const JudgedPrc judged = JudgedAs(PrcFile("PocketCHESS Deluxe"));
    EXPECT_EQ(judged.verdict, PrcVerdict::PartName);
    EXPECT_EQ(judged.entry, "Chess");

    EXPECT_EQ(JudgedAs(PrcFile("Ches")).verdict, PrcVerdict::Added);
}

TEST_F(PrcRules, OnPurposeWhatStandsBehindAStarCountsForPartNames)
{
    Catalogs(Entry("Chess", "CHES"), "");

    EXPECT_EQ(JudgedAs(PrcFile("App *Chess")).verdict, PrcVerdict::PartName);
}

TEST_F(PrcRules, OnPurposeThePanelsEndingDoesNotCountForPartNames)
{
    Catalogs(Entry("Panel", "PANL"), "");

    EXPECT_EQ(JudgedAs(PrcFile("Clock", "panl")).verdict, PrcVerdict::Added);
}

TEST_F(PrcRules, ARowWithoutACreatorBarsNoNames)
{
    Catalogs("[A]\nType=appl\n[B]\nType=appl\nCreator=ABCDE\n", "");

    EXPECT_EQ(JudgedAs(PrcFile("Abba")).verdict, PrcVerdict::Added);
}

TEST_F(PrcRules, ButItsOwnEntryIsNotOverwritten)
{
    const std::string apps = "[Abba]\nType=appl\nCreator=ABCDE\n";
    Catalogs(apps, "");

    const JudgedPrc judged = JudgedAs(PrcFile("ABBA"));

    EXPECT_EQ(judged.verdict, PrcVerdict::KnownName);
    EXPECT_EQ(Apps(), apps);
}

TEST_F(PrcRules, ACreatorWithAByteBelow32IsPassedOver)
{
    EXPECT_EQ(JudgedAs(PrcFile("App", "appl", "AB\nC")).verdict, PrcVerdict::UnwritableCreator);
    EXPECT_EQ(Apps(), "");
}

TEST_F(PrcRules, CreatorsOfBlanksAndHighBytesComeBackAsTheyWere)
{
    JudgedAs(PrcFile("App", "appl", " \xE9\x7F "));

    ReadTables();
    EXPECT_EQ(AppTable.at(1).creator, " \xE9\x7F ");
}

/// Each file has two reasons: the one that is told, and the next.
TEST_F(PrcRules, TheFirstReasonIsTold)
{
    Catalogs(Entry("Chess", "CHES") + Entry("Clock", "CLCK"), Entry("Palm Clock", "CLCK"));
    const auto verdict = [&](const char* name, const char* type, const char* creator) {
        return JudgedAs(PrcFile(name, type, creator)).verdict;
    };

    EXPECT_EQ(verdict("App", "libr", "syst"), PrcVerdict::NoApplication);
    EXPECT_EQ(verdict("App", "appl", "CLCK"), PrcVerdict::CreatorOfPalmItem);
    EXPECT_EQ(verdict("My Clock", "appl", "CHES"), PrcVerdict::KnownCreator);
    EXPECT_EQ(verdict("* Chess", "appl", "NEWC"), PrcVerdict::PartName);
    WriteText(AppListFile(), Apps() + "[Panel]\n[ Panel]\n");
    EXPECT_EQ(verdict("*", "panl", "NEWC"), PrcVerdict::NoName);
}

TEST_F(PrcRules, WhatIsNoWholeFileIsPassedOver)
{
    Bytes file = PrcFile("App");
    file.pop_back();
    EXPECT_EQ(JudgedAs(file).verdict, PrcVerdict::TooShort);
    EXPECT_EQ(JudgedAs({}).verdict, PrcVerdict::TooShort);

    listPRC = { "", InPalm("missing.prc"), SearchFolder };
    const AddEnd end = AddPrcFiles(listener);
    for (const JudgedPrc& judged : end.files)
        EXPECT_EQ(judged.verdict, PrcVerdict::Unreadable) << judged.path;
    EXPECT_EQ(end.files.size(), 3u);
    EXPECT_TRUE(end.couldWrite);
    EXPECT_THAT(listener.texts, IsEmpty());
}

#ifndef _WIN32

TEST_F(PrcRules, APipeDoesNotHoldTheSearchUp)
{
    ASSERT_EQ(::mkfifo(InPalm("a.prc").c_str(), 0600), 0);
    Put("b.prc", PrcFile("App"));

    EXPECT_THAT(Verdicts(), ElementsAre(PrcVerdict::Unreadable, PrcVerdict::Added));
}

#endif

} // namespace
} // namespace vypx::test
