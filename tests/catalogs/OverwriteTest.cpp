#include "document/Document.h"
#include "support/AddSingleFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using Overwrite = AddingSingle;

TEST_F(Overwrite, EntriesWithOtherCreatorsAlwaysStay)
{
    const std::string apps = Entry("Po", "1111") + Entry("Chess", "2222");
    Catalogs(apps, "");

    EXPECT_TRUE(Add(PrcFile("Pocket Chess")));

    EXPECT_EQ(boxes.size(), 2u);
    EXPECT_EQ(Apps(), apps + Entry("Pocket Chess", "ABCD"));
}

TEST_F(Overwrite, AnApplicationThatChangedItsNameLosesItsOldEntry)
{
    Catalogs(Entry("Chess", "ABCD") + Entry("Other", "OTHR"), "");

    EXPECT_TRUE(Add(PrcFile("Chess 2")));

    EXPECT_THAT(boxes, ElementsAre(Question));
    EXPECT_EQ(Apps(), Entry("Other", "OTHR") + Entry("Chess 2", "ABCD"));
    EXPECT_FALSE(NamedFileExists(AppListFile() + ".bak")) << "one entry is no reason";
}

TEST_F(Overwrite, ButNotWhileAnIconsetIsOpen)
{
    Catalogs(Entry("Chess", "ABCD"), "");
    FileLoaded = true;

    EXPECT_TRUE(Add(PrcFile("Chess 2")));

    EXPECT_EQ(Apps(), Entry("Chess", "ABCD") + Entry("Chess 2", "ABCD"));
    FileLoaded = false;
}

TEST_F(Overwrite, MoreThanOneOldEntryLeavesABackup)
{
    const std::string apps = Entry("Ch", "ABCD") + Entry("Chess", "ABCD");
    Catalogs(apps, "");

    EXPECT_TRUE(Add(PrcFile("Chess 2")));

    EXPECT_EQ(Apps(), Entry("Chess 2", "ABCD"));
    EXPECT_EQ(ReadText(AppListFile() + ".bak"), apps);
}

TEST_F(Overwrite, TheSameNameUpToCaseKeepsItsPlaceAndItsOtherKeys)
{
    Catalogs("[MY APP]\nType=panl\nCreator={XXXX}\nNote=x\n" + Entry("Other", "OTHR"), "");

    EXPECT_TRUE(Add(PrcFile("My App")));

    EXPECT_THAT(boxes, ElementsAre(Question));
    EXPECT_EQ(Apps(), "[MY APP]\nType=appl\nCreator={ABCD}\nNote=x\n" + Entry("Other", "OTHR"));
}

/// What the reader makes of the entry that a file overwrites.
TEST_F(Overwrite, AnEntryThatIsOverwrittenIsReadBackHoweverItsKeysStood)
{
    for (const char* const keys :
        { "Creator={OTHR}\nType=appl\n", "Note=x\nType=appl\nCreator={OTHR}\n",
            "; mine\nType=appl\nNote=x\nCreator={OTHR}\n", "Type=appl\nType=panl\nCreator={OTHR}\n",
            "Type=appl\nCreator={OTHR}\nNote=x\nCREATOR={AGIN}\n", "Type=appl\n",
            "Creator={OTHR}\n", "Type=applications\nCreator={TOOLONG}\n", "" }) {
        Catalogs(Entry("First", "FRST") + "[App]\n" + keys + Entry("Last", "LAST"), "");

        EXPECT_TRUE(Add(PrcFile("App", "appl", "ABCD"))) << keys;

        ReadTables();
        ASSERT_EQ(AppTable.size(), 4u) << keys;
        EXPECT_EQ(AppTable[2], (CatalogRow{ "App", "appl", "ABCD", "" })) << keys;
        EXPECT_EQ(Apps().find("Note=x") != std::string::npos,
            std::string(keys).find("Note=x") != std::string::npos)
            << "what others wrote stays";
    }
}

TEST_F(Overwrite, TypeAndCreatorComeBeforeTheKeysOfOthers)
{
    Catalogs("[App]\n; mine\nNote=x\nCreator={OTHR}\nType=appl\n" + Entry("Last", "LAST"), "");

    Add(PrcFile("App", "appl", "ABCD"));

    EXPECT_EQ(Apps(), Entry("App", "ABCD") + "; mine\nNote=x\n" + Entry("Last", "LAST"));
}

TEST_F(Overwrite, AnEntryWithoutACreatorIsAskedAboutBeforeItIsOverwritten)
{
    const std::string apps = "[Ap]\nType=appl\nCreator=ABCDE\n[App]\nType=appl\n";
    Catalogs(apps, "");
    answers = { false, true };

    EXPECT_FALSE(Add(PrcFile("App")));
    EXPECT_EQ(Apps(), apps);
    EXPECT_TRUE(Add(PrcFile("App")));

    EXPECT_THAT(boxes, ElementsAre(Question, Question));
    EXPECT_EQ(Apps(), "[Ap]\nType=appl\nCreator=ABCDE\n" + Entry("App", "ABCD"));
}

TEST_F(Overwrite, AnEntryThatTheReadersDoNotSeeIsAskedAboutToo)
{
    const std::string apps = Entry(std::string(8190, 'x'), "XXXX") + Entry("App", "OTHR");
    Catalogs(apps, "");
    answer = false;

    EXPECT_FALSE(Add(PrcFile("App")));

    EXPECT_THAT(boxes, ElementsAre(Question));
    EXPECT_EQ(Apps(), apps);
}

} // namespace
} // namespace vypx::test
