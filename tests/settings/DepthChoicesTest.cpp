#include "settings/DepthChoices.h"

#include "settings/Settings.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

class Choices : public ::testing::Test {
protected:
    Choices() { SetDefaultSettings(); }

    DepthChoices choices;
};

TEST_F(Choices, AreTakenBackToWhatStoodBeforeTheFirst)
{
    choices.ChooseDepth(ColorDepth::Bits8);
    choices.ChooseDepth(ColorDepth::Bits4);
    choices.ChooseResolution(true, false);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits4);
    EXPECT_TRUE(HighResOnly);

    const DepthChoices::TakenBack taken = choices.TakeBack();

    EXPECT_TRUE(taken.depth && taken.resolution);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
    EXPECT_FALSE(HighResOnly || LowResOnly);
}

TEST_F(Choices, OnceKeptOrTakenBackStandForGood)
{
    choices.ChooseDepth(ColorDepth::Bits8);
    choices.Keep();

    EXPECT_FALSE(choices.TakeBack().depth);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits8);

    choices.ChooseDepth(ColorDepth::Bits4);
    choices.TakeBack();
    DefaultColorDepth = ColorDepth::Bits16; // by another window, later
    EXPECT_FALSE(choices.TakeBack().depth);
    EXPECT_EQ(DefaultColorDepth, ColorDepth::Bits16);
}

TEST_F(Choices, LeaveAloneWhatAnotherWindowChoseSince)
{
    choices.ChooseDepth(ColorDepth::Bits8);
    choices.ChooseResolution(false, true);
    HighResOnly = true;
    LowResOnly = false;
    choices.ForgetResolution();

    const DepthChoices::TakenBack taken = choices.TakeBack();

    EXPECT_TRUE(taken.depth);
    EXPECT_FALSE(taken.resolution);
    EXPECT_TRUE(HighResOnly);
}

} // namespace
} // namespace vypx::test
