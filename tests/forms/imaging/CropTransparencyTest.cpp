#include "CropFixture.h"

#include <QImage>
#include <QScrollBar>
#include <functional>

namespace vypx::test {

namespace {

const Rgb Red{ 255, 0, 0 }, Magenta{ 255, 0, 255 }, WhitePixel{ 255, 255, 255 };

/// Red pictures, some of whose pixels are transparent, at 8 and at 16 bits. One of 700 x 500 is cut
/// at 286, 206, 128 x 88 pixels to half of that.
class CropTransparency : public CropFixture, public ::testing::WithParamInterface<ColorDepth> {
protected:
    CropTransparency() { DefaultColorDepth = GetParam(); }

    void OpenPng(const QSize& size, const std::function<bool(int x, int y)>& isTransparent)
    {
        QImage image(size, QImage::Format_ARGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.setPixel(x, y, isTransparent(x, y) ? qRgba(0, 0, 0, 0) : qRgb(255, 0, 0));
        const QString path = QString::fromStdString(program.File("masked.png"));
        ASSERT_TRUE(image.save(path));
        Import("cmdImportLG", path);
        ASSERT_TRUE(IsOpen());
    }
    void OpenPng(const std::function<bool(int x, int y)>& isTransparent)
    {
        OpenPng({ 700, 500 }, isTransparent);
    }
    static int Count(const vypx::Picture& picture, Rgb colour)
    {
        int count = 0;
        for (int y = 0; y < picture.Height(); ++y)
            for (int x = 0; x < picture.Width(); ++x)
                count += picture.At(x, y) == colour ? 1 : 0;
        return count;
    }
    void ExpectLeftHalfTransparent()
    {
        const vypx::Picture stored = StoredLG();
        ASSERT_EQ(SizeOf(stored), QSize(64, 44));
        const Rgb mask = stored.At(0, 0);
        EXPECT_NE(mask, Red);
        for (int y = 0; y < 44; ++y)
            for (int x = 0; x < 64; ++x)
                ASSERT_EQ(stored.At(x, y), x < 32 ? mask : Red) << x << ", " << y;
        EXPECT_EQ(Pixel("picLG", { 31, 20 }), QColor(0, 0, 255));
        EXPECT_EQ(Pixel("picLG", { 32, 20 }), QColor(255, 0, 0));
    }
};

} // namespace

TEST_P(CropTransparency, ACutKeepsTransparentPixelsApart)
{
    OpenPng([](int x, int) { return x < 351; }); // amid the 33rd column of the result

    Ok();

    ExpectLeftHalfTransparent();
}

TEST_P(CropTransparency, StretchingKeepsThemApart)
{
    OpenPng({ 128, 88 }, [](int x, int) { return x < 65; });
    Push("optStretch");

    Ok();

    ExpectLeftHalfTransparent();
}

TEST_P(CropTransparency, HalvingKeepsThemApart)
{
    OpenPng({ 2560, 100 }, [](int x, int) { return x < 1281; });
    Push("optStretch");

    Ok();

    ExpectLeftHalfTransparent();
}

TEST_P(CropTransparency, StretchedAndBackACutKeepsThemApart)
{
    OpenPng([](int x, int) { return x < 351; });
    Push("optStretch");
    Push("optMaintainAspect");

    Ok();

    ExpectLeftHalfTransparent();
}

TEST_P(CropTransparency, TheRegionsFirstPixelStaysTransparent)
{
    OpenPng([](int x, int y) { return (x == 286 && y == 206) || (x == 300 && y == 220); });

    Ok();

    const vypx::Picture stored = StoredLG();
    ASSERT_EQ(SizeOf(stored), QSize(64, 44));
    EXPECT_NE(stored.At(0, 0), Red);
    EXPECT_EQ(Count(stored, Red), 64 * 44 - 1) << "one of four transparent pixels is not enough";
}

TEST_P(CropTransparency, BehindAnOpaqueFirstPixelTheyShowAColourOfTheirOwn)
{
    OpenPng([](int x, int) { return x < 10 || x >= 350; });

    Ok();

    const vypx::Picture stored = StoredLG();
    ASSERT_EQ(SizeOf(stored), QSize(64, 44));
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 0, 0");
    EXPECT_EQ(Count(stored, Red), 32 * 44);
    EXPECT_EQ(Count(stored, Magenta), 32 * 44);
}

TEST_P(CropTransparency, TheBorderIsNeverTransparent)
{
    for (const bool inTheirColour : { false, true }) {
        OpenPng([](int, int) { return true; });
        if (inTheirColour) {
            Push("cmdChangeBackColor");
            In<QScrollBar>(Border(), "VScrollGrn").setValue(0);
            Push(Border(), "cmdOK");
            ASSERT_EQ(BorderColour(), QColor(255, 0, 255));
        }
        DragLeft({ 0, 0 }, { 0, 137 }); // ten rows of the picture, then border

        Ok();

        const vypx::Picture stored = StoredLG();
        ASSERT_EQ(SizeOf(stored), QSize(64, 44));
        EXPECT_NE(stored.At(0, 0), WhitePixel);
        EXPECT_EQ(Count(stored, stored.At(0, 0)), 64 * 10);
        EXPECT_EQ(Count(stored, inTheirColour ? Magenta : WhitePixel), 64 * 34);
    }
}

TEST_P(CropTransparency, TheNextPictureHasNoneOfIt)
{
    OpenPng([](int x, int) { return x < 351; });
    Cancel();
    vypx::Picture opaque(128, 88);
    for (int y = 0; y < 88; ++y)
        for (int x = 0; x < 128; ++x)
            opaque.Set(x, y, x < 63 ? WhitePixel : Magenta);
    OpenCrop(opaque);
    Push("optStretch");

    Ok();

    const Rgb mixed = StoredLG().At(31, 20);
    EXPECT_GT(mixed.green, 60);
    EXPECT_LT(mixed.green, 195);
    EXPECT_EQ(StoredLG().At(32, 20), Magenta);
}

INSTANTIATE_TEST_SUITE_P(Depths, CropTransparency,
    ::testing::Values(ColorDepth::Bits8, ColorDepth::Bits16), [](const auto& depth) -> std::string {
        return depth.param == ColorDepth::Bits8 ? "Bits8" : "Bits16";
    });

} // namespace vypx::test
