#include "CropFixture.h"

#include <QTimer>

namespace vypx::test {

namespace {

/// What happens while the window works, and to what it works on.
class CropWork : public CropFixture {
protected:
    /// The desktop asks to close the window as soon as it has begun to work.
    void CloseAtWork()
    {
        QTimer::singleShot(0, &Crop(), [this] { Crop().close(); });
    }
};

} // namespace

TEST_F(CropWork, ACloseAmidTheCutComesToLate)
{
    OpenCrop(700, 500);
    CloseAtWork();

    Control<QAbstractButton>("cmdOK").click();

    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(frame->isEnabled());
    EXPECT_EQ(SizeOf(StoredLG()), QSize(64, 44));
}

TEST_F(CropWork, ACloseAmidACutThatFailsLeavesTheWindowForItsBox)
{
    OpenCrop(700, 500);
    std::filesystem::remove(WorkPath("temp.bmp"));
    CloseAtWork();
    ask.Answer(QMessageBox::Ok, [this] {
        Crop().close();
        Settle();
        EXPECT_FALSE(IsSeen("lblWorking"));
    });

    Control<QAbstractButton>("cmdOK").click();

    EXPECT_EQ(ask.shown.back().text, "Error Processing Image!");
    EXPECT_TRUE(IsOpen());
    EXPECT_FALSE(frame->isEnabled());
    Cancel();
    EXPECT_TRUE(frame->isEnabled());
    EXPECT_TRUE(IsUntouched(StoredLG()));
}

TEST_F(CropWork, AMovedWindowKeepsItsSize)
{
    OpenCrop(700, 500);
    const QSize size = Crop().size();
    Crop().move(500, 400);
    for (int i = 0; i < 2; ++i) {
        Push("optStretch");
        Push("optMaintainAspect");

        EXPECT_EQ(Crop().size(), size);
    }
    const QRect screen = Crop().screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(Crop().frameGeometry()));
}

TEST_F(CropWork, AWindowPushedOutOfTheScreenComesBack)
{
    OpenCrop(700, 500);
    Crop().move(-300, -20);

    Push("optStretch");

    EXPECT_TRUE(Crop().screen()->availableGeometry().contains(Crop().frameGeometry()));
}

TEST_F(CropWork, ALowResPictureThatMustBeCutKeepsItsTransparentPixelsApart)
{
    // One column in three is transparent.
    const Rgb mask{ 255, 0, 255 }, black{};
    vypx::Picture picture(160, 160);
    for (int y = 0; y < 160; ++y)
        for (int x = 0; x < 160; ++x)
            picture.Set(x, y, x % 48 < 16 ? mask : black);
    WriteBytes(HighResPath, EncodeBmp24(picture));
    Press("cmdDelSM");
    Press("cmdCreateLowRes");
    ASSERT_TRUE(IsOpen());
    Push("optStretch");

    Ok();

    const vypx::Picture stored = StoredSM();
    ASSERT_EQ(SizeOf(stored), QSize(32, 22));
    int transparent = 0;
    for (int x = 0; x < 32; ++x) {
        EXPECT_TRUE(stored.At(x, 11) == mask || stored.At(x, 11) == black) << x;
        transparent += stored.At(x, 11) == mask ? 1 : 0;
    }
    EXPECT_NEAR(transparent, 12, 3);
    EXPECT_EQ(Text("lblC_RGB_SM"), "255, 0, 255");
}

} // namespace vypx::test
