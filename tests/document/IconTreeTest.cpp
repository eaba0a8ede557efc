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
