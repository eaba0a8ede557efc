#include "catalogs/AvailableIcons.h"

#include "support/RowsFixture.h"

namespace vypx::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr SizeClass Both[] = { SizeClass::Large, SizeClass::Small };
constexpr Catalog Sources[] = { Catalog::Apps, Catalog::Palm, Catalog::Launcher };

std::vector<std::string> NamesOf(const std::vector<AvailableIcon>& icons)
{
    std::vector<std::string> names;
    for (const AvailableIcon& icon : icons)
        names.push_back(icon.name);
    return names;
}

class AvailableIcons : public RowsFixture {
protected:
    using Waiting = std::vector<std::string>;
    const Waiting none;
    const PictureInHand noPicture;

    std::vector<std::string> Apps(SizeClass size) { return NamesOf(FilterAppCombo(size, none)); }
    std::vector<std::string> Launcher(SizeClass size, const PictureInHand& inHand = {})
    {
        return NamesOf(FilterVYCombo(size, none, inHand));
    }
};

TEST_F(AvailableIcons, AreAllEntriesInTheCatalogsOrderWithTheirOwners)
{
    EXPECT_THAT(FillAppCombo(),
        ElementsAre(AvailableIcon{ "Alpha", "appl", "ALPH", "" },
            AvailableIcon{ "Beta Panel", "panl", "BETA", "" },
            AvailableIcon{ "Gamma", "appl", "GAMM", "" }));
    EXPECT_THAT(FillPalmCombo(),
        ElementsAre(AvailableIcon{ "Palm Clock", "appl", "clck", "" },
            AvailableIcon{ "Palm Prefs", "panl", "pref", "" }));
    EXPECT_THAT(FillVYCombo(),
        ElementsAre(AvailableIcon{ "Start (Large Icon)", "", "", "2000" },
            AvailableIcon{ "Start (Small Icon)", "", "", "2001" },
            AvailableIcon{ "Files (Large Icon)", "", "", "2002" },
            AvailableIcon{ "Files (Small Icon)", "", "", "2003" }));
}

TEST_F(AvailableIcons, AreNotSorted)
{
    AppTable = { {}, { "Zeta", "appl", "ZETA", "" }, { "Eta", "appl", "ETA ", "" } };

    EXPECT_THAT(NamesOf(FillAppCombo()), ElementsAre("Zeta", "Eta"));
    EXPECT_THAT(Apps(SizeClass::Large), ElementsAre("Zeta", "Eta"));
}

TEST_F(AvailableIcons, LeaveEntriesWithoutANameOut)
{
    AppTable = { {}, { "", "appl", "NONE", "" }, { "Alpha", "appl", "ALPH", "" } };
    PalmTable = { {}, { "", "appl", "NONE", "" } };
    VYTable = { {}, { "", "2000", "" }, { "Start (Large Icon)", "2000", "" } };

    EXPECT_THAT(NamesOf(FillAppCombo()), ElementsAre("Alpha"));
    EXPECT_THAT(FillPalmCombo(), IsEmpty());
    EXPECT_THAT(NamesOf(FillVYCombo()), ElementsAre("Start (Large Icon)"));
    for (const SizeClass size : Both) {
        EXPECT_THAT(Apps(size), ElementsAre("Alpha"));
        EXPECT_THAT(FilterPalmCombo(size, none), IsEmpty());
    }
    EXPECT_THAT(Launcher(SizeClass::Small), IsEmpty());
    FileLoaded = false;
    EXPECT_THAT(Apps(SizeClass::Large), ElementsAre("Alpha"));
}

TEST_F(AvailableIcons, AnEmptyCatalogOffersNothing)
{
    ResetCatalogs();

    for (const Catalog catalog : Sources)
        EXPECT_THAT(FilterCombo(catalog, SizeClass::Large, none, noPicture), IsEmpty());
}

TEST_F(AvailableIcons, AnApplicationInTheDocumentIsOfferedForItsOtherSizeOnly)
{
    AddRow("Alpha (Large Icon)", "tAIB3500");

    EXPECT_THAT(Apps(SizeClass::Large), ElementsAre("Beta Panel", "Gamma"));
    EXPECT_THAT(Apps(SizeClass::Small), ElementsAre("Alpha", "Beta Panel", "Gamma"));
}

TEST_F(AvailableIcons, ASystemItemInTheDocumentIsOfferedForItsOtherSizeOnly)
{
    AddRow("Palm Prefs (Small Icon)", "tAIB3501", KindPalm);

    EXPECT_THAT(NamesOf(FilterPalmCombo(SizeClass::Small, none)), ElementsAre("Palm Clock"));
    EXPECT_THAT(
        NamesOf(FilterPalmCombo(SizeClass::Large, none)), ElementsAre("Palm Clock", "Palm Prefs"));
}

TEST_F(AvailableIcons, AnIconThatIsMarkedForRemovalIsStillInTheDocument)
{
    AddRow("Alpha (Large Icon)", "tAIB3500", KindApp, 0);

    EXPECT_THAT(Apps(SizeClass::Large), ElementsAre("Beta Panel", "Gamma"));
}

TEST_F(AvailableIcons, CaseCountsWhereALabelIsLookedFor)
{
    AddRow("ALPHA (Large Icon)", "tAIB3500");

    EXPECT_THAT(Apps(SizeClass::Large), ElementsAre("Alpha", "Beta Panel", "Gamma"));
}

TEST_F(AvailableIcons, ANameThatBeginsALongerLabelIsNotTaken)
{
    AddRow("Alpha Beta (Large Icon)", "tAIB3500");
    AddRow("tAIB3501 (ALPH - Large) ", "tAIB3501", KindUnknown);

    EXPECT_THAT(Apps(SizeClass::Large), ElementsAre("Alpha", "Beta Panel", "Gamma"));
}

TEST_F(AvailableIcons, WhatWaitsToBeAddedIsNotOfferedForThatSize)
{
    const Waiting added{ "Gamma (Large Icon)", "Palm Clock (Small Icon)", "Start (Large Icon)" };

    EXPECT_THAT(
        NamesOf(FilterAppCombo(SizeClass::Large, added)), ElementsAre("Alpha", "Beta Panel"));
    EXPECT_THAT(NamesOf(FilterAppCombo(SizeClass::Small, added)),
        ElementsAre("Alpha", "Beta Panel", "Gamma"));
    EXPECT_THAT(NamesOf(FilterPalmCombo(SizeClass::Small, added)), ElementsAre("Palm Prefs"));
    EXPECT_THAT(NamesOf(FilterVYCombo(SizeClass::Large, added, noPicture)),
        ElementsAre("Files (Large Icon)"));
    EXPECT_THAT(NamesOf(FilterVYCombo(SizeClass::Small, added, noPicture)),
        ElementsAre("Start (Small Icon)", "Files (Small Icon)"));
}

TEST_F(AvailableIcons, OfTheLauncherAreThoseOfOneSize)
{
    EXPECT_THAT(
        Launcher(SizeClass::Large), ElementsAre("Start (Large Icon)", "Files (Large Icon)"));
    EXPECT_THAT(
        Launcher(SizeClass::Small), ElementsAre("Start (Small Icon)", "Files (Small Icon)"));
}

TEST_F(AvailableIcons, OfTheLauncherAreThoseThatTheDocumentLacks)
{
    AddRow("Start (Large Icon)", "tAIB2000", KindVY);

    EXPECT_THAT(Launcher(SizeClass::Large), ElementsAre("Files (Large Icon)"));
    EXPECT_THAT(
        Launcher(SizeClass::Small), ElementsAre("Start (Small Icon)", "Files (Small Icon)"));
}

TEST_F(AvailableIcons, AnEntryOfTheLauncherWithoutASizeGoesWithBoth)
{
    SetLauncher({ { "Start (Large Icon)", "2000" }, { "Category", "2010" } });

    EXPECT_THAT(Launcher(SizeClass::Large), ElementsAre("Start (Large Icon)", "Category"));
    EXPECT_THAT(Launcher(SizeClass::Small), ElementsAre("Category"));
    EXPECT_THAT(Launcher(SizeClass::Small, { true, { 64, 44 } }), ElementsAre("Category"));
}

TEST_F(AvailableIcons, APictureUpTo44By22CanBecomeASmallIconOfTheLauncher)
{
    const auto offered = [&](int width, int height) {
        return Launcher(SizeClass::Small, { true, { width, height } }).size();
    };

    EXPECT_EQ(offered(44, 22), 2u);
    EXPECT_EQ(offered(45, 22), 0u);
    EXPECT_EQ(offered(44, 23), 0u);
    EXPECT_EQ(offered(0, 0), 2u) << "there is no picture";
    EXPECT_THAT(Launcher(SizeClass::Large, { true, { 64, 44 } }),
        ElementsAre("Start (Large Icon)", "Files (Large Icon)"));
}

TEST_F(AvailableIcons, APictureOnShowPlaysNoPartWhereIconsAreAdded)
{
    EXPECT_EQ(Launcher(SizeClass::Small, { false, { 64, 44 } }).size(), 2u);
}

TEST_F(AvailableIcons, WithoutADocumentAreTheWholeCatalogs)
{
    const Waiting added{ "Alpha (Large Icon)", "Palm Clock (Small Icon)", "Start (Large Icon)" };
    AddRow("Gamma (Large Icon)", "tAIB3500");
    FileLoaded = false;

    for (const SizeClass size : Both) {
        EXPECT_EQ(FilterAppCombo(size, added), FillAppCombo());
        EXPECT_EQ(FilterPalmCombo(size, added), FillPalmCombo());
        EXPECT_EQ(FilterVYCombo(size, added, { true, { 64, 44 } }), FillVYCombo());
        EXPECT_EQ(FilterCombo(Catalog::Apps, size, added, noPicture), FillAppCombo());
        EXPECT_EQ(FilterCombo(Catalog::Palm, size, added, noPicture), FillPalmCombo());
        EXPECT_EQ(FilterCombo(Catalog::Launcher, size, added, noPicture), FillVYCombo());
    }
}

TEST_F(AvailableIcons, EachCatalogHasItsOwnFilter)
{
    AddRow("Alpha (Small Icon)", "tAIB3501");
    AddRow("Palm Clock (Small Icon)", "tAIB3503", KindPalm);
    const PictureInHand wide{ true, { 45, 1 } };

    for (const SizeClass size : Both) {
        EXPECT_EQ(FilterCombo(Catalog::Apps, size, none, wide), FilterAppCombo(size, none));
        EXPECT_EQ(FilterCombo(Catalog::Palm, size, none, wide), FilterPalmCombo(size, none));
        EXPECT_EQ(
            FilterCombo(Catalog::Launcher, size, none, wide), FilterVYCombo(size, none, wide));
    }
}

TEST_F(AvailableIcons, APictureUpTo32By22CanBeThatOfASmallIcon)
{
    EXPECT_TRUE(CanBeSmall({ 32, 22 }));
    EXPECT_FALSE(CanBeSmall({ 33, 22 }));
    EXPECT_FALSE(CanBeSmall({ 32, 23 }));
    EXPECT_TRUE(CanBeSmall({})) << "no picture can";
}

TEST_F(AvailableIcons, OfApplicationsGetTheirLabelsBySizeThoseOfTheLauncherHaveThem)
{
    EXPECT_EQ(LabelOfEntry(Catalog::Apps, SizeClass::Large, "Alpha"), "Alpha (Large Icon)");
    EXPECT_EQ(LabelOfEntry(Catalog::Palm, SizeClass::Small, "Clock"), "Clock (Small Icon)");
    EXPECT_EQ(LabelOfEntry(Catalog::Launcher, SizeClass::Small, "Start (Large Icon)"),
        "Start (Large Icon)");
}

TEST_F(AvailableIcons, BothSizesAreListedLargeBeforeSmall)
{
    EXPECT_THAT(LabelsInBothSizes(Catalog::Apps, "Alpha", none),
        ElementsAre("Alpha (Large Icon)", "Alpha (Small Icon)"));
    EXPECT_THAT(LabelsInBothSizes(Catalog::Palm, "Palm Clock", none),
        ElementsAre("Palm Clock (Large Icon)", "Palm Clock (Small Icon)"));
    for (const char* entry : { "Start (Large Icon)", "Start (Small Icon)" })
        EXPECT_THAT(LabelsInBothSizes(Catalog::Launcher, entry, none),
            ElementsAre("Start (Large Icon)", "Start (Small Icon)"));
}

TEST_F(AvailableIcons, BothSizesOfTheLauncherAreThoseThatItLists)
{
    SetLauncher({ { "Back (Small Icon)", "2005" }, { "Start (Small Icon)", "2001" },
        { "Start (Large Icon)", "2000" }, { "Home (Large Icon)", "2008" } });

    EXPECT_THAT(LabelsInBothSizes(Catalog::Launcher, "Back (Small Icon)", none),
        ElementsAre("Back (Small Icon)"));
    EXPECT_THAT(LabelsInBothSizes(Catalog::Launcher, "Home (Large Icon)", none),
        ElementsAre("Home (Large Icon)"));
    EXPECT_THAT(LabelsInBothSizes(Catalog::Launcher, "Start (Small Icon)", none),
        ElementsAre("Start (Large Icon)", "Start (Small Icon)"))
        << "whatever the catalog's order";
}

TEST_F(AvailableIcons, BothSizesLeaveOutWhatTheDocumentHasOrWhatWaits)
{
    AddRow("Alpha (Large Icon)", "tAIB3500");
    AddRow("Start (Small Icon)", "tAIB2001", KindVY, 0);
    const Waiting added{ "Gamma (Small Icon)", "Files (Large Icon)" };

    EXPECT_THAT(
        LabelsInBothSizes(Catalog::Apps, "Alpha", added), ElementsAre("Alpha (Small Icon)"));
    EXPECT_THAT(
        LabelsInBothSizes(Catalog::Apps, "Gamma", added), ElementsAre("Gamma (Large Icon)"));
    EXPECT_THAT(LabelsInBothSizes(Catalog::Launcher, "Start (Large Icon)", added),
        ElementsAre("Start (Large Icon)"));
    EXPECT_THAT(LabelsInBothSizes(Catalog::Launcher, "Files (Large Icon)", added),
        ElementsAre("Files (Small Icon)"));
    AddRow("Alpha (Small Icon)", "tAIB3503");
    EXPECT_THAT(LabelsInBothSizes(Catalog::Apps, "Alpha", added), IsEmpty());
}

} // namespace
} // namespace vypx::test
