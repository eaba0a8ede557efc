#include "document/IconStats.h"

#include "document/Document.h"
#include "support/LoadFixture.h"

namespace vypx::test {

namespace {

class IconStats : public LoadFixture {
protected:
    IconStats()
    {
        FileLoaded = true;
        IconTable.clear();
    }

    static void Add(const std::string& label, const std::string& low, const std::string& high,
        std::optional<int> state = 1)
    {
        IconTable.push_back({ label, "tAIB1", low, high, state, "APP" });
        Tree.Add({ .key = label });
    }
};

TEST_F(IconStats, CountsSizesAndPicturesByTheLabel)
{
    Add("A (Large Icon)", "a.bmp", "NEW");
    Add("A (Small Icon)", "NEW", "b.bmp");
    Add("B (Small Icon)", "c.bmp", "c-d144.bmp");

    CountIcons();

    EXPECT_EQ(StatTotal, 3);
    EXPECT_EQ(StatLarge, 1);
    EXPECT_EQ(StatSmall, 2);
    EXPECT_EQ(StatLowRes, 2);
    EXPECT_EQ(StatHighRes, 2);
    EXPECT_EQ(StatUnknown, 0);
}

TEST_F(IconStats, OnPurposeNewCountsAsAPictureOfAnUnknownIcon)
{
    Add("tAIB1 () ", "NEW", "NEW");

    CountIcons();

    EXPECT_EQ(StatUnknown, 1);
}

TEST_F(IconStats, ARowMarkedForDeletionCountsNowhereButCanBeCleared)
{
    Add("A (Large Icon)", "a.bmp", "NEW", 0);

    CountIcons();

    EXPECT_EQ(StatTotal, 0);
    EXPECT_TRUE(StatDeletable);
}

TEST_F(IconStats, NothingToClearWithoutAMarkedRow)
{
    Add("A (Large Icon)", "a.bmp", "NEW");

    CountIcons();

    EXPECT_FALSE(StatDeletable);
}

TEST_F(IconStats, ARowWithoutAStateIsPassedOver)
{
    Add("A (Large Icon)", "a.bmp", "NEW", std::nullopt);

    CountIcons();

    EXPECT_EQ(StatTotal, 0);
    EXPECT_FALSE(StatDeletable);
}

TEST_F(IconStats, KeptRowsWithoutPicturesAreBlueOthersBlack)
{
    Add("Empty (Large Icon)", "NEW", "");
    Add("Full (Large Icon)", "NEW", "f.bmp");
    Tree.Find("Full (Large Icon)")->colour = Red;

    CountIcons();

    EXPECT_EQ(Tree.Find("Empty (Large Icon)")->colour, Blue);
    EXPECT_EQ(Tree.Find("Full (Large Icon)")->colour, Black);
}

TEST_F(IconStats, AMarkedRowKeepsItsColour)
{
    Add("tAIB1 (Orphan) ", "NEW", "NEW", 0);
    Tree.Find("tAIB1 (Orphan) ")->colour = Red;

    CountIcons();

    EXPECT_EQ(Tree.Find("tAIB1 (Orphan) ")->colour, Red);
}

TEST_F(IconStats, WithoutADocumentAllCountersAreZero)
{
    Add("A (Large Icon)", "a.bmp", "a-d144.bmp");
    FileLoaded = false;

    CountIcons();

    EXPECT_EQ(StatTotal + StatLarge + StatSmall + StatHighRes + StatLowRes + StatUnknown, 0);
}

} // namespace
} // namespace vypx::test
