#include "settings/CLBHScroll.h"

#include <gmock/gmock.h>
#include <vector>

namespace vypx {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Writes down what is done with it. A letter is 4 pixels wide.
class RecordingList : public ListBox {
public:
    std::vector<std::string> texts, steps;
    std::vector<int> extents;

    void Clear() override
    {
        texts.clear();
        steps.emplace_back("clear");
    }
    void Add(std::string_view text) override
    {
        texts.emplace_back(text);
        steps.emplace_back("add");
    }
    std::int32_t TextWidth(std::string_view text) const override
    {
        return static_cast<std::int32_t>(text.size()) * 60;
    }
    int ScrollBarWidth() const override { return 17; }
    void SetHorizontalExtent(int pixels) override
    {
        extents.push_back(pixels);
        steps.emplace_back("extent");
    }
    void ScrollToEnd() override { steps.emplace_back("end"); }
};

/// A list that a CLBHScroll has taken.
class TheScroll : public ::testing::Test {
protected:
    TheScroll()
    {
        list.texts = { "left over" };
        scroll.Init(list);
    }

    RecordingList list;
    CLBHScroll scroll;
};

TEST_F(TheScroll, EmptiesTheListThatItTakes)
{
    EXPECT_THAT(list.texts, IsEmpty());
    EXPECT_THAT(list.extents, IsEmpty());
}

TEST_F(TheScroll, MakesTheListAsWideAsTheTextTheScrollBarAndTwoPixels)
{
    scroll.AddItem("ten chars.");

    EXPECT_THAT(list.texts, ElementsAre("ten chars."));
    EXPECT_THAT(list.extents, ElementsAre(40 + 17 + 2));
}

TEST_F(TheScroll, OnlyAWiderTextChangesTheExtent)
{
    for (const char* text : { "four", "four", "one", "sixsix", "four" })
        scroll.AddItem(text);

    EXPECT_THAT(list.texts, ElementsAre("four", "four", "one", "sixsix", "four"));
    EXPECT_THAT(list.extents, ElementsAre(16 + 19, 24 + 19));
}

TEST_F(TheScroll, AnEmptyTextIsNoWiderThanNone)
{
    scroll.AddItem("");

    EXPECT_THAT(list.texts, ElementsAre(""));
    EXPECT_THAT(list.extents, IsEmpty());
}

TEST_F(TheScroll, GoesToTheEndAfterEveryTextOnceItHasItsExtent)
{
    scroll.AddItem("wide");
    scroll.AddItem("w");

    EXPECT_THAT(list.steps, ElementsAre("clear", "add", "extent", "end", "add", "end"));
}

TEST_F(TheScroll, TakenAnewItForgetsTheWidestText)
{
    scroll.AddItem("a wide text");

    scroll.Init(list);
    scroll.AddItem("thin");

    EXPECT_THAT(list.texts, ElementsAre("thin"));
    EXPECT_EQ(list.extents.back(), 16 + 19);
}

TEST_F(TheScroll, ServesAnotherListOnceItTookThat)
{
    scroll.AddItem("here");
    RecordingList other;

    scroll.Init(other);
    scroll.AddItem("there");

    EXPECT_THAT(list.texts, ElementsAre("here"));
    EXPECT_THAT(other.texts, ElementsAre("there"));
    EXPECT_THAT(other.extents, ElementsAre(20 + 19));
}

} // namespace
} // namespace vypx
