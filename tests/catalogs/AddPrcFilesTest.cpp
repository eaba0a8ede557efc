#include "catalogs/AddPrcFiles.h"

#include "support/SearchFixture.h"

#include <set>

namespace vypx::test {

namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AddPrcFilesTest : public Searching { };

TEST_F(AddPrcFilesTest, CreatorsAndNamesAddedEarlierInTheSearchAreTaken)
{
    Put("1.prc", PrcFile("First", "appl", "AAAA"));
    Put("2.prc", PrcFile("Second", "appl", "AAAA"));
    Put("3.prc", PrcFile("FIRST", "appl", "BBBB"));
    Put("4.prc", PrcFile("First *2", "appl", "CCCC"));
    Put("5.prc", PrcFile("First", "panl", "DDDD"));

    EXPECT_THAT(Verdicts(),
        ElementsAre(PrcVerdict::Added, PrcVerdict::KnownCreator, PrcVerdict::KnownName,
            PrcVerdict::KnownName, PrcVerdict::Added));
    EXPECT_EQ(Apps(), Entry("First", "AAAA") + Entry("First Panel", "DDDD", "panl"));
}

TEST_F(AddPrcFilesTest, OnPurposePartNamesGoByTheTableOfBefore)
{
    Put("1.prc", PrcFile("Chess", "appl", "AAAA"));
    Put("2.prc", PrcFile("PocketChess", "appl", "BBBB"));

    EXPECT_THAT(Verdicts(), ElementsAre(PrcVerdict::Added, PrcVerdict::Added));
    ReadTables();
    Put("3.prc", PrcFile("MyChess", "appl", "CCCC"));
    EXPECT_EQ(Verdicts().back(), PrcVerdict::PartName) << "but the next search knows them";
}

/// 8192 bytes of names are what the readers see.
TEST_F(AddPrcFilesTest, AnEntryThatTheBufferHidesIsNotOverwritten)
{
    std::string apps;
    for (int i = 0; i < 600; ++i)
        apps += Entry("Application number " + std::to_string(i), "X" + std::to_string(100 + i));
    Catalogs(apps + Entry("Hidden", "HIDD"), "");
    ASSERT_LT(AppTable.size(), 600u);

    EXPECT_EQ(JudgedAs(PrcFile("HIDDEN", "appl", "NEW1")).verdict, PrcVerdict::KnownName);
    EXPECT_EQ(JudgedAs(PrcFile("Quite new", "appl", "NEW1")).verdict, PrcVerdict::Added);
    EXPECT_EQ(JudgedAs(PrcFile("Quite new", "appl", "NEW1")).verdict, PrcVerdict::KnownName);

    EXPECT_EQ(Apps(), apps + Entry("Hidden", "HIDD") + Entry("Quite new", "NEW1"));
}

/// What is half a name there bars nothing.
TEST_F(AddPrcFilesTest, ANameThatTheBufferCutBarsNoOther)
{
    std::string apps = Entry(std::string(8186, 'x'), "XXX1") + Entry("Abcdefgh", "XXX2");
    Catalogs(apps, "");
    ASSERT_EQ(AppTable.back().name.substr(0, 2), "Ab");
    ASSERT_LT(AppTable.back().name.size(), 8u);

    EXPECT_EQ(JudgedAs(PrcFile("Abcd")).verdict, PrcVerdict::Added);
}

TEST_F(AddPrcFilesTest, ASecondSearchFindsNothingNewAndDoesNotTouchTheFile)
{
    Put("1.prc", PrcFile("One", "appl", "AAAA"));
    Search();
    ReadTables();
    const auto before = platform::IdentityOf(AppListFile());

    EXPECT_THAT(Verdicts(), ElementsAre(PrcVerdict::KnownCreator));

    EXPECT_EQ(platform::IdentityOf(AppListFile()), before);
}

TEST_F(AddPrcFilesTest, EndingsOfLinesAndWhatOthersWroteStay)
{
    Catalogs("; mine\r\n\r\n[Old]\r\nNote=x\r\nType=appl\r\nCreator={OLDA}\r\n; end", "");
    Put("1.prc", PrcFile("One", "appl", "AAAA"));

    Search();

    EXPECT_EQ(ReadText(AppListFile()),
        "; mine\r\n\r\n[Old]\r\nNote=x\r\nType=appl\r\nCreator={OLDA}\r\n; end\r\n"
        "[One]\r\nType=appl\r\nCreator={AAAA}\r\n");
}

TEST_F(AddPrcFilesTest, AMissingCatalogIsMade)
{
    fs::remove(AppListFile());
    Put("1.prc", PrcFile("One", "appl", "AAAA"));

    Search();

    EXPECT_EQ(Apps(), Entry("One", "AAAA"));
}

TEST_F(AddPrcFilesTest, AFailedWriteIsToldOnceForAll)
{
    fs::remove(AppListFile());
    fs::create_directory(AppListFile());
    Put("1.prc", PrcFile("One", "appl", "AAAA"));
    Put("2.prc", PrcFile("Two", "appl", "BBBB"));
    Put("3.prc", PrcFile("Lib", "libr", "CCCC"));

    const SearchEnd end = Search();

    EXPECT_FALSE(end.add.couldWrite);
    EXPECT_EQ(end.add.files[0].verdict, PrcVerdict::NotSaved);
    EXPECT_EQ(end.add.files[1].verdict, PrcVerdict::NotSaved);
    EXPECT_EQ(end.add.files[2].verdict, PrcVerdict::NoApplication);
    EXPECT_THAT(listener.boxes,
        ElementsAre(
            CatalogBox{ .text = "Failed to save value.", .icon = CatalogBox::Icon::Information }));
}

TEST_F(AddPrcFilesTest, NothingNewIsNoFailureWhereNothingCanBeWritten)
{
    fs::remove(AppListFile());
    fs::create_directory(AppListFile());
    Put("3.prc", PrcFile("Lib", "libr", "CCCC"));

    EXPECT_TRUE(Search().add.couldWrite);
    EXPECT_THAT(listener.texts, IsEmpty());
}

/// Once the files were compared with the catalog, another program adds to it.
TEST_F(AddPrcFilesTest, WhatAnotherProgramAddsMeanwhileIsNotAddedAgain)
{
    Put("1.prc", PrcFile("One", "appl", "AAAA"));
    Put("2.prc", PrcFile("Two", "appl", "BBBB"));
    Put("3.prc", PrcFile("Three", "appl", "CCCC"));
    AllowFolderSearch();
    SearchPrcFiles(listener);
    const std::string others = Entry("ONE", "OTHR") + Entry("Second", "CCCC");
    listener.events = [&] { WriteText(AppListFile(), others); };

    const AddEnd end = AddPrcFiles(listener);

    EXPECT_EQ(end.files[0].verdict, PrcVerdict::KnownName);
    EXPECT_EQ(end.files[1].verdict, PrcVerdict::Added);
    EXPECT_EQ(end.files[2].verdict, PrcVerdict::KnownCreator);
    EXPECT_EQ(Apps(), others + Entry("Two", "BBBB"));
}

/// Two copies that search the same files: the tables of each are from before.
TEST_F(AddPrcFilesTest, OfTwoSearchesAtOnceOneAdds)
{
    Put("1.prc", PrcFile("One", "appl", "AAAA"));
    Put("2.prc", PrcFile("Two", "appl", "BBBB"));
    AllowFolderSearch();
    SearchPrcFiles(listener);
    listener.events = [&] {
        RecordingSearch other;
        AddPrcFiles(other);
    };

    const AddEnd end = AddPrcFiles(listener);

    EXPECT_EQ(end.files[0].verdict, PrcVerdict::KnownCreator);
    EXPECT_EQ(end.files[1].verdict, PrcVerdict::KnownCreator);
    EXPECT_TRUE(end.couldWrite);
    EXPECT_THAT(listener.texts, IsEmpty());
    EXPECT_EQ(Apps(), Entry("One", "AAAA") + Entry("Two", "BBBB"));
}

TEST_F(AddPrcFilesTest, OnPurposeACreatorBeforeItsTypeIsStillNotKnown)
{
    const std::string apps = "[Odd]\nCreator={AAAA}\nType=appl\n";
    Catalogs(apps, "");

    EXPECT_EQ(JudgedAs(PrcFile("One", "appl", "AAAA")).verdict, PrcVerdict::Added);

    EXPECT_EQ(Apps(), apps + Entry("One", "AAAA"));
}

TEST_F(AddPrcFilesTest, AStopAddsWhatWasFoundToBeNewSoFar)
{
    for (int i = 1; i <= 3; ++i)
        Put(std::to_string(i) + ".prc",
            PrcFile("App " + std::to_string(i), "appl", "AAA" + std::to_string(i)));
    AllowFolderSearch();
    SearchPrcFiles(listener);
    listener.stops = true;

    const AddEnd end = AddPrcFiles(listener);

    EXPECT_TRUE(end.wasStopped);
    EXPECT_EQ(end.files.size(), 1u);
    EXPECT_EQ(Apps(), Entry("App 1", "AAA1"));
}

TEST_F(AddPrcFilesTest, AStopOfTheWalkStillAddsAllThatItFound)
{
    for (int i = 1; i <= 3; ++i)
        Put(std::to_string(i) + ".prc",
            PrcFile("App " + std::to_string(i), "appl", "AAA" + std::to_string(i)));
    AllowFolderSearch();
    SearchPrcFiles(listener);
    listPRC.pop_back(); // a walk that was stopped before the last one

    AddPrcFiles(listener);

    EXPECT_EQ(Apps(), Entry("App 1", "AAA1") + Entry("App 2", "AAA2"));
}

TEST_F(AddPrcFilesTest, WithoutTheFlagThereIsNoSecondStage)
{
    Put("1.prc", PrcFile("One"));
    ScanHasNew = false;

    const SearchEnd end = SearchAndAdd(listener);

    EXPECT_EQ(listPRC.size(), 1u);
    EXPECT_THAT(end.add.files, IsEmpty());
    EXPECT_EQ(Apps(), "");
}

TEST_F(AddPrcFilesTest, ASearchBeginsWithAnEmptyList)
{
    Put("1.prc", PrcFile("One"));
    Search();

    EXPECT_EQ(Search().add.files.size(), 1u);
}

TEST(WhyPassedOverTest, EachReasonHasWordsOfItsOwn)
{
    std::set<std::string_view> words;
    for (int verdict = static_cast<int>(PrcVerdict::Unreadable);
         verdict <= static_cast<int>(PrcVerdict::NotSaved); ++verdict)
        words.insert(WhyPassedOver(static_cast<PrcVerdict>(verdict)));

    EXPECT_EQ(words.size(), 11u);
    EXPECT_FALSE(words.contains(""));
    EXPECT_EQ(WhyPassedOver(PrcVerdict::Added), "");
}

} // namespace
} // namespace vypx::test
