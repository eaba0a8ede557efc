#include "document/IconTree.h"
#include "document/IconKinds.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(IconTree, RefusesAKeyThatANodeHas)
{
    IconTree tree;
    tree.SetRoot("Icons");

    EXPECT_TRUE(tree.Add({ .key = "A" }));
    EXPECT_FALSE(tree.Add({ .key = "A" }));
    EXPECT_EQ(tree.Nodes().size(), 1u);
}

TEST(IconTree, RefusesTheRootsKey)
{
    IconTree tree;
    tree.SetRoot("Icons");

    EXPECT_FALSE(tree.Add({ .key = "Icons" }));
}

TEST(IconTree, FindsNodesByTheirKey)
{
    IconTree tree;
    tree.Add({ .key = "A", .image = ImageVY });

    ASSERT_NE(tree.Find("A"), nullptr);
    EXPECT_EQ(tree.Find("A")->image, ImageVY);
    EXPECT_EQ(tree.Find("a"), nullptr);
}

TEST(IconTree, ClearingTakesRootAndNodes)
{
    IconTree tree;
    tree.SetRoot("Icons");
    tree.Add({ .key = "A" });

    tree.Clear();

    EXPECT_FALSE(tree.HasRoot());
    EXPECT_TRUE(tree.Nodes().empty());
    EXPECT_TRUE(tree.Add({ .key = "A" }));
}

TEST(IconTree, AReplacedNodeStandsInThePlaceOfTheOldOne)
{
    IconTree tree;
    tree.SetRoot("Icons");
    for (const char* key : { "A", "B", "C" })
        tree.Add({ .key = key, .image = ImageDelete, .colour = Red });

    EXPECT_TRUE(tree.Replace("B", { .key = "D", .image = ImageApp }));

    ASSERT_EQ(tree.Nodes().size(), 3u);
    EXPECT_EQ(tree.Nodes()[0].key, "A");
    EXPECT_EQ(tree.Nodes()[1].key, "D");
    EXPECT_EQ(tree.Nodes()[1].image, ImageApp);
    EXPECT_EQ(tree.Nodes()[1].colour, Black);
    EXPECT_EQ(tree.Nodes()[2].key, "C");
    EXPECT_EQ(tree.Find("B"), nullptr);
    ASSERT_NE(tree.Find("D"), nullptr);
    EXPECT_EQ(tree.Find("D")->image, ImageApp);
    EXPECT_EQ(tree.Find("C")->key, "C");
}

TEST(IconTree, AKeyThatWasReplacedIsFreeAgain)
{
    IconTree tree;
    tree.Add({ .key = "A" });
    tree.Replace("A", { .key = "B" });

    EXPECT_FALSE(tree.Add({ .key = "B" }));
    EXPECT_TRUE(tree.Add({ .key = "A" }));
    EXPECT_EQ(tree.Nodes().size(), 2u);
}

TEST(IconTree, ANodeCanBeReplacedByOneWithItsKey)
{
    IconTree tree;
    tree.Add({ .key = "A", .image = ImageDelete });

    EXPECT_TRUE(tree.Replace("A", { .key = "A", .image = ImagePalm }));

    ASSERT_EQ(tree.Nodes().size(), 1u);
    EXPECT_EQ(tree.Find("A")->image, ImagePalm);
}

TEST(IconTree, NoNodeTakesTheKeyOfAnotherOrOfTheRoot)
{
    IconTree tree;
    tree.SetRoot("Icons");
    tree.Add({ .key = "A", .image = ImageVY });
    tree.Add({ .key = "B", .image = ImagePalm });

    EXPECT_FALSE(tree.Replace("A", { .key = "B" }));
    EXPECT_FALSE(tree.Replace("A", { .key = "Icons" }));
    EXPECT_FALSE(tree.Replace("Nobody", { .key = "C" }));

    ASSERT_EQ(tree.Nodes().size(), 2u);
    EXPECT_EQ(tree.Find("A")->image, ImageVY);
    EXPECT_EQ(tree.Find("B")->image, ImagePalm);
    EXPECT_EQ(tree.Find("C"), nullptr);
    EXPECT_EQ(tree.Root(), "Icons");
}

TEST(IconTree, WithoutARootAnyFreeKeyWillDo)
{
    IconTree tree;
    tree.Add({ .key = "A" });

    EXPECT_TRUE(tree.Replace("A", { .key = "" }));
    EXPECT_NE(tree.Find(""), nullptr);
}

TEST(IconTree, EachKindHasItsImage)
{
    EXPECT_EQ(ImageOfKind("VY"), 1);
    EXPECT_EQ(ImageOfKind("APP"), 2);
    EXPECT_EQ(ImageOfKind("PALM"), 3);
    EXPECT_EQ(ImageOfKind("UNKNOWN"), 4);
    EXPECT_EQ(ImageOfKind("DELETE"), 0) << "no image of a kept row";
}

} // namespace
} // namespace vypx::test
