#include "imaging/SizeChecks.h"
#include "support/PicturesFixture.h"

namespace vypx::test {

namespace {

/// How large a picture may be, and what is said of a larger one.
class ImportLimits : public Pictures {
protected:
    /// Whether a picture of exactly that size is stored and a larger one goes to the crop window.
    void ExpectLimit(const Slot& slot, const char* label, int width, int height)
    {
        const auto result = [&](int w, int h) {
            Select(label);
            return Import(slot, Many(w, h));
        };
        const testing::ScopedTrace trace(__FILE__, __LINE__, label);
        EXPECT_EQ(result(width + 1, height), ImportResult::Cropping);
        EXPECT_EQ(result(width, height + 1), ImportResult::Cropping);
        EXPECT_EQ(result(width, height), ImportResult::Stored);
        EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), (PixelSize{ width, height }));
        EXPECT_EQ(host.messages.size(), 0u) << "the second guard is never reached";
    }
};

TEST_F(ImportLimits, FollowPanelAndIcon)
{
    ExpectLimit(SlotLG, Large, 64, 44);
    ExpectLimit(SlotLG, Small, 30, 22);
    ExpectLimit(SlotSM, Large, 32, 22);
    ExpectLimit(SlotSM, Small, 15, 11);
}

TEST_F(ImportLimits, ASmallIconIsCutToo)
{
    Select(Small);
    EXPECT_EQ(Import(SlotLG, Many(31, 22)), ImportResult::Cropping)
        << "the guard of 32 pixels is never reached";
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(ImportLimits, AnUnknownIconKeepsTheSizeOfTheLastImport)
{
    Select(Small);
    Import(SlotLG, Many(4, 4));

    ExpectLimit(SlotLG, Unknown, 30, 22);
    ExpectLimit(SlotSM, Unknown, 30, 22);
}

TEST_F(ImportLimits, AnUnknownIconThatComesFirstGoesByItsSize)
{
    for (const auto& [slot, label, width, height] :
        { std::tuple(&SlotLG, Unknown, 64, 44), std::tuple(&SlotLG, UnknownSmall, 30, 22),
            std::tuple(&SlotSM, Unknown, 32, 22), std::tuple(&SlotSM, UnknownSmall, 15, 11) }) {
        TargetWidth = TargetHeight = 0;
        ExpectLimit(*slot, label, width, height);
    }
}

TEST_F(ImportLimits, AnUnknownIconGoesByItsSizeWhereTheKeptOneIsNone)
{
    for (const PixelSize kept : { PixelSize{ 0, 20 }, PixelSize{ 20, 0 } }) {
        TargetWidth = kept.width;
        TargetHeight = kept.height;
        ExpectLimit(SlotSM, Unknown, 32, 22);
    }
}

TEST_F(ImportLimits, ALauncherIconKeepsTheSizeOfTheLastImport)
{
    TargetWidth = 17;
    TargetHeight = 19;

    SetTargetSize(SlotLG, Launcher);

    EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), (PixelSize{ 17, 19 }));
}

TEST_F(ImportLimits, ALabelThatSaysBothIsSmall)
{
    TargetWidth = TargetHeight = 99;

    SetTargetSize(SlotLG, "Large Icon Maker (Small Icon)");

    EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), (PixelSize{ 30, 22 }));
}

TEST_F(ImportLimits, OnlyASideBeyondTheTargetExceedsIt)
{
    TargetWidth = 30;
    TargetHeight = 22;

    EXPECT_FALSE(ExceedsTarget(30, 22));
    EXPECT_FALSE(ExceedsTarget(1, 1));
    EXPECT_TRUE(ExceedsTarget(31, 1));
    EXPECT_TRUE(ExceedsTarget(1, 23));
}

constexpr const char* LargeHigh = " the the maximum size of a large High Res Icon.";
constexpr const char* LargeLow = " the the maximum size of a large Low Res Icon.";
constexpr const char* SmallHigh = " the the maximum size of a small High Res Icon.";
constexpr const char* SmallLow = " the the maximum size of a small Low Res Icon.";

std::string Told(
    const std::string& side, const char* phrase, const std::string& most, const std::string& size)
{
    return "The " + side + " of the image your are trying to paste exceeds \r\n" + phrase
        + "\r\n\r\nThe maximum " + side + " for this icon is " + most
        + " pixels.\r\n\r\nThe image you are trying to paste is " + size + " pixels.";
}

TEST_F(ImportLimits, TheGuardTellsEveryRowOfItsTable)
{
    EXPECT_EQ(TooLargeTitle, "Image Too Large!");
    EXPECT_EQ(
        TooLargeText(SlotLG.importGuards, Large, 65, 44), Told("width", LargeHigh, "64", "65"));
    EXPECT_EQ(
        TooLargeText(SlotLG.importGuards, Large, 64, 45), Told("height", LargeHigh, "44", "45"));
    EXPECT_EQ(
        TooLargeText(SlotLG.importGuards, Small, 33, 22), Told("width", LargeLow, "32", "33"));
    EXPECT_EQ(
        TooLargeText(SlotLG.importGuards, Small, 32, 23), Told("height", LargeLow, "22", "23"));
    EXPECT_EQ(
        TooLargeText(SlotSM.importGuards, Large, 33, 22), Told("width", SmallHigh, "32", "33"));
    EXPECT_EQ(
        TooLargeText(SlotSM.importGuards, Large, 32, 23), Told("height", SmallHigh, "22", "23"));
    EXPECT_EQ(
        TooLargeText(SlotSM.importGuards, Small, 16, 11), Told("width", SmallLow, "15", "16"));
    EXPECT_EQ(
        TooLargeText(SlotSM.importGuards, Small, 15, 12), Told("height", SmallLow, "11", "12"));
}

TEST_F(ImportLimits, TheGuardTellsTheWidthBeforeTheHeight)
{
    EXPECT_EQ(TooLargeText(SlotLG.importGuards, Large, 1000, 2000),
        Told("width", LargeHigh, "64", "1000"));
    EXPECT_EQ(TooLargeText(SlotSM.importGuards, Small, 1000, 2000),
        Told("width", SmallLow, "15", "1000"));
}

TEST_F(ImportLimits, TheGuardLetsFittingPicturesPass)
{
    EXPECT_EQ(TooLargeText(SlotLG.importGuards, Large, 64, 44), "");
    EXPECT_EQ(TooLargeText(SlotLG.importGuards, Small, 32, 22), "") << "32, though the limit is 30";
    EXPECT_EQ(TooLargeText(SlotSM.importGuards, Large, 32, 22), "");
    EXPECT_EQ(TooLargeText(SlotSM.importGuards, Small, 15, 11), "");
}

TEST_F(ImportLimits, TheGuardLetsIconsOfUntoldSizePass)
{
    EXPECT_EQ(TooLargeText(SlotLG.importGuards, Unknown, 1000, 1000), "");
    EXPECT_EQ(TooLargeText(SlotSM.importGuards, Launcher, 1000, 1000), "");
}

TEST_F(ImportLimits, TheGuardTestsTheLargeIconFirst)
{
    const char* const both = "Large Icon Maker (Small Icon)";
    EXPECT_EQ(
        TooLargeText(SlotLG.importGuards, both, 65, 50), Told("width", LargeHigh, "64", "65"));
    EXPECT_EQ(TooLargeText(SlotLG.importGuards, both, 33, 50), Told("width", LargeLow, "32", "33"));
    EXPECT_EQ(
        TooLargeText(SlotLG.importGuards, both, 30, 50), Told("height", LargeHigh, "44", "50"));
    EXPECT_EQ(
        TooLargeText(SlotLG.importGuards, both, 30, 23), Told("height", LargeLow, "22", "23"));
}

} // namespace
} // namespace vypx::test
