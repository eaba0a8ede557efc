#include "catalogs/AddApplication.h"

#include "support/AddSingleFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using AddSingleTest = AddingSingle;

TEST_F(AddSingleTest, WritesTypeAndCreatorBehindTheOthers)
{
    Catalogs(Entry("Old", "OLDA"), "");

    EXPECT_TRUE(Add(PrcFile("My [App] *1", "appl", "MyAp")));

    EXPECT_EQ(Apps(), Entry("Old", "OLDA") + Entry("My {App}", "MyAp"));
    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(AddSingleTest, OnPurposeAPanelIsWrittenAsAnApplication)
{
    Add(PrcFile("Clock *1", "panl", "ClkP"));

    EXPECT_EQ(Apps(), "[Clock Panel]\nType=appl\nCreator={ClkP}\n");
}

TEST_F(AddSingleTest, AnEndingOfThreeOtherLettersIsToldFirst)
{
    EXPECT_FALSE(Add(PrcFile("App", "libr", "syst"), "app.pdb"));

    EXPECT_THAT(boxes, ElementsAre(Plain("Incorrect file type.")));
}

TEST_F(AddSingleTest, TheEndingCountsInAnyCaseAndNeedsNoFullStop)
{
    EXPECT_TRUE(Add(PrcFile("One", "appl", "AAAA"), "one.PRC"));
    EXPECT_TRUE(Add(PrcFile("Two", "appl", "BBBB"), "twoprc"));
}

TEST_F(AddSingleTest, AnotherTypeIsToldBeforeTheCreator)
{
    EXPECT_FALSE(Add(PrcFile("App", "libr", "syst")));

    EXPECT_THAT(boxes, ElementsAre(Plain("The selected file isn't an application.")));
}

TEST_F(AddSingleTest, AProgramOfPalmOSIsToldBeforeItsName)
{
    EXPECT_FALSE(Add(PrcFile("", "appl", "syst")));

    EXPECT_THAT(
        boxes, ElementsAre(Plain("This is a Palm System file. Can't add the selected file.")));
    EXPECT_EQ(Apps(), "");
}

TEST_F(AddSingleTest, WhatCannotBeReadOrWrittenEndsSilently)
{
    Bytes shorter = PrcFile("App", "libr");
    shorter.pop_back();

    EXPECT_FALSE(Add(shorter)) << "though its type can be read";
    EXPECT_FALSE(Add({}));
    EXPECT_FALSE(AddSingle(InPalm("missing.prc"), show));
    EXPECT_FALSE(AddSingle("prc", show));
    EXPECT_FALSE(Add(PrcFile("App", "appl", "AB\nC")));
    EXPECT_FALSE(Add(PrcFile("*", "appl", "ABCD")));
    EXPECT_FALSE(Add(PrcFile("", "panl", "ABCD"))) << "no \" Panel\" without a name";

    EXPECT_THAT(boxes, IsEmpty());
    EXPECT_EQ(Apps(), "");
}

TEST_F(AddSingleTest, TheCreatorOfAPalmIconIsToldBeforeThatOfAnApplication)
{
    const std::string apps = Entry("Other", "ABCD");
    Catalogs(apps, Entry("Palm Clock", "ABCD"));

    EXPECT_FALSE(Add(PrcFile("App")));

    EXPECT_THAT(boxes,
        ElementsAre(Plain("Error adding this application. The Palm system icon \"Palm Clock\" has "
                          "the same Creator ID.")));
    EXPECT_EQ(Apps(), apps);
}

TEST_F(AddSingleTest, TheCreatorOfAnApplicationWithAnotherNameIsTold)
{
    const std::string apps = Entry("App", "XXXX") + Entry("Other", "ABCD");
    Catalogs(apps, "");

    EXPECT_FALSE(Add(PrcFile("App"))) << "before the question about the name";

    EXPECT_THAT(boxes,
        ElementsAre(CatalogBox{
            .text = "The file you have selected has the same Creator ID as the application: "
                    "\n\n\"Other\"\n\nYou will need to delete the application \"Other\" first to "
                    "install this application.",
            .title = "Creator ID Already Exists!" }));
    EXPECT_EQ(Apps(), apps);
}

TEST_F(AddSingleTest, OnPurposeThatTestTellsUpperFromLowerCase)
{
    Catalogs(Entry("APP", "ABCD"), "");

    Add(PrcFile("App"));

    EXPECT_EQ(boxes.at(0).title, "Creator ID Already Exists!");
}

TEST_F(AddSingleTest, ANameThatHoldsAKnownOneIsAskedAboutAndCancelStops)
{
    const std::string apps = Entry("chess", "CHES");
    Catalogs(apps, "");
    answer = false;

    EXPECT_FALSE(Add(PrcFile("Pocket Chess")));

    EXPECT_THAT(boxes, ElementsAre(Question));
    EXPECT_EQ(Apps(), apps);
}

TEST_F(AddSingleTest, EveryPartIsAskedAboutUntilACancel)
{
    const std::string apps = Entry("Po", "1111") + Entry("Chess", "2222") + Entry("Ch", "3333");
    Catalogs(apps, "");
    answers = { true, false };

    EXPECT_FALSE(Add(PrcFile("Pocket Chess")));

    EXPECT_EQ(boxes.size(), 2u);
    EXPECT_EQ(Apps(), apps);
}

TEST_F(AddSingleTest, OnPurposeThePanelsEndingCountsForTheQuestion)
{
    Catalogs(Entry("Panel", "PANL"), "");
    answer = false;

    EXPECT_FALSE(Add(PrcFile("Clock", "panl")));

    EXPECT_THAT(boxes, ElementsAre(Question));
}

TEST_F(AddSingleTest, OnPurposeWhatStandsBehindAStarDoesNotCount)
{
    Catalogs(Entry("Chess", "CHES"), "");

    EXPECT_TRUE(Add(PrcFile("App *Chess")));

    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(AddSingleTest, ARowWithoutACreatorAsksNothingForAPartOfAName)
{
    Catalogs("[Ap]\nType=appl\nCreator=ABCDE\n", "");

    EXPECT_TRUE(Add(PrcFile("App")));

    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(AddSingleTest, WhatEndsItSilentlyComesBeforeATakenCreator)
{
    Catalogs(Entry("Other", "ABCD"),
        Entry("Palm Clock",
            "A\x01"
            "CD"));

    EXPECT_FALSE(Add(PrcFile("*", "appl", "ABCD")));
    EXPECT_FALSE(Add(PrcFile("App", "appl",
        "A\x01"
        "CD")));

    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(AddSingleTest, AFailedWriteIsTold)
{
    Block(AppListFile());

    EXPECT_TRUE(Add(PrcFile("App")));

    EXPECT_THAT(boxes,
        ElementsAre(
            CatalogBox{ .text = "Failed to save value.", .icon = CatalogBox::Icon::Information }));
}

} // namespace
} // namespace vypx::test
