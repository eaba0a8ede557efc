#include "writer/SaveReport.h"

#include "support/CompileFixture.h"

#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class SaveReports : public Compiling {
protected:
    static SaveReport Save() { return CompileIconset(TargetFromFlags()); }

    /// Labels of the icons of one kind, once the saved file is open.
    std::vector<std::string> Opened(std::string_view kind)
    {
        EXPECT_EQ(Load(FileName), LoadResult::Opened);
        std::vector<std::string> labels;
        for (const IconRow& row : IconTable)
            if (row.IconKind == kind)
                labels.push_back(row.IconLabel);
        return labels;
    }
};

TEST_F(SaveReports, CountIconsThatTheNextLoadShowsAsOrphans)
{
    VYTable = { {}, { "Start (Large Icon)", "2000", "" } };
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("Alpha (Small Icon)", 3501, true, false, "APP", 1, "Tbmp");
    Add("Beta (Large Icon)", 3499, true, false);
    Add("Beta (Small Icon)", 10000, false, true);
    Add("Start (Large Icon)", 2000, true, false, "VY", 1, "Tbmp");
    Add("tAIB3600 (Orphan) ", 3600, true, false, "DELETE");
    Add("tAIB3601 (Orphan) ", 3601, true, false, "DELETE", 0);
    Add("Palm Clock (Large Icon)", 3700, false, false, "PALM");

    const SaveReport told = Save();

    EXPECT_EQ(told.orphans, 4);
    EXPECT_EQ(told.unknown, 0);
    EXPECT_EQ(NoteOf(told),
        "4 icons will be orphans when this file is opened: its index of applications does not name "
        "them.");
    EXPECT_THAT(Opened("DELETE"),
        UnorderedElementsAre("Tbmp3501 (Orphan) ", "tAIB3499 (Orphan) ", "tAIB10000 (Orphan) ",
            "tAIB3600 (Orphan) "));
}

TEST_F(SaveReports, CountAPictureThatIconsShareOnce)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("Beta (Large Icon)", 3400, true, false);
    Add("Palm Clock (Large Icon)", 3400, true, false, "PALM");

    const SaveReport told = Save();

    EXPECT_EQ(NoteOf(told),
        "1 icon will be an orphan when this file is opened: its index of applications does not "
        "name it.");
    EXPECT_EQ(Opened("DELETE").size(), 1u);
}

TEST_F(SaveReports, CountIconsThatAFileWithoutAnIndexMakesUnknown)
{
    Add("Alpha (Large Icon)", 3500, true, false, "APP", 1, "Tbmp");
    Add("Beta (Large Icon)", 3499, true, false);
    Add("tAIB3300 () ", 3300, true, false, "UNKNOWN");

    const SaveReport told = Save();

    EXPECT_EQ(told.orphans, 0);
    EXPECT_EQ(NoteOf(told),
        "2 icons will be unknown when this file is opened: it has no index of applications.");
    EXPECT_THAT(
        Opened("UNKNOWN"), UnorderedElementsAre("Tbmp3500 () ", "tAIB3499 () ", "tAIB3300 () "));
}

TEST_F(SaveReports, HaveNothingToTellOfAnIconsetThatComesBackAsItIs)
{
    Itbl = { {}, { "appl", "UNKN", 3502, 0 } };
    Add("Alpha (Large Icon)", 3500, true, false);
    Add("Palm Clock (Small Icon)", 3501, true, true, "PALM");
    Add("tAIB3502 (UNKN - Large) ", 3502, true, false, "UNKNOWN");

    const SaveReport told = Save();

    EXPECT_EQ(NoteOf(told), "");
    EXPECT_THAT(Opened("DELETE"), IsEmpty());
}

TEST_F(SaveReports, TellOfASetWithoutAName)
{
    Add("Alpha (Large Icon)", 3500, true, false);
    DatabaseName.clear();

    EXPECT_EQ(NoteOf(Save()), "The iconset has no Palm database name.");
}

/// Opened while the catalog named them; then the catalog file lost one.
TEST_F(SaveReports, CountIconsWhoseApplicationTheCatalogNamesNoMore)
{
    Open(Iconset{ .name = "Set",
        .resources = { test::Index({ IndexRecord("appl", "ALPH", 3500, 3501),
                           IndexRecord("panl", "B   ", 3502, 0) }),
            Icon(3500), Icon(3501), Icon(3502) } }
             .File());
    WriteText(folder.File("AppList.dat"), "[Beta]\nType=panl\nCreator={B   }\n");
    FileName = folder.File("out.prc");

    const SaveReport told = Save();

    EXPECT_EQ(told.orphans, 0);
    EXPECT_EQ(NoteOf(told),
        "2 icons keep their application as it was: the catalogs do not name it any more.");
    EXPECT_THAT(Opened("APP"),
        UnorderedElementsAre("Alpha (Large Icon)", "Alpha (Small Icon)", "Beta (Large Icon)"));
}

TEST_F(SaveReports, TellAllInOneText)
{
    EXPECT_EQ(NoteOf({ .orphans = 1, .ownersFromRows = 1, .withoutName = true }),
        "1 icon will be an orphan when this file is opened: its index of applications does not "
        "name it. 1 icon keeps its application as it was: the catalogs do not name it any "
        "more. The iconset has no Palm database name.");
}

} // namespace
} // namespace vypx::test
