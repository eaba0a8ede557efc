#include "catalogs/CatalogEdits.h"

#include "support/EditFixture.h"

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Names = std::vector<std::string>;

class CatalogEditsTest : public Editing {
protected:
    std::string Found(const std::string& creator)
    {
        boxes.clear();
        SearchIcon(creator, show);
        EXPECT_EQ(boxes.size(), 1u);
        EXPECT_EQ(boxes.at(0), Plain(boxes.at(0).text));
        return boxes.at(0).text;
    }
};

TEST_F(CatalogEditsTest, DeletesTheEntriesOfTheirNames)
{
    const std::string apps =
        "; mine\n" + Entry("One", "1111") + Entry("Two", "2222") + Entry("Three", "3333");
    Catalogs(apps, Entry("One", "PPPP"));

    DeleteApplications(Names{ "One", "Three" }, show);

    EXPECT_EQ(Apps(), "; mine\n" + Entry("Two", "2222"));
    EXPECT_EQ(PalmItems(), Entry("One", "PPPP"));
    EXPECT_EQ(ReadText(AppListFile() + ".bak"), apps);
    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(CatalogEditsTest, DeletesPalmItemsFromTheirOwnFile)
{
    Catalogs(Entry("One", "1111"), Entry("One", "PPPP"));

    DeletePalmItems(Names{ "One" }, show);

    EXPECT_EQ(PalmItems(), "");
    EXPECT_EQ(Apps(), Entry("One", "1111"));
    EXPECT_FALSE(NamedFileExists(PalmAppFile() + ".bak")) << "one entry leaves no backup";
}

TEST_F(CatalogEditsTest, OneNameThatStandsTwiceLeavesABackup)
{
    const std::string apps = Entry("Foo", "1111") + Entry("Bar", "2222") + Entry("foo", "3333");
    Catalogs(apps, "");

    DeleteApplications(Names{ "Foo" }, show);

    EXPECT_EQ(Apps(), Entry("Bar", "2222"));
    EXPECT_EQ(ReadText(AppListFile() + ".bak"), apps);
}

TEST_F(CatalogEditsTest, SeveralPalmItemsLeaveABackupOfTheirFile)
{
    const std::string palm = Entry("Palm One", "1111") + Entry("Palm Two", "2222");
    Catalogs("", palm);

    DeletePalmItems(Names{ "Palm One", "Palm Two", "Palm Two" }, show);

    EXPECT_EQ(PalmItems(), "");
    EXPECT_EQ(ReadText(PalmAppFile() + ".bak"), palm);
    EXPECT_FALSE(NamedFileExists(AppListFile() + ".bak"));
}

TEST_F(CatalogEditsTest, CommentsOfOtherEntriesStay)
{
    Catalogs("; mine\n" + Entry("One", "1111") + "\n; about Two\n" + Entry("Two", "2222")
            + Entry("Three", "3333") + "; the end\n",
        "");

    DeleteApplications(Names{ "One", "Three" }, show);

    EXPECT_EQ(Apps(), "; mine\n; about Two\n" + Entry("Two", "2222") + "; the end\n");
}

TEST_F(CatalogEditsTest, NamesThatAreNotThereAreNoFailureAndNoReasonForABackup)
{
    Catalogs(Entry("One", "1111"), "");

    DeleteApplications(Names{ "One", "Gone" }, show);
    DeleteApplications(Names{ "Gone" }, show);
    DeleteApplications(Names{}, show);

    EXPECT_EQ(Apps(), "");
    EXPECT_FALSE(NamedFileExists(AppListFile() + ".bak"));
    EXPECT_THAT(boxes, IsEmpty());
}

TEST_F(CatalogEditsTest, AFailedDeletionIsToldForEachEntryAndAllStay)
{
    Block(AppListFile());

    DeleteApplications(Names{ "One", "Two" }, show);

    EXPECT_EQ(boxes.size(), 2u);
    EXPECT_THAT(boxes,
        Each(
            CatalogBox{ .text = "Delete Section Failed.", .icon = CatalogBox::Icon::Information }));
}

TEST_F(CatalogEditsTest, WithoutABackupNoMoreThanOneEntryGoes)
{
    const std::string apps = Entry("One", "1111") + Entry("Two", "2222");
    Catalogs(apps, "");
    fs::create_directory(AppListFile() + ".bak");

    DeleteApplications(Names{ "One", "Two" }, show);
    EXPECT_EQ(Apps(), apps);
    EXPECT_EQ(boxes.size(), 2u);

    DeleteApplications(Names{ "One" }, show);
    EXPECT_EQ(Apps(), Entry("Two", "2222"));
}

TEST_F(CatalogEditsTest, ABackupIsThatOfTheLastDeletion)
{
    Catalogs(Entry("One", "1111") + Entry("Two", "2222"), "");
    DeleteApplications(Names{ "One", "Two" }, show);
    const std::string apps = Entry("Three", "3333") + Entry("Four", "4444");
    WriteText(AppListFile(), apps);

    DeleteApplications(Names{ "Three", "Four" }, show);

    EXPECT_EQ(ReadText(AppListFile() + ".bak"), apps);
}

TEST_F(CatalogEditsTest, AnIconIsFoundInTheApplicationsFirst)
{
    Catalogs(Entry("One", "AAAA") + Entry("Both", "BOTH"),
        Entry("Palm Both", "BOTH") + Entry("Palm Clock", "CLCK"));

    EXPECT_EQ(Found("BOTH"),
        "The icon \"Both\" has the Creator ID you have entered.\n"
        "It is located in the Applications Icon list.");
    EXPECT_EQ(Found("CLCK"),
        "The icon \"Palm Clock\" has the Creator ID you have entered.\n"
        "It is located in the Palm System Icon list.");
    EXPECT_EQ(Found("clck"), "The Creator ID you have entered wasn't found.") << "case counts";
}

TEST_F(CatalogEditsTest, ASearchGoesByTheFilesAndNotTheTables)
{
    Catalogs(Entry("One", "AAAA"), "");
    WriteText(AppListFile(), Entry("One", "BBBB") + Entry("New", "NEWN"));

    EXPECT_EQ(Found("AAAA"), "The Creator ID you have entered wasn't found.");
    EXPECT_EQ(Found("BBBB").substr(0, 14), "The icon \"One\"");
    EXPECT_EQ(Found("NEWN"), "The Creator ID you have entered wasn't found.")
        << "only entries of the tables are looked up";
}

TEST_F(CatalogEditsTest, WhatCannotBeACreatorIsNotSearched)
{
    EXPECT_EQ(Found(""), "The Creator field must contain 4 characters");
    EXPECT_EQ(Found("\x01 "), "The Creator field must contain 4 characters");
    EXPECT_EQ(Found("AB\x1F"
                    "C"),
        "Error! The Creator field can contains an invalid character.");
    EXPECT_EQ(Found("ABC\xE9"), "Error! The Creator field can contains an invalid character.");
}

TEST_F(CatalogEditsTest, MissingFilesAreToldAndTheSearchGoesOn)
{
    fs::remove(AppListFile());
    fs::remove(PalmAppFile());

    SearchIcon("ABC", show);

    EXPECT_THAT(boxes,
        ElementsAre(Plain("Error! Can't find PalmApp.dat file."),
            Plain("Error! Can't find AppList.dat file."),
            Plain("The Creator field must contain 4 characters")));
}

} // namespace
} // namespace vypx::test
