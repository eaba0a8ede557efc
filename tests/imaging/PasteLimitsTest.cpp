#include "imaging/SizeChecks.h"
#include "imaging/WorkingPicture.h"
#include "support/PicturesFixture.h"

#include <algorithm>
#include <sstream>

namespace vypx::test {

namespace {

using ::testing::ElementsAre;

/// How large a pasted picture may be, and where a larger one goes.
class PasteLimits : public EachSlot {
protected:
    void ExpectLimit(const char* label, PixelSize most)
    {
        const auto result = [&](int width, int height) {
            Select(label);
            return Paste(slot, Many(width, height));
        };
        const testing::ScopedTrace trace(__FILE__, __LINE__, label);
        EXPECT_EQ(result(most.width + 1, most.height), ImportResult::Cropping);
        EXPECT_EQ(result(most.width, most.height + 1), ImportResult::Cropping);
        EXPECT_EQ(result(most.width, most.height), ImportResult::Stored);
        EXPECT_EQ((PixelSize{ TargetWidth, TargetHeight }), most);
        EXPECT_THAT(host.messages, ElementsAre()) << "the second guard is never reached";
    }
};
INSTANTIATE_TEST_SUITE_P(Slots, PasteLimits, ::testing::Values(&SlotLG, &SlotSM), SlotName);

TEST_P(PasteLimits, FollowPanelAndIcon)
{
    ExpectLimit(Large, isLG ? PixelSize{ 64, 44 } : PixelSize{ 32, 22 });
    ExpectLimit(Small, isLG ? PixelSize{ 30, 22 } : PixelSize{ 15, 11 });
}

TEST_P(PasteLimits, AnUnknownIconKeepsTheSizeOfTheLastPicture)
{
    Select(Small);
    Paste(slot, Many(4, 4));

    ExpectLimit(Unknown, isLG ? PixelSize{ 30, 22 } : PixelSize{ 15, 11 });
}

TEST_P(PasteLimits, ALargePictureWaitsForTheCropWindowAndChangesNothingElse)
{
    Fill(slot, Large, Many(8, 8));
    Select(Large);
    const auto before = State();
    CropForLG = CropForSM = true; // of a window before

    EXPECT_EQ(Paste(slot, Many(65, 45)), ImportResult::Cropping);

    EXPECT_THAT(host.steps, ElementsAre("clipboard", "crop " + Letters()));
    EXPECT_EQ(CropForLG, isLG);
    EXPECT_EQ(CropForSM, !isLG);
    slot.cropFor = false;
    EXPECT_TRUE(State() == before);
    EXPECT_EQ(ImageFile, ScratchPath());
    EXPECT_EQ(Stored("temp.bmp"), Many(65, 45));
    EXPECT_EQ(Stored(NameFor(slot, Large)), Many(8, 8));
}

TEST_P(PasteLimits, TheReturnFromTheCropWindowIsAnImport)
{
    Fill(SlotLG, Large, Many(8, 8));
    Fill(SlotSM, Large, Many(9, 9));
    Select(Large);
    Paste(slot, Many(65, 45));
    WriteScratch({ .pixels = Many(20, 20) });
    CropResultReady = true;
    host.steps.clear();

    EXPECT_EQ(Again(slot), ImportResult::Stored);

    EXPECT_THAT(host.steps,
        ElementsAre("load temp.bmp", "colour " + Letters(), "draw " + Letters(), "stats"));
    EXPECT_EQ(Stored(NameFor(slot, Large)), Many(20, 20));
    EXPECT_EQ(slot.undoName, NameFor(slot, Large)) << "what the paste noted holds";
    EXPECT_TRUE(UndoIsOn(slot));
}

TEST_P(PasteLimits, ALargePictureIsCutForANewIconToo)
{
    Select(Large);
    Paste(slot, Many(65, 45));
    WriteScratch({ .pixels = Many(20, 20) });
    CropResultReady = true;

    EXPECT_EQ(Again(slot), ImportResult::Stored);

    EXPECT_EQ(Cell(slot, Large), NameFor(slot, Large));
    EXPECT_TRUE(slot.wasEmpty);
}

TEST_P(PasteLimits, WithoutAWorkingFolderALargePictureIsAFault)
{
    Select(Large);
    std::filesystem::remove_all(WorkFolder());

    EXPECT_THROW(Paste(slot, Many(65, 45)), PictureFault);

    EXPECT_FALSE(slot.cropFor);
}

using Row = std::tuple<const Slot*, const char*, int, int, std::string>;

/// Every row of the guards, with a picture that is one pixel beyond it.
TEST(PasteGuards, TellEveryRowOfTheirTable)
{
    const char* const large = "Alpha (Large Icon)";
    const char* const small = "Alpha (Small Icon)";
    const std::vector<Row> rows{
        { &SlotLG, large, 65, 1, "The width|large High Res|The maximum width|64" },
        { &SlotLG, large, 1, 45, "The height|large High Res|The maximum height|44" },
        { &SlotLG, small, 31, 1, "The width|large Low Res|The maximum width|30" },
        { &SlotLG, small, 1, 23, "The height|large Low Res|The maximum height|22" },
        { &SlotSM, large, 33, 1, "The width|small High Res|The maximum width|32" },
        { &SlotSM, large, 1, 23, "The height|small High Res|The maximum height|22" },
        { &SlotSM, small, 16, 1, "The width|small Low Res|The maximum width|15" },
        { &SlotSM, small, 1, 12, "The height|small Low Res|The maximum height|11" },
    };
    for (const auto& [slot, label, width, height, words] : rows) {
        std::vector<std::string> parts;
        std::istringstream text(words);
        for (std::string part; std::getline(text, part, '|');)
            parts.push_back(part);
        EXPECT_EQ(TooLargeText(slot->pasteGuards, label, width, height),
            parts[0]
                + " of the image your are trying to paste exceeds \r\n the the maximum size of a "
                + parts[1] + " Icon.\r\n\r\n" + parts[2] + " for this icon is " + parts[3]
                + " pixels.\r\n\r\nThe image you are trying to paste is "
                + std::to_string(std::max(width, height)) + " pixels.");
        EXPECT_EQ(TooLargeText(slot->pasteGuards, label, width == 1 ? 1 : width - 1,
                      height == 1 ? 1 : height - 1),
            "");
    }
}

} // namespace
} // namespace vypx::test
