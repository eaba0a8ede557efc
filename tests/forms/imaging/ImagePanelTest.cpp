#include "forms/imaging/ImagePanel.h"

#include "companion/BmpFile.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// A panel by itself, over a working folder with one picture of 3 x 2 pixels.
class Panel : public ::testing::Test {
protected:
    Panel()
    {
        ResetDocument();
        AppFolder = folder.Path();
        TempSuffix.clear();
        vypx::Picture picture(3, 2);
        picture.Set(0, 0, { 255, 0, 255 });
        picture.Set(1, 0, { 255, 255, 255 });
        WriteBytes(WorkPath("a.bmp"), EncodeBmp24(picture));
    }

    template <typename T>
    static T& In(ImagePanel& panel, const char* name)
    {
        T* const found = panel.findChild<T*>(name);
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }

    /// The slot's fields as a selection leaves them.
    void Select(const vypx::Slot& slot, bool hasTransparent)
    {
        BitmapTable.assign(1, { .file = "a.bmp", .hasTransparent = hasTransparent ? 1 : 0 });
        slot.path = WorkPath("a.bmp");
        slot.loaded = true;
        slot.SetMask({ 255, 0, 255 });
    }

    TempFolder folder;
    PictureBox buffer;
};

TEST_F(Panel, ControlsAreNamedByTheSlot)
{
    ImagePanel high(SlotLG, buffer), low(SlotSM, buffer);

    EXPECT_EQ(high.objectName(), "frameLG");
    EXPECT_EQ(high.title(), "High Res");
    EXPECT_EQ(In<QWidget>(high, "picLGfrm").accessibleName(), "High Res picture");
    EXPECT_EQ(In<QPushButton>(high, "cmdImportLG").toolTip(),
        "Take a picture file as the high-res picture");
    EXPECT_EQ(low.title(), "Low Res");
    EXPECT_EQ(In<QPushButton>(low, "cmdDelSM").accessibleName(), "Delete low-res picture");
    EXPECT_EQ(high.findChildren<QPushButton*>("cmdCreateLowRes").size(), 1);
    EXPECT_EQ(low.findChildren<QPushButton*>("cmdCreateLowRes").size(), 0);
    for (const ImagePanel* panel : { &high, &low })
        for (const QWidget* control : panel->findChildren<QWidget*>())
            EXPECT_FALSE(control->objectName().contains("XX"));
}

TEST_F(Panel, DrawsThePictureWithItsTransparentPixelsLetThrough)
{
    for (const vypx::Slot* slot : { &SlotLG, &SlotSM }) {
        ImagePanel panel(*slot, buffer);
        panel.resize(300, 400);
        Select(*slot, true);

        panel.Draw();

        const QString letters = QString::fromLatin1(slot->letters.data(), 2);
        auto& picture = In<PictureBox>(panel, qPrintable("pic" + letters));
        EXPECT_EQ(picture.size(), QSize(3, 2));
        EXPECT_EQ(picture.Picture().pixelColor(0, 0).alpha(), 0);
        EXPECT_EQ(picture.Picture().pixelColor(1, 0), QColor(Qt::white));
        EXPECT_EQ(In<QLabel>(panel, qPrintable("lbl_" + letters + "size")).text(), "3 x 2 pixels");
        EXPECT_TRUE(slot->hasTransparent);
    }
}

TEST_F(Panel, DrawsItAsItIsStoredWhereTheColourIsNotUsed)
{
    ImagePanel panel(SlotLG, buffer);
    Select(SlotLG, true);
    TransparentUse = false;

    panel.Draw();

    EXPECT_EQ(In<PictureBox>(panel, "picLG").Picture().pixelColor(0, 0), QColor(255, 0, 255));
    EXPECT_FALSE(In<QWidget>(panel, "picColSwatchLG").isHidden()) << "the swatch tells it";
}

TEST_F(Panel, AFileThatIsGoneLeavesThePanelEmpty)
{
    ImagePanel panel(SlotLG, buffer);
    Select(SlotLG, true);
    SlotLG.path = WorkPath("gone.bmp");

    panel.Draw();

    EXPECT_TRUE(In<PictureBox>(panel, "picLG").Picture().isNull());
    EXPECT_EQ(In<QLabel>(panel, "lbl_LGsize").text(), "");
    EXPECT_FALSE(LGhasTransparent);
}

TEST_F(Panel, OneKnowsNothingOfTheOther)
{
    ImagePanel high(SlotLG, buffer), low(SlotSM, buffer);
    Select(SlotLG, false);
    high.Draw();

    low.Clear();

    EXPECT_FALSE(In<PictureBox>(high, "picLG").Picture().isNull());
    EXPECT_EQ(In<QLabel>(high, "lbl_LGsize").text(), "3 x 2 pixels");
}

} // namespace
} // namespace vypx::test
