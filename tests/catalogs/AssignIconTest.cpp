#include "support/RowsFixture.h"

/// What Assign and Change do to rows, nodes and owners. What becomes of files is in
/// AssignFilesTest.cpp.
namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

constexpr const char* Orphan = "tAIB3500 (Orphan) ";

class AssignIcon : public RowsFixture {
protected:
    /// An orphan with both pictures, marked as a load leaves it.
    void AddOrphan(const std::string& key = "tAIB3500", const std::string& label = Orphan)
    {
        AddRow(label, key, KindDelete, 0);
        Fill(SlotLG, label, Red);
        Fill(SlotSM, label, Blue);
        IconsetChanged = false;
    }
    static RowsOutcome Assign(const std::string& selected, Catalog catalog,
        const std::string& entry, SizeClass size = SizeClass::Large)
    {
        return ApplyAssignIcon(Request(selected, catalog, entry, size));
    }
    void ExpectRefused(const AssignRequest& request, const std::string& message)
    {
        const auto before = State();
        ExpectStopped(ApplyAssignIcon(request), message);
        EXPECT_EQ(State(), before);
        EXPECT_FALSE(IconsetChanged);
    }
};

TEST_F(AssignIcon, AnOrphanBecomesAnApplicationsAndKeepsItsKeyAndFiles)
{
    AddOrphan();
    const auto files = FilesBelow(folder.Path());
    const auto bitmaps = BitmapTable;

    const RowsOutcome outcome = Assign(Orphan, Catalog::Apps, "Beta Panel");

    ExpectDone(outcome, "Beta Panel (Large Icon)");
    EXPECT_EQ(outcome.note, "");
    EXPECT_THAT(IconTable,
        ElementsAre(IconRow{ "Beta Panel (Large Icon)", "tAIB3500", "tAIB3500.bmp",
            "tAIB3500-d144.bmp", 1, "APP", { "panl", "BETA" } }));
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Beta Panel (Large Icon)", 2)));
    EXPECT_EQ(FilesBelow(folder.Path()), files);
    EXPECT_EQ(BitmapTable, bitmaps);
}

TEST_F(AssignIcon, AnOrphanBecomesASystemItems)
{
    AddOrphan();

    ExpectDone(
        Assign(Orphan, Catalog::Palm, "Palm Clock", SizeClass::Small), "Palm Clock (Small Icon)");

    EXPECT_EQ(IconTable[0].IconKind, "PALM");
    EXPECT_EQ(IconTable[0].owner, (Owner{ "appl", "clck" }));
    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB3500") << "its parity does not matter any more";
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Palm Clock (Small Icon)", 3)));
}

TEST_F(AssignIcon, AMarkedIconIsKeptFromThenOn)
{
    AddOrphan();

    Assign(Orphan, Catalog::Apps, "Alpha");

    EXPECT_FALSE(HasMarkedRows());
    EXPECT_EQ(Tree.Find("Alpha (Large Icon)")->image, ImageApp);
}

TEST_F(AssignIcon, OneOfTypeTbmpKeepsItsCellsAndIsNoted)
{
    AddOrphan("Tbmp3600", "Tbmp3600 (Orphan) ");
    const auto files = FilesBelow(folder.Path());
    const auto bitmaps = BitmapTable;

    const RowsOutcome outcome = Assign("Tbmp3600 (Orphan) ", Catalog::Apps, "Alpha");

    ExpectDone(outcome, "Alpha (Large Icon)");
    EXPECT_NE(outcome.note, "") << "a save can't tell whose it is";
    EXPECT_EQ(IconTable[0].ResourceKey, "Tbmp3600");
    EXPECT_EQ(IconTable[0].LowResFile, "Tbmp3600.bmp");
    EXPECT_EQ(IconTable[0].HighResFile, "Tbmp3600-d144.bmp");
    EXPECT_EQ(FilesBelow(folder.Path()), files);
    EXPECT_EQ(BitmapTable, bitmaps);
}

TEST_F(AssignIcon, AKeyThatASaveCanNotBindIsNoted)
{
    const auto noteFor = [&](const std::string& key) {
        AddRow("Candidate", key, KindUnknown);
        const RowsOutcome outcome = Assign("Candidate", Catalog::Apps, "Alpha");
        EXPECT_TRUE(outcome.isDone) << key;
        IconTable.clear();
        Tree.Clear();
        Tree.SetRoot(Root);
        return outcome.note;
    };

    EXPECT_NE(noteFor("tAIB3499"), "");
    EXPECT_EQ(noteFor("tAIB3500"), "");
    EXPECT_EQ(noteFor("tAIB9999"), "");
    EXPECT_NE(noteFor("tAIB10000"), "");
    EXPECT_NE(noteFor("Tbmp3500"), "");
}

TEST_F(AssignIcon, AnApplicationsIconChangesHandsWithoutANewKey)
{
    AddRow("Alpha (Large Icon)", "tAIB3504");
    Row("Alpha (Large Icon)").owner = { "appl", "ALPH" };
    Fill(SlotLG, "Alpha (Large Icon)", Red);

    ExpectDone(Assign("Alpha (Large Icon)", Catalog::Apps, "Gamma"), "Gamma (Large Icon)");

    EXPECT_EQ(IconTable[0],
        (IconRow{ "Gamma (Large Icon)", "tAIB3504", "NEW", "tAIB3504-d144.bmp", 1, "APP",
            { "appl", "GAMM" } }));
}

TEST_F(AssignIcon, OthersWithItsResourceStayAsTheyAre)
{
    AddOrphan();
    AddRow("Alpha (Large Icon)", "tAIB3500");
    IconTable[1].HighResFile = "tAIB3500-d144.bmp";
    const IconRow other = IconTable[1];

    Assign(Orphan, Catalog::Apps, "Gamma");

    EXPECT_EQ(IconTable[1], other);
    EXPECT_THAT(NodeKeys(), ElementsAre("Gamma (Large Icon)", "Alpha (Large Icon)"));
}

TEST_F(AssignIcon, TheKindIsThatOfTheCatalogWhereANameStandsInTwo)
{
    PalmTable.push_back({ "Alpha", "panl", "PALP", "" });
    AddOrphan();

    Assign(Orphan, Catalog::Palm, "Alpha");

    EXPECT_EQ(IconTable[0].IconKind, "PALM");
    EXPECT_EQ(IconTable[0].owner, (Owner{ "panl", "PALP" }));
    EXPECT_EQ(Nodes()[0].second, ImagePalm);
}

TEST_F(AssignIcon, AnIconOfTheLauncherHasTheEntrysIdAndNoOwner)
{
    AddRow("Alpha (Large Icon)", "tAIB3500");
    Row("Alpha (Large Icon)").owner = { "appl", "ALPH" };

    const RowsOutcome outcome =
        Assign("Alpha (Large Icon)", Catalog::Launcher, "Start (Large Icon)");

    ExpectDone(outcome, "Start (Large Icon)");
    EXPECT_EQ(outcome.note, "") << "nobody is its owner";
    EXPECT_THAT(IconTable,
        ElementsAre(IconRow{ "Start (Large Icon)", "tAIB2000", "NEW", "NEW", 1, "VY", {} }));
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Start (Large Icon)", 1)));
}

TEST_F(AssignIcon, OneOfTheLauncherBecomesAnotherOfTheLauncher)
{
    AddRow("Start (Large Icon)", "tAIB2000", KindVY);

    ExpectDone(Assign("Start (Large Icon)", Catalog::Launcher, "Files (Large Icon)"),
        "Files (Large Icon)");

    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB2002");
    EXPECT_EQ(IconTable[0].IconKind, "VY");
}

TEST_F(AssignIcon, TheIdIsTheOneInTheFileOfTheLauncher)
{
    WriteLauncherFile({ { "Start (Large Icon)", "2044" } });
    AddRow("Alpha (Large Icon)", "tAIB3500");

    Assign("Alpha (Large Icon)", Catalog::Launcher, "Start (Large Icon)");

    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB2044");
}

TEST_F(AssignIcon, WithoutADocumentNothingIsAssigned)
{
    AddOrphan();
    FileLoaded = false;

    ExpectRefused(Request(Orphan, Catalog::Apps, "Alpha"), "Error assigning icon to tree!");
    ExpectRefused(
        Request(Orphan, Catalog::Launcher, "Start (Large Icon)"), "Error assigning icon to tree!");
}

TEST_F(AssignIcon, WithoutACurrentEntryNothingIsAssigned)
{
    AddOrphan();

    for (const Catalog catalog : { Catalog::Apps, Catalog::Palm, Catalog::Launcher })
        ExpectRefused(Request(Orphan, catalog, ""), "Error adding icon.");
}

TEST_F(AssignIcon, WithoutASelectedIconNothingIsAssigned)
{
    AddOrphan();

    for (const char* selected : { "", Root, "Gone (Large Icon)" })
        ExpectRefused(Request(selected, Catalog::Apps, "Alpha"), "Error assigning icon to tree!");
    ExpectRefused(
        Request("", Catalog::Launcher, "Start (Large Icon)"), "Error assigning icon to tree!");
}

TEST_F(AssignIcon, ALabelThatTheTreeHasMeanwhileChangesNothing)
{
    AddOrphan();
    AddRow("Alpha (Large Icon)", "tAIB3502");
    AddRow("Start (Large Icon)", "tAIB2000", KindVY);
    const auto before = State();

    Assign(Orphan, Catalog::Apps, "Alpha");
    Assign(Orphan, Catalog::Launcher, "Start (Large Icon)");
    Tree.SetRoot("Gamma (Large Icon)");
    Assign(Orphan, Catalog::Apps, "Gamma");

    EXPECT_EQ(State(), before);
}

TEST_F(AssignIcon, NoTwoIconsOfTheLauncherGetOneKey)
{
    SetLauncher({ { "Start (Large Icon)", "2000" }, { "Begin (Large Icon)", "2000" } });
    AddOrphan();
    AddRow("Start (Large Icon)", "tAIB2000", KindVY);

    ExpectRefused(
        Request(Orphan, Catalog::Launcher, "Begin (Large Icon)"), "Error assigning VY icon.");
}

TEST_F(AssignIcon, AKeyThatAnOrphanHasIsNotGivenToAnother)
{
    AddOrphan();
    AddRow("tAIB2000 (Orphan) ", "tAIB2000", KindDelete, 0);

    ExpectRefused(
        Request(Orphan, Catalog::Launcher, "Start (Large Icon)"), "Error assigning VY icon.");
}

class NoIdInFile : public AssignIcon, public ::testing::WithParamInterface<const char*> { };

TEST_P(NoIdInFile, IsToldAndTheIconHasItsNewLabelAlready)
{
    SetLauncher({ { "Bad (Large Icon)", GetParam() } });
    AddOrphan();
    AddRow("Alpha (Large Icon)", "tAIB3502");
    const auto files = FilesBelow(folder.Path());
    const auto bitmaps = BitmapTable;
    const IconRow other = IconTable[1];

    ExpectStopped(
        Assign(Orphan, Catalog::Launcher, "Bad (Large Icon)"), "Error assigning VY icon.");

    EXPECT_THAT(Nodes(), ElementsAre(Pair("Bad (Large Icon)", 1), Pair("Alpha (Large Icon)", 2)));
    EXPECT_EQ(IconTable[0].IconLabel, "Bad (Large Icon)");
    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB3500");
    EXPECT_EQ(IconTable[0].LowResFile, "tAIB3500.bmp");
    EXPECT_EQ(IconTable[0].HighResFile, "tAIB3500-d144.bmp");
    EXPECT_EQ(IconTable[0].IconState, 1);
    EXPECT_EQ(IconTable[0].IconKind, "VY");
    EXPECT_EQ(IconTable[1], other);
    EXPECT_EQ(BitmapTable, bitmaps);
    EXPECT_EQ(FilesBelow(folder.Path()), files) << "nothing moved, in the working folder or beside";
    EXPECT_TRUE(IconsetChanged);
}

INSTANTIATE_TEST_SUITE_P(AssignIcon, NoIdInFile,
    ::testing::Values("", "abc", "../outside", "/2000", "\\2000", "-1", "70000"));

TEST_F(AssignIcon, AMissingFileOfTheLauncherHasNoIdEither)
{
    AddOrphan();
    std::filesystem::remove(folder.File("VY_Icons.dat"));

    ExpectStopped(
        Assign(Orphan, Catalog::Launcher, "Start (Large Icon)"), "Error assigning VY icon.");

    EXPECT_EQ(IconTable[0].IconLabel, "Start (Large Icon)");
    EXPECT_EQ(IconTable[0].ResourceKey, "tAIB3500");
    EXPECT_THAT(Nodes(), ElementsAre(Pair("Start (Large Icon)", 1)));
}

} // namespace
} // namespace vypx::test
