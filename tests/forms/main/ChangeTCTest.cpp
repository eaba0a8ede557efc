#include "ChangeTCFixture.h"

namespace vypx::test {

namespace {

/// How the window opens, and what is disabled meanwhile.
class ChangeTC : public ChangeTCFixture { };

} // namespace

TEST_F(ChangeTC, BearsItsTitleAndCaptionsAtItsPlace)
{
    OpenEditor();

    EXPECT_EQ(Window()->windowTitle(), "Change Transparent Color");
    EXPECT_EQ(Window()->pos(), QPoint(20, 20)) << "300 twips each way";
    EXPECT_FALSE(Window()->isModal());
    for (const auto& [name, caption] : { std::pair{ "Frame1", "Icon Transparency Setting" },
             std::pair{ "Frame2", "Transparent Color Editing" },
             std::pair{ "Frame3", "Current Transparent Color" },
             std::pair{ "frmSampColors", "Sampled Color" },
             std::pair{ "Frame8", "Preview Back Color" } })
        EXPECT_EQ(Part<QGroupBox>(name).title(), caption);
    for (const auto& [name, caption] : { std::pair{ "optUseTransparent", "Use Transparent Color" },
             std::pair{ "optNoTransparent", "No Transparent Color" },
             std::pair{ "optUsePicker", "Use Color Picker" },
             std::pair{ "optManualColor", "Enter Colors Manually" },
             std::pair{ "chkBackGray", "Lock to Grayscale" },
             std::pair{ "chkViewTransparent", "Use transparent color" },
             std::pair{ "cmdZoom2X", "Zoom 2 X" }, std::pair{ "cmdZoom4X", "Zoom 4 X" },
             std::pair{ "cmdApplyTC", "Apply and Exit" } })
        EXPECT_EQ(Part<QAbstractButton>(name).text(), caption);
    EXPECT_TRUE(Part<QScrollArea>("picFrame").isAncestorOf(&View()));
}

TEST_F(ChangeTC, ShowsAPictureThatHasATransparentColour)
{
    OpenEditor();

    EXPECT_TRUE(IsChosen("optUseTransparent") && CanUseIn("optUseTransparent"));
    EXPECT_TRUE(IsChosen("optUsePicker"));
    EXPECT_TRUE(IsShownIn("picTCswatch") && IsShownIn("txtTC_Red"));
    EXPECT_FALSE(CanUseIn("txtTC_Red") || CanUseIn("txtTC_Grn") || CanUseIn("txtTC_Blue"));
    EXPECT_EQ(Typed(), QStringList({ "255", "0", "255" }));
    EXPECT_EQ(Swatch("picTCswatch"), QColor(255, 0, 255));
    EXPECT_EQ(View().size(), QSize(4, 2)) << "two pixels, twice as large";
    EXPECT_EQ(Seen(0, 0), QColor(0, 0, 255)) << "the preview colour, blue at first";
    EXPECT_EQ(Seen(1, 0), QColor(Qt::white));
    EXPECT_FALSE(IsShownIn("frmSampColors"));
}

TEST_F(ChangeTC, ShowsAPictureWithoutATransparentColour)
{
    Click("Alpha (Large Icon)"); // whose mask must not come along
    OpenEditor("Alpha (Small Icon)");

    EXPECT_TRUE(IsChosen("optNoTransparent"));
    EXPECT_FALSE(IsChosen("optUseTransparent") || CanUseIn("optUseTransparent"));
    EXPECT_FALSE(CanUseIn("chkViewTransparent"));
    EXPECT_FALSE(IsShownIn("picTCswatch") || IsShownIn("txtTC_Red") || IsShownIn("txtTC_Grn")
        || IsShownIn("txtTC_Blue"));
    EXPECT_EQ(Typed(), QStringList({ "", "", "" }));
    EXPECT_EQ(Seen(0, 0), QColor(255, 0, 255));
    EXPECT_EQ(Cells().left(1), "0");
}

TEST_F(ChangeTC, EachPanelHasItsOwn)
{
    OpenEditor("Alpha (Large Icon)", "SM");
    EXPECT_FALSE(EditingLG);
    Pick(1, 0);

    EXPECT_EQ(Cells(LowResPath), "1 255 255 255");
    EXPECT_EQ(Cells(HighResPath), "1 255 0 255");
    EXPECT_EQ(Text("lblC_RGB_SM"), "255, 255, 255");
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 0, 255");
}

TEST_F(ChangeTC, TheDocumentCountsAsChangedFromTheOpeningOn)
{
    ASSERT_FALSE(IconsetChanged);
    const QString before = frame->windowTitle();

    OpenEditor();
    PressIn("cmdCancelTC");

    EXPECT_TRUE(IconsetChanged);
    EXPECT_NE(frame->windowTitle(), before);
}

TEST_F(ChangeTC, UndoOfThePanelIsGoneWithTheOpening)
{
    Click("Alpha (Large Icon)");
    ImportBlack("cmdImportSM", 4, 4);
    ImportBlack("cmdImportLG", 4, 4);
    ASSERT_TRUE(IsOn("cmdUndoLG") && IsOn("cmdUndoSM"));

    OpenEditor();
    PressIn("cmdCancelTC");

    EXPECT_FALSE(IsOn("cmdUndoLG") || Entry("mnuUndo_LG").isEnabled());
    EXPECT_TRUE(IsOn("cmdUndoSM") && Entry("mnuUndo_SM").isEnabled());
}

TEST_F(ChangeTC, ManualColoursAreForSixteenBitsOnly)
{
    for (const auto& [depth, isOn] : { std::pair{ ColorDepth::Bits4, false },
             std::pair{ ColorDepth::Bits8, false }, std::pair{ ColorDepth::Bits16, true } }) {
        DefaultColorDepth = depth;
        OpenEditor();
        EXPECT_EQ(CanUseIn("optManualColor"), isOn) << BitsOf(depth);
        PressIn("cmdCancelTC");
    }
}

TEST_F(ChangeTC, EverythingElseOfTheProgramIsDisabledMeanwhile)
{
    Entry("mnuOptions").trigger();
    auto& options = Find<QDialog>("frmProgOptions");

    OpenEditor();

    EXPECT_FALSE(frame->isEnabled() || Nodes().isEnabled() || options.isEnabled());
    for (const QString side : { "frmShareList", "frmPreviewOpt", "frmIconStat" })
        EXPECT_FALSE(Find<QWidget>(side).isEnabled()) << side.toStdString();
    EXPECT_FALSE(Find<QWidget>("menuBar").isEnabled());
    EXPECT_TRUE(Window()->isEnabled() && View().isEnabled());
    PressIn("cmdCancelTC");
    EXPECT_TRUE(frame->isEnabled() && Nodes().isEnabled() && options.isEnabled());
}

TEST_F(ChangeTC, TheKeyRMarksNothingMeanwhile)
{
    OpenEditor();

    for (QWidget* target : std::initializer_list<QWidget*>{ &Nodes(), &frame->Form(), &View() })
        QTest::keyClick(target, Qt::Key_R);
    EXPECT_EQ(IconTable[*FindIconRow("Alpha (Large Icon)")].IconState, 1);

    PressIn("cmdCancelTC");
    QTest::keyClick(&Nodes(), Qt::Key_R);
    EXPECT_EQ(IconTable[*FindIconRow("Alpha (Large Icon)")].IconState, 0);
}

TEST_F(ChangeTC, ASecondUseOfACommandOpensNoSecondWindow)
{
    OpenEditor();

    Find<QPushButton>("cmdChangeTC_LG").click();
    Find<QPushButton>("cmdChangeTC_SM").click();

    EXPECT_EQ(frame->findChildren<QDialog*>("frmChangeTC").size(), 1);
    EXPECT_TRUE(EditingLG);
}

TEST_F(ChangeTC, AFileThatHasVanishedShowsNothingAndNothingCanBePicked)
{
    Click("Alpha (Large Icon)");
    std::filesystem::remove(HighResPath);
    OpenEditor();

    EXPECT_TRUE(View().size().isEmpty());
    QTest::mouseClick(&View(), Qt::LeftButton, {}, { 1, 1 });
    View().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&View(), Qt::Key_Right);
    QTest::keyClick(&View(), Qt::Key_Space);
    EXPECT_EQ(Cells(), "1 255 0 255");

    PressIn("cmdApplyTC");
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(frame->isEnabled());
}

TEST_F(ChangeTC, AFileThatVanishesMeanwhileLeavesAnEmptyViewAtTheNextZoom)
{
    OpenEditor();
    std::filesystem::remove(HighResPath);

    PressIn("cmdZoom4X");

    EXPECT_TRUE(View().size().isEmpty());
    EXPECT_FALSE(View().grab().toImage().width() > 0);
    PressIn("cmdCancelTC");
    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTC, ZoomingShowsThePictureCentredAndMagnified)
{
    OpenEditor();
    const QWidget& around = *Part<QScrollArea>("picFrame").viewport();
    const auto isCentred = [&] {
        return View().x() == around.width() / 2 - View().width() / 2
            && View().y() == around.height() / 2 - View().height() / 2;
    };
    EXPECT_TRUE(isCentred());

    PressIn("cmdZoom4X");
    EXPECT_EQ(View().size(), QSize(8, 4));
    EXPECT_TRUE(isCentred());
    const QImage seen = View().grab().toImage();
    EXPECT_EQ(seen.pixelColor(3, 3), QColor(0, 0, 255));
    EXPECT_EQ(seen.pixelColor(4, 0), QColor(Qt::white)) << "no pixel between the two";

    PressIn("cmdZoom2X");
    EXPECT_EQ(View().size(), QSize(4, 2));
}

TEST_F(ChangeTC, TabGoesFromThePictureToTheButtons)
{
    OpenEditor();
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "optUseTransparent");
    View().setFocus();

    for (const QString name :
        { "cmdZoom2X", "cmdZoom4X", "chkViewTransparent", "VScrollRed", "TextRed", "VScrollGrn",
            "TextGrn", "VScrollBlue", "TextBlue", "chkBackGray", "cmdApplyTC", "cmdCancelTC" }) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
    for (const QString name : { "picMain", "txtTC_Red", "txtTC_Grn", "txtTC_Blue" })
        EXPECT_FALSE(Part<QWidget>(name).accessibleName().isEmpty()) << name.toStdString();
}

TEST_F(ChangeTC, ALargePictureScrolls)
{
    Click("Alpha (Large Icon)");
    vypx::Picture large(300, 200);
    large.Set(299, 199, { 1, 2, 3 });
    WriteBytes(HighResPath, EncodeBmp24(large));
    OpenEditor();
    PressIn("cmdZoom4X");
    EXPECT_EQ(View().size(), QSize(1200, 800));
    auto& area = Part<QScrollArea>("picFrame");
    ASSERT_GT(area.horizontalScrollBar()->maximum(), 0);

    area.horizontalScrollBar()->setValue(area.horizontalScrollBar()->maximum());
    area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
    Pick(299, 199, 4);

    EXPECT_EQ(Cells(), "1 1 2 3");
    EXPECT_EQ(View().visibleRegion().boundingRect().bottomRight(), QPoint(1199, 799));
}

TEST_F(ChangeTC, TheProgramCanGoWithTheWindowOpen)
{
    OpenEditor();

    frame.reset();

    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

} // namespace vypx::test
