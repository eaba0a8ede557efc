#include "DropsFixture.h"

namespace vypx::test {

namespace {

constexpr auto SelectFirst = "You must first select a valid icon in the tree.";

/// The window that asks into which slot a dropped picture is to go.
class DropIconTarget : public DropsFixture {
protected:
    DropIconTarget() { AutoCreateLowRes = false; }

    void DropPicture(int width = 4, int height = 4)
    {
        Drop("Form1", { PictureFile(width, height, { 1, 2, 3 }) });
        ASSERT_NE(Window(), nullptr);
    }
    bool CanApply(const QString& resolution)
    {
        return Window()->findChild<QWidget*>("cmdApplyto" + resolution)->isEnabled();
    }
    void ExpectGone()
    {
        EXPECT_EQ(Window(), nullptr);
        EXPECT_TRUE(frame->isEnabled());
        EXPECT_FALSE(DroppedFile);
    }
};

TEST_F(DropIconTarget, SaysWhatItAsks)
{
    DropPicture();

    EXPECT_EQ(Window()->windowTitle(), "Image File Dropped");
    EXPECT_EQ(Window()->findChild<QLabel*>("Label1")->text(),
        "An Image file was dropped. How would you like to use this image?");
    EXPECT_EQ(Window()->findChild<QPushButton*>("cmdApplytoHighRes")->text(),
        "Apply Image to High Res Icon");
    EXPECT_EQ(Window()->findChild<QPushButton*>("cmdApplytoLowRes")->text(),
        "Apply Image to Low Res Icon");
    EXPECT_EQ(Window()->grab().toImage().pixelColor(2, 2), QColor(224, 223, 227));
    EXPECT_TRUE(CanApply("HighRes") && CanApply("LowRes"));
    EXPECT_FALSE(Window()->isModal());
    EXPECT_FALSE(frame->isEnabled());
    EXPECT_TRUE(Window()->isEnabled());
}

TEST_F(DropIconTarget, TheHighResPanelOutOfSightTakesNoPicture)
{
    Entry("mnuHideHighRes").trigger();

    DropPicture();

    EXPECT_FALSE(CanApply("HighRes"));
    EXPECT_TRUE(CanApply("LowRes"));
}

TEST_F(DropIconTarget, TheLowResPanelOutOfSightTakesNoPicture)
{
    Entry("mnuHideLowRes").trigger();

    DropPicture();

    EXPECT_TRUE(CanApply("HighRes"));
    EXPECT_FALSE(CanApply("LowRes"));
}

TEST_F(DropIconTarget, AppliesToTheHighResSlot)
{
    Click("Alpha (Large Icon)");
    DropPicture();

    PressInWindow("cmdApplytoHighRes");

    ExpectGone();
    EXPECT_EQ(Text("lbl_LGsize"), "4 x 4 pixels");
    EXPECT_EQ(Text("lbl_SMsize"), "2 x 1 pixels");
    EXPECT_TRUE(IsOn("cmdUndoLG"));
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(DropIconTarget, AppliesToTheLowResSlot)
{
    Click("Alpha (Large Icon)");
    DropPicture();

    PressInWindow("cmdApplytoLowRes");

    ExpectGone();
    EXPECT_EQ(Text("lbl_SMsize"), "4 x 4 pixels");
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
    EXPECT_TRUE(IsOn("cmdUndoSM"));
}

TEST_F(DropIconTarget, AnEmptySlotIsFilled)
{
    Click("Beta (Large Icon)");
    DropPicture();

    PressInWindow("cmdApplytoHighRes");

    EXPECT_EQ(Text("lbl_LGsize"), "4 x 4 pixels");
    EXPECT_EQ(Cell("Beta (Large Icon)", &IconRow::HighResFile), "tAIB3502-d144.bmp");
    EXPECT_TRUE(IsOn("cmdDelLG"));
}

TEST_F(DropIconTarget, WithoutASelectedIconBothButtonsAnswerInWords)
{
    for (const char* button : { "cmdApplytoHighRes", "cmdApplytoLowRes" }) {
        ask.Answer(QMessageBox::Ok);
        Drop("TreeView1", { PictureFile(4, 4, { 1, 2, 3 }, "new.jpg") });

        PressInWindow(button);

        ExpectGone();
        EXPECT_EQ(Messages().back(), SelectFirst) << button;
        EXPECT_EQ(ask.shown.back().title, "VY Pixelworks");
    }
    EXPECT_FALSE(IconsetChanged);
}

TEST_F(DropIconTarget, WithoutIconsTheHighResButtonAsksForOne)
{
    MakeNew();
    DropPicture();
    ask.Answer(QMessageBox::Ok);

    PressInWindow("cmdApplytoHighRes");

    ExpectGone();
    EXPECT_EQ(Messages(), QStringList("You must add a large icon before an image can be loaded."));
}

TEST_F(DropIconTarget, OnPurposeTheLowResButtonAsksForASelectionThen)
{
    MakeNew();
    DropPicture();
    ask.Answer(QMessageBox::Ok);

    PressInWindow("cmdApplytoLowRes");

    ExpectGone();
    EXPECT_EQ(Messages(), QStringList(SelectFirst));
}

TEST_F(DropIconTarget, ItStandsUntilItsMessageIsAnswered)
{
    DropPicture();
    bool stands = false, disables = false;
    ask.Answer(QMessageBox::Ok, [&] {
        stands = Window() != nullptr;
        disables = !frame->isEnabled();
    });

    PressInWindow("cmdApplytoLowRes");

    EXPECT_TRUE(stands && disables);
}

TEST_F(DropIconTarget, MayBeClosedWhileItsMessageStands)
{
    Click("Set");
    DropPicture();
    auto& button = *Window()->findChild<QPushButton*>("cmdApplytoLowRes");
    ask.Answer(QMessageBox::Ok, [&] {
        Window()->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(Window(), nullptr);
    });

    button.click();

    ExpectGone();
}

TEST_F(DropIconTarget, EveryWayOutForgetsTheFile)
{
    const std::function<void()> ways[] = {
        [this] { PressInWindow("cmdCancel"); },
        [this] { QTest::keyClick(Window(), Qt::Key_Escape); },
        [this] { Window()->close(); },
    };
    for (const auto& leave : ways) {
        DropPicture();

        leave();

        ExpectGone();
    }
    EXPECT_EQ(Text("lbl_LGsize"), "");
    EXPECT_FALSE(IconsetChanged);
    ask.CancelDialog();
    Click("Alpha (Large Icon)");
    Press("cmdImportLG");
}

TEST_F(DropIconTarget, ALargePictureKeepsTheFrameDisabledForTheCropWindow)
{
    Click("Alpha (Large Icon)");
    DropPicture(100, 80);

    PressInWindow("cmdApplytoHighRes");

    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(DroppedFile);
    auto* const crop = frame->findChild<QDialog*>("frmCrop");
    ASSERT_TRUE(crop && crop->isVisible() && crop->isEnabled());
    EXPECT_FALSE(frame->isEnabled());
    QTest::mouseClick(crop->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
    EXPECT_EQ(Text("lbl_LGsize"), "64 x 44 pixels");
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(DropIconTarget, APictureThatIsGoneLeavesTheSlot)
{
    Click("Alpha (Large Icon)");
    DropPicture();
    std::filesystem::remove(program.File("new.bmp"));

    PressInWindow("cmdApplytoHighRes");

    ExpectGone();
    EXPECT_TRUE(Note().startsWith("new.bmp was not imported: ")) << Note().toStdString();
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
}

TEST_F(DropIconTarget, AnImportMakesTheLowResPictureAsWell)
{
    AutoCreateLowRes = true;
    Click("Alpha (Large Icon)");
    Press("cmdDelSM");
    DropPicture(20, 10);

    PressInWindow("cmdApplytoHighRes");

    ExpectGone();
    EXPECT_EQ(Text("lbl_LGsize"), "20 x 10 pixels");
    EXPECT_EQ(Text("lbl_SMsize"), "10 x 5 pixels");
}

TEST_F(DropIconTarget, ReturnPressesNothing)
{
    Click("Alpha (Large Icon)");
    DropPicture();

    QTest::keyClick(Window(), Qt::Key_Return);

    EXPECT_NE(Window(), nullptr);
    EXPECT_EQ(Text("lbl_LGsize"), "2 x 1 pixels");
}

TEST_F(DropIconTarget, ASecondPressInAHurryDoesNothing)
{
    Click("Alpha (Large Icon)");
    DropPicture();
    auto* const button = Window()->findChild<QPushButton*>("cmdApplytoHighRes");

    button->click();
    button->click();

    ExpectGone();
    EXPECT_TRUE(ask.opened.size() == 1u) << "the second one would have asked for a file";
}

TEST_F(DropIconTarget, TheExitTakesItAlong)
{
    DropPicture();

    frame->close();

    EXPECT_EQ(Window(), nullptr);
    EXPECT_FALSE(frame->isVisible());
}

} // namespace
} // namespace vypx::test
