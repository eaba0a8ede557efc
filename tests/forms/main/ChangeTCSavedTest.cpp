#include "ChangeTCFixture.h"

namespace vypx::test {

namespace {

/// A colour is picked, applied, saved and opened again.
class ChangeTCSaved : public ChangeTCFixture {
protected:
    ChangeTCSaved() { WarnOverwrite = false; }

    /// At this depth, from the high-res picture of Alpha; the colour of one pixel.
    void PickSaveAndOpen(ColorDepth depth, const vypx::Picture& picture, int x, int y)
    {
        DefaultColorDepth = depth;
        OpenEditorOn(picture);
        Pick(x, y);
        PressIn("cmdApplyTC");
        SaveAndOpen();
    }
    void SaveAndOpen()
    {
        Entry("mnuSave").trigger();
        ASSERT_FALSE(IconsetChanged);
        Open(QString::fromStdString(FileName));
        Click("Alpha (Large Icon)");
    }
    /// The pixels that let the background through, as columns of the first row.
    std::vector<int> Transparent()
    {
        const QImage shown = Find<QWidget>("picLG").grab().toImage();
        std::vector<int> columns;
        for (int x = 0; x < shown.width(); ++x)
            if (shown.pixelColor(x, 0) == QColor(0, 0, 255))
                columns.push_back(x);
        return columns;
    }
    static vypx::Picture Row(const std::vector<Rgb>& pixels)
    {
        vypx::Picture picture(static_cast<int>(pixels.size()), 1);
        for (std::size_t x = 0; x < pixels.size(); ++x)
            picture.Set(static_cast<int>(x), 0, pixels[x]);
        return picture;
    }
};

} // namespace

TEST_F(ChangeTCSaved, AtEightBitsTheColourComesBackAsItWas)
{
    PickSaveAndOpen(ColorDepth::Bits8,
        Row({ { 255, 0, 0 }, { 255, 204, 0 }, { 0, 0, 0 }, { 255, 204, 0 } }), 1, 0);

    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 204, 0");
    EXPECT_EQ(SlotLG.Mask(), (Rgb{ 255, 204, 0 }));
    EXPECT_EQ(Transparent(), (std::vector{ 1, 3 }));
}

TEST_F(ChangeTCSaved, AtFourBitsTheColourComesBackAsItWas)
{
    PickSaveAndOpen(ColorDepth::Bits4,
        Row({ { 255, 255, 255 }, { 0x55, 0x55, 0x55 }, { 0, 0, 0 }, { 0x55, 0x55, 0x55 } }), 1, 0);

    EXPECT_EQ(Text("lblC_RGB_LG"), "85, 85, 85");
    EXPECT_EQ(Transparent(), (std::vector{ 1, 3 }));
}

// 15, 33, 56 and 17, 31, 60 are both nearest to 2, 8, 7 in 5, 6 and 5 bits, which widen to 2 / 31,
// 8 / 63 and 7 / 31 of 255: 16, 32, 58. A red of 26 is nearest to 3.
TEST_F(ChangeTCSaved, AtSixteenBitsAllPixelsOfItsNarrowValueAreTransparent)
{
    PickSaveAndOpen(ColorDepth::Bits16,
        Row({ { 255, 0, 0 }, { 15, 33, 56 }, { 17, 31, 60 }, { 26, 33, 56 } }), 1, 0);

    EXPECT_EQ(Text("lblC_RGB_LG"), "16, 32, 58");
    EXPECT_EQ(SlotLG.Mask(), (Rgb{ 16, 32, 58 }));
    EXPECT_EQ(Transparent(), (std::vector{ 1, 2 }));
}

TEST_F(ChangeTCSaved, NoneComesBackAsNone)
{
    OpenEditor();
    Choose("optNoTransparent");
    PressIn("cmdApplyTC");

    SaveAndOpen();

    EXPECT_TRUE(IsShown("lblNoTransparentLG"));
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(255, 0, 255));
}

TEST_F(ChangeTCSaved, ATypedColourThatThePictureDoesNotHaveMasksNothing)
{
    DefaultColorDepth = ColorDepth::Bits16;
    OpenEditorOn(Row({ { 255, 0, 0 }, { 0, 255, 0 } }));
    Choose("optManualColor");
    TypeAndEnter("txtTC_Red", "80");
    PressIn("cmdApplyTC");

    SaveAndOpen();

    EXPECT_EQ(Transparent(), std::vector<int>{});
    EXPECT_EQ(Text("lblC_RGB_LG"), "82, 0, 0") << "80 is 10 in 5 bits";
}

} // namespace vypx::test
