#include "document/Labels.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(Labels, OfACatalogSayNameAndSize)
{
    EXPECT_EQ(LabelOf("Fern", SizeClass::Large), "Fern (Large Icon)");
    EXPECT_EQ(LabelOf("Fern", SizeClass::Small), "Fern (Small Icon)");
    EXPECT_EQ(NameInLabel("Fern (Small Icon)"), "Fern");
    EXPECT_EQ(NameInLabel("short"), "");
}

TEST(Labels, OfNoCatalogSayResourceAndNoteAndEndInABlank)
{
    EXPECT_EQ(UnmatchedLabel("tAIB3601", OwnerNote("ABCD", SizeClass::Large)),
        "tAIB3601 (ABCD - Large) ");
    EXPECT_EQ(UnmatchedLabel("tAIB3601", OrphanNote), "tAIB3601 (Orphan) ");
    EXPECT_EQ(UnmatchedLabel("tAIB3601", ""), "tAIB3601 () ");
    EXPECT_TRUE(IsOrphanLabel("tAIB3601 (Orphan) "));
    EXPECT_TRUE(NamesItsResource("tAIB3601 () "));
    EXPECT_FALSE(NamesItsResource("Fern (Large Icon)"));
}

TEST(Labels, SmallWinsWhereALabelHoldsBothWords)
{
    EXPECT_EQ(SizeToImport("Large Print (Small Icon)"), SizeClass::Small);
    EXPECT_EQ(SizeToImport("Small Talk (Large Icon)"), SizeClass::Small);
    EXPECT_EQ(SizeToImport("tAIB3601 (ABCD - Large) "), SizeClass::Large);
    EXPECT_EQ(SizeToImport("All Applications"), std::nullopt);
    EXPECT_EQ(SizeToImport("large"), std::nullopt) << "case counts";
}

TEST(Labels, CountingLooksAtTheWholeWords)
{
    EXPECT_TRUE(CountsAs(SizeClass::Large, "Fern (Large Icon"));
    EXPECT_FALSE(CountsAs(SizeClass::Large, "Fern (Large)"));
    EXPECT_FALSE(CountsAs(SizeClass::Small, "Fern (Large Icon)"));
    EXPECT_FALSE(SaysItsSize("Fern (Large Icon")) << "without its bracket";
    EXPECT_TRUE(SaysItsSize("Fern (Large Icon)"));
    EXPECT_FALSE(SaysItsSize("tAIB3601 (ABCD - Large) "));
}

TEST(Labels, AnUnknownIconIsLargeInTheIndexOnlyWhereSuchAreKept)
{
    EXPECT_EQ(SizeInIndex("tAIB3601 (ABCD - Large) ", true), SizeClass::Large);
    EXPECT_EQ(SizeInIndex("tAIB3601 (ABCD - Large) ", false), SizeClass::Small);
    EXPECT_EQ(SizeInIndex("Fern (Large Icon)", false), SizeClass::Large);
    EXPECT_EQ(SizeInIndex("Fern (Small Icon)", true), SizeClass::Small);
}

} // namespace
} // namespace vypx::test
