#include "support/RowsFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

constexpr const char* Source = "Alpha (Large Icon)";

class ShareIcon : public RowsFixture {
protected:
    ShareIcon()
    {
        AddRow(Source, "tAIB3500");
        Fill(SlotLG, Source, Red);
        Fill(SlotSM, Source, Blue);
        IconsetChanged = false;
    }

    static RowsOutcome Share(const std::string& selected, Catalog catalog, const std::string& entry,
        SizeClass size = SizeClass::Large)
    {
        return ApplyShareIcon(Request(selected, catalog, entry, size));
    }
    /// Shares an icon with that key and tells what the user reads besides.
    std::string NoteFor(const std::string& key, std::string_view kind)
    {
        AddRow("Lender", key, kind);
        const RowsOutcome outcome = Share("Lender", Catalog::Apps, "Gamma");
        ExpectDone(outcome, "Gamma (Large Icon)");
        return outcome.note;
    }
    void ExpectRefused(const RowsOutcome& outcome, const std::string& message)
    {
        ExpectStopped(outcome, message);
        EXPECT_EQ(IconTable.size(), 1u);
        EXPECT_THAT(NodeKeys(), ElementsAre(Source));
        EXPECT_FALSE(IconsetChanged);
    }
};

TEST_F(ShareIcon, TheNewRowHasTheResourceAndThePicturesOfItsSource)
{
    const IconRow source = IconTable[0];
    const auto files = FilesBelow(folder.Path());
    const auto bitmaps = BitmapTable;

    const RowsOutcome outcome = Share(Source, Catalog::Apps, "Gamma");

    ExpectDone(outcome, "Gamma (Large Icon)");
    EXPECT_EQ(outcome.note, "");
    EXPECT_THAT(IconTable,
        ElementsAre(source,
            IconRow{ "Gamma (Large Icon)", "tAIB3500", "tAIB3500.bmp", "tAIB3500-d144.bmp", 1,
                "APP", { "appl", "GAMM" } }));
    EXPECT_THAT(Nodes(), ElementsAre(Pair(Source, 2), Pair("Gamma (Large Icon)", 2)));
    EXPECT_EQ(FilesBelow(folder.Path()), files);
    EXPECT_EQ(BitmapTable, bitmaps);
}

TEST_F(ShareIcon, ASystemItemMakesARowOfKindPalm)
{
    ExpectDone(
        Share(Source, Catalog::Palm, "Palm Prefs", SizeClass::Small), "Palm Prefs (Small Icon)");

    EXPECT_EQ(IconTable.back().IconKind, "PALM");
    EXPECT_EQ(IconTable.back().owner, (Owner{ "panl", "pref" }));
    EXPECT_EQ(IconTable.back().ResourceKey, "tAIB3500");
    EXPECT_THAT(Nodes(), ElementsAre(Pair(Source, 2), Pair("Palm Prefs (Small Icon)", 3)));
}

TEST_F(ShareIcon, ANameOfBothCatalogsIsAnApplications)
{
    PalmTable.push_back({ "Gamma", "panl", "PGAM", "" });

    Share(Source, Catalog::Palm, "Gamma");

    EXPECT_EQ(IconTable.back().IconKind, "APP");
    EXPECT_EQ(IconTable.back().owner, (Owner{ "appl", "GAMM" }));
}

TEST_F(ShareIcon, ASlotWithoutAPictureIsSharedAsWell)
{
    IconTable[0].LowResFile = "NEW";

    Share(Source, Catalog::Apps, "Gamma");

    EXPECT_EQ(IconTable.back().LowResFile, "NEW");
    EXPECT_EQ(IconTable.back().HighResFile, "tAIB3500-d144.bmp");
}

TEST_F(ShareIcon, WhatIsSharedFromAMarkedIconIsKept)
{
    IconTable[0].IconState = 0;

    Share(Source, Catalog::Apps, "Gamma");

    EXPECT_EQ(IconTable[0].IconState, 0);
    EXPECT_EQ(IconTable[1].IconState, 1);
    EXPECT_EQ(Tree.Find("Gamma (Large Icon)")->image, ImageApp);
}

TEST_F(ShareIcon, TheLauncherCanNotBeTheOwner)
{
    ExpectRefused(
        Share(Source, Catalog::Launcher, "Start (Large Icon)"), "Error assigning icon to tree!");
}

TEST_F(ShareIcon, ANameOfNoCatalogIsTold)
{
    ExpectRefused(Share(Source, Catalog::Apps, "Nobody"), "Error assigning icon to tree!");
}

TEST_F(ShareIcon, WithoutACurrentEntryNothingIsShared)
{
    ExpectRefused(Share(Source, Catalog::Apps, ""), "Error adding icon.");
}

TEST_F(ShareIcon, WithoutASelectedIconNothingIsShared)
{
    ExpectRefused(Share("", Catalog::Apps, "Gamma"), "Error assigning icon to tree!");
    ExpectRefused(Share(Root, Catalog::Apps, "Gamma"), "Error assigning icon to tree!");
    ExpectRefused(
        Share("Gone (Large Icon)", Catalog::Apps, "Gamma"), "Error assigning icon to tree!");
}

TEST_F(ShareIcon, WithoutADocumentNothingIsShared)
{
    FileLoaded = false;

    ExpectRefused(Share(Source, Catalog::Apps, "Gamma"), "Error assigning icon to tree!");
}

TEST_F(ShareIcon, ALabelThatTheTreeHasMeanwhileChangesNothing)
{
    AddRow("Gamma (Large Icon)", "tAIB3502");
    const auto before = State();

    Share(Source, Catalog::Apps, "Gamma");
    Share(Source, Catalog::Apps, "Alpha");

    EXPECT_EQ(State(), before);
}

TEST_F(ShareIcon, AnIconCanLendToManyAndTheyToOthers)
{
    Share(Source, Catalog::Apps, "Gamma");
    Share("Gamma (Large Icon)", Catalog::Palm, "Palm Clock");
    Share(Source, Catalog::Apps, "Alpha", SizeClass::Small);

    EXPECT_THAT(Labels(),
        ElementsAre(Source, "Gamma (Large Icon)", "Palm Clock (Large Icon)", "Alpha (Small Icon)"));
    for (const IconRow& row : IconTable) {
        EXPECT_EQ(row.ResourceKey, "tAIB3500");
        EXPECT_EQ(row.LowResFile, "tAIB3500.bmp");
        EXPECT_EQ(row.HighResFile, "tAIB3500-d144.bmp");
    }
}

TEST_F(ShareIcon, AKeyThatASaveCanNotBindIsNoted)
{
    EXPECT_NE(NoteFor("Tbmp3600", KindUnknown), "");
}

TEST_F(ShareIcon, AnIdBelow3500IsNoted) { EXPECT_NE(NoteFor("tAIB3499", KindUnknown), ""); }

TEST_F(ShareIcon, AnIdAbove9999IsNoted) { EXPECT_NE(NoteFor("tAIB10000", KindUnknown), ""); }

TEST_F(ShareIcon, AnIconOfTheLauncherLendsAKeyThatIsNoted)
{
    EXPECT_NE(NoteFor("tAIB2000", KindVY), "");
}

TEST_F(ShareIcon, TheFirstAndTheLastIdOfTheRangeAreBound)
{
    EXPECT_EQ(NoteFor("tAIB9999", KindUnknown), "");
    IconTable[0].ResourceKey = "tAIB3500";
    EXPECT_EQ(Share(Source, Catalog::Palm, "Palm Clock").note, "");
}

} // namespace
} // namespace vypx::test
