#include "catalogs/CatalogFiles.h"

#include "document/Catalogs.h"
#include "settings/Inifile.h"
#include "support/CommonUser.h"
#include "support/LoadFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CatalogFiles : public LoadFixture {
protected:
    void ReadApps(const std::string& text)
    {
        WriteText(folder.File("AppList.dat"), text);
        ReadAppIni(show);
    }
    void ReadPalm(const std::string& text)
    {
        WriteText(folder.File("PalmApp.dat"), text);
        ReadPalmAppIni(show);
    }
    void ReadLauncher(const std::string& text)
    {
        WriteText(folder.File("VY_Icons.dat"), text);
        ReadVYIconsIni(show);
    }
    std::string AppFile() { return ReadText(folder.File("AppList.dat")); }

    std::vector<std::string> messages;
    ShowMessage show = [this](std::string_view text) { messages.emplace_back(text); };
};

TEST_F(CatalogFiles, RowsCountFromOneInTheFilesOrder)
{
    ReadApps("[Beta]\nType=appl\nCreator={BETA}\n[Alpha Panel]\nType=panl\nCreator={ALPH}\n");

    EXPECT_THAT(AppTable,
        ElementsAre(CatalogRow{}, CatalogRow{ "Beta", "appl", "BETA", "" },
            CatalogRow{ "Alpha Panel", "panl", "ALPH", "" }));
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(CatalogFiles, AReadReplacesTheWholeTable)
{
    ReadApps("[A]\nType=appl\nCreator={AAAA}\n[B]\nType=appl\nCreator={BBBB}\n");
    ReadApps("[C]\nType=appl\nCreator={CCCC}\n");

    EXPECT_EQ(AppTable.size(), 2u);
    EXPECT_EQ(AppTable[1].name, "C");
}

TEST_F(CatalogFiles, MissingFilesAreToldAndGiveEmptyTables)
{
    AppTable.resize(9);
    PalmTable.resize(9);
    VYTable.resize(9);

    ReadCatalogs(show);

    EXPECT_THAT(messages,
        ElementsAre("Error! Can't find VY_Icons.dat.", "Error! Can't find Applist.dat.",
            "Error! Can't find PalmApp.dat."));
    EXPECT_EQ(AppTable.size() + PalmTable.size() + VYTable.size(), 3u);
    EXPECT_FALSE(FileExists(folder.File("*.dat"))) << "the program makes none of them";
}

#ifndef _WIN32

TEST_F(CatalogFiles, OneThatCannotBeReadIsAsGoodAsMissing)
{
    WriteText(folder.File("AppList.dat"), "[A]\nType=appl\nCreator={AAAA}\n");
    std::filesystem::permissions(folder.File("AppList.dat"), std::filesystem::perms::none);
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    {
        const CommonUser common;
        ReadAppIni(show);
    }

    EXPECT_THAT(messages, ElementsAre("Error! Can't find Applist.dat."));
    EXPECT_EQ(AppTable.size(), 1u);
}

#endif

TEST_F(CatalogFiles, OnPurposeCreatorBeforeTypeChangesTheirColumns)
{
    ReadApps("[A]\nCreator={AAAA}\nType=appl\n");

    EXPECT_EQ(AppTable[1], (CatalogRow{ "A", "AAAA", "appl", "" }));
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(CatalogFiles, OnPurposeAnUnknownKeyTakesUpItsPosition)
{
    ReadApps("[A]\nNote=x\nType=appl\nCreator={AAAA}\n");

    EXPECT_EQ(AppTable[1], (CatalogRow{ "A", "", "appl", "AAAA" }));
}

TEST_F(CatalogFiles, AThirdKeyThatIsNeitherIsAllowed)
{
    ReadPalm("[A]\nTYPE=appl\ncreator={AAAA}\nNote=x\n");

    EXPECT_EQ(PalmTable[1], (CatalogRow{ "A", "appl", "AAAA", "" }));
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(CatalogFiles, FourLettersGetTheirBracesInTheFile)
{
    ReadApps("[A]\nType=appl\nCreator=ABCD\n");

    EXPECT_EQ(AppTable[1].creator, "ABCD");
    EXPECT_EQ(AppFile(), "[A]\nType=appl\nCreator={ABCD}\n");
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(CatalogFiles, ShortCreatorsArePaddedInTableAndFile)
{
    ReadApps("[A]\nType=appl\nCreator=AB\n[B]\nType=appl\nCreator=C\n");

    EXPECT_EQ(AppTable[1].creator, "AB  ");
    EXPECT_EQ(AppTable[2].creator, "C   ");
    EXPECT_EQ(AppFile(), "[A]\nType=appl\nCreator={AB  }\n[B]\nType=appl\nCreator={C   }\n");
}

TEST_F(CatalogFiles, OnPurposeFiveOrSevenCharactersLeaveTheCellEmptyAndTheFileAlone)
{
    const std::string text = "[A]\nType=appl\nCreator=ABCDE\n[B]\nType=appl\nCreator={ABCDE}\n";

    ReadApps(text);

    EXPECT_EQ(AppTable[1].creator, "");
    EXPECT_EQ(AppTable[2].creator, "");
    EXPECT_EQ(AppFile(), text);
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(CatalogFiles, OnPurposeAnyOuterCharactersServeAsBraces)
{
    ReadApps("[A]\nType=appl\nCreator=xABCDy\n");

    EXPECT_EQ(AppTable[1].creator, "ABCD");
}

TEST_F(CatalogFiles, BlanksInsideOfBracesStay)
{
    ReadApps("[A]\nType=appl\nCreator={ B  }\n");

    EXPECT_EQ(AppTable[1].creator, " B  ");
}

TEST_F(CatalogFiles, AnEmptyCreatorIsToldOnceAndRepaired)
{
    ReadApps("[My App]\nType=appl\nCreator=\n");

    EXPECT_THAT(messages,
        ElementsAre("Error! Corrupt Creator ID entry found in Applist.dat for My App.\n"
                    "A Creator ID or XXXX has been assigned to it."));
    EXPECT_EQ(AppTable[1].creator, "XXXX");
    EXPECT_EQ(AppFile(), "[My App]\nType=appl\nCreator={XXXX}\n");

    messages.clear();
    ReadAppIni(show);
    EXPECT_THAT(messages, IsEmpty());
    EXPECT_EQ(AppTable[1].creator, "XXXX");
}

TEST_F(CatalogFiles, AnEmptyCreatorOfASystemItemNamesItsFile)
{
    ReadPalm("[Palm X]\nType=appl\nCreator=\n");

    EXPECT_THAT(messages,
        ElementsAre("Error! Corrupt Creator ID entry found in PalmApp.dat for Palm X.\n"
                    "A Creator ID or XXXX has been assigned to it."));
}

TEST_F(CatalogFiles, ASectionWithoutKeysIsARowWithItsNameOnly)
{
    ReadApps("[Bare]\n[A]\nType=appl\nCreator={AAAA}\n");

    EXPECT_EQ(AppTable[1], (CatalogRow{ "Bare", "", "", "" }));
    EXPECT_EQ(AppTable[2].creator, "AAAA");
}

TEST_F(CatalogFiles, AValueBeyondTheLastColumnEndsTheReadOfTheApplications)
{
    ReadApps("[A]\nType=appl\nCreator={AAAA}\n[B]\na=\nb=\nc=\nType=appl\n[C]\nType=appl\n");

    EXPECT_THAT(messages, ElementsAre("Error reading Applist.dat file!!!"));
    ASSERT_EQ(AppTable.size(), 4u);
    EXPECT_EQ(AppTable[1].creator, "AAAA");
    EXPECT_EQ(AppTable[3], CatalogRow());
}

TEST_F(CatalogFiles, AValueBeyondTheLastColumnEndsTheReadOfTheSystemItems)
{
    ReadPalm("[A]\na=\nb=\nType=appl\n");

    EXPECT_THAT(messages, ElementsAre("Error reading PalmApp.Dat file!!!"));
}

TEST_F(CatalogFiles, LauncherItemsTakeTheirValuesWhateverTheKeys)
{
    ReadLauncher("[Start (Large Icon)]\nID=2000\n[Start (Small Icon)]\nNumber=2001\nMore=x\n");

    EXPECT_THAT(VYTable,
        ElementsAre(LauncherRow{}, LauncherRow{ "Start (Large Icon)", "2000", "" },
            LauncherRow{ "Start (Small Icon)", "2001", "x" }));
}

TEST_F(CatalogFiles, AThirdKeyEndsTheReadOfTheLauncherItems)
{
    ReadLauncher("[A]\nID=1\n[B]\nID=2\nb=\nc=\n[C]\nID=3\n");

    EXPECT_THAT(messages, ElementsAre("Error reading VY_Icons.dat file!!!!"));
    EXPECT_EQ(VYTable[1].id, "1");
    EXPECT_EQ(VYTable[3].id, "");
}

constexpr const char* Closing =
    "After you have corrected this error, you will need to close and restart VY Pixelworks.";

std::string Told(const std::string& where, const std::string& first, const std::string& second)
{
    return "An icon with a duplicate Creator ID was found in the " + where
        + ".\n\nPlease press Edit App List and remove either \"" + first + "\" or \"" + second
        + "\".\n\nSee the help section on Duplicate Creator IDs  more information.";
}

TEST_F(CatalogFiles, EachLaterRowWithACreatorIsTold)
{
    AppTable = { {}, { "A", "appl", "SAME", "" }, { "B", "appl", "SAME", "" },
        { "C", "panl", "SAME", "" }, { "D", "appl", "same", "" } };

    ChkDupCreators(show);

    EXPECT_THAT(messages,
        ElementsAre(
            Told("Application List", "B", "A"), Told("Application List", "C", "A"), Closing));
}

TEST_F(CatalogFiles, SystemItemsAreComparedAmongThemselvesAndWithApplications)
{
    AppTable = { {}, { "A", "appl", "ONE ", "" } };
    PalmTable = { {}, { "Palm A", "appl", "ONE ", "" }, { "Palm B", "appl", "ONE ", "" } };

    ChkDupCreators(show);

    EXPECT_THAT(messages,
        ElementsAre(Told("Application List and Palm System List", "A", "Palm A"),
            Told("Application List and Palm System List", "A", "Palm B"),
            Told("Palm System List", "Palm B", "Palm A"), Closing));
}

TEST_F(CatalogFiles, OnPurposePlaceholdersCountAsDuplicates)
{
    AppTable = { {}, { "A", "appl", "XXXX", "" }, { "B", "appl", "XXXX", "" } };

    ChkDupCreators(show);

    EXPECT_EQ(messages.size(), 2u);
}

TEST_F(CatalogFiles, DifferentCreatorsAreNotTold)
{
    AppTable = { {}, { "A", "appl", "ONE ", "" }, { "B", "appl", "one ", "" } };
    PalmTable = { {}, { "C", "appl", "TWO ", "" } };

    ChkDupCreators(show);

    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(CatalogFiles, NamesBeyond8192CharactersAreNotSeen)
{
    std::string text;
    for (int i = 0; i < 1100; ++i)
        text += "[N" + std::to_string(100'000 + i) + "]\nType=appl\nCreator={X}\n";

    ReadApps(text);

    EXPECT_LT(AppTable.size(), 1030u);
    EXPECT_GT(AppTable.size(), 1020u);
}

/// A name of 7 characters takes 8 of the 8190 that are cut for names: 1023 fit, and 6 characters of
/// another.
TEST_F(CatalogFiles, NamesThatAreNotSeenAreToldByTheirNumber)
{
    std::string text;
    for (int i = 0; i < 1100; ++i)
        text += "[N" + std::to_string(100'000 + i) + "]\nID=" + std::to_string(i) + "\n";
    WriteText(folder.File("VY_Icons.dat"), text);
    WriteText(folder.File("AppList.dat"), "[Alpha]\nType=appl\nCreator={ALPH}\n");
    WriteText(folder.File("PalmApp.dat"), "[]\n[B]\nType=appl\nCreator={BBBB}\n");

    const std::vector<CutCatalog> cut = ReadCatalogs(show);

    ASSERT_EQ(cut.size(), 1u);
    EXPECT_EQ(NoteOf(cut[0]),
        "Only 1023 of the 1100 names in VY_Icons.dat are known: together they are too long.");
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(CatalogFiles, NamesThatJustFitAreAllKnown)
{
    std::string text;
    for (int i = 0; i < 1023; ++i)
        text += "[N" + std::to_string(100'000 + i) + "]\nType=appl\nCreator={AAAA}\n";
    WriteText(folder.File("AppList.dat"), text);
    EXPECT_EQ(ReadAppIni(show), std::nullopt);

    WriteText(folder.File("AppList.dat"), text + "[N2]\nType=appl\nCreator={AAAA}\n");
    const auto cut = ReadAppIni(show);
    EXPECT_EQ(AppTable.back().name, "N2");
    EXPECT_EQ(cut, std::nullopt);
}

class ShippedCatalogs : public CatalogFiles { };

TEST_F(ShippedCatalogs, AreReadWithoutAMessage)
{
    for (const char* name : { "AppList.dat", "PalmApp.dat", "VY_Icons.dat" })
        WriteBytes(folder.File(name), ReadBytes(std::string(VYPX_SHIPPED_DATA "/") + name));

    ReadCatalogs(show);

    EXPECT_THAT(messages, IsEmpty());
    EXPECT_EQ(AppTable.size(), 1u);
    for (std::size_t i = 1; i < PalmTable.size(); ++i) {
        EXPECT_TRUE(PalmTable[i].name.starts_with("Palm ")) << PalmTable[i].name;
        EXPECT_TRUE(PalmTable[i].type == "appl" || PalmTable[i].type == "panl");
        EXPECT_EQ(PalmTable[i].creator.size(), 4u) << PalmTable[i].name;
        EXPECT_EQ(PalmTable[i].name.ends_with(" Panel"), PalmTable[i].type == "panl")
            << PalmTable[i].name;
    }
}

TEST_F(ShippedCatalogs, LauncherItemsHaveBothSizesAndIdsOfTheirOwn)
{
    WriteBytes(folder.File("VY_Icons.dat"), ReadBytes(VYPX_SHIPPED_DATA "/VY_Icons.dat"));

    ReadVYIconsIni(show);

    std::vector<std::string> ids;
    for (std::size_t i = 1; i < VYTable.size(); i += 2) {
        const std::string name = VYTable[i].name.substr(0, VYTable[i].name.find(" ("));
        EXPECT_EQ(VYTable[i].name, name + " (Large Icon)");
        ASSERT_LT(i + 1, VYTable.size());
        EXPECT_EQ(VYTable[i + 1].name, name + " (Small Icon)");
        for (const std::size_t row : { i, i + 1 }) {
            const int id = cInifile::CLngDefault(VYTable[row].id, 0);
            EXPECT_TRUE(id >= 2000 && id <= 2099) << VYTable[row].name;
            ids.push_back(VYTable[row].id);
        }
    }
    std::sort(ids.begin(), ids.end());
    EXPECT_EQ(std::adjacent_find(ids.begin(), ids.end()), ids.end()) << "an ID stands twice";
}

} // namespace
} // namespace vypx::test
