#include "IconsFixture.h"

#include "companion/BmpFile.h"
#include "document/Selection.h"

#include <QHelpEvent>
#include <QToolTip>

namespace vypx::test {

namespace {

using Selecting = IconsFixture;

TEST_F(Selecting, AClickShowsBothPicturesTheirSizesAndColours)
{
    Click("Alpha (Large Icon)");

    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "2 x 1 pixels");
    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "2 x 1 pixels");
    EXPECT_EQ(Find<QLabel>("lblLG_Size").text(), "Max 64 x 44");
    EXPECT_EQ(Find<QLabel>("lblSM_Size").text(), "Max 32 x 22");
    for (const QString letters : { "LG", "SM" }) {
        EXPECT_EQ(Find<QLabel>("lblC_RGB_" + letters).text(), "255, 0, 255");
        EXPECT_TRUE(Find<QLabel>("lblC_RGB_" + letters).isVisible());
        EXPECT_TRUE(Find<QWidget>("picColSwatch" + letters).isVisible());
        EXPECT_FALSE(Find<QLabel>("lblNoTransparent" + letters).isVisible());
        EXPECT_EQ(Pixel("picColSwatch" + letters, { 3, 3 }), QColor(255, 0, 255));
        EXPECT_EQ(Find<QWidget>("pic" + letters).size(), QSize(2, 1));
    }
}

TEST_F(Selecting, TransparentPixelsShowTheBackground)
{
    Click("Alpha (Large Icon)");

    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(0, 0, 255));
    EXPECT_EQ(Pixel("picLG", { 1, 0 }), QColor(255, 255, 255));
}

TEST_F(Selecting, WithTransparencyOffThePictureShowsAsItIsStored)
{
    TransparentUse = false;
    Click("Alpha (Large Icon)");

    EXPECT_EQ(Pixel("picSM", { 0, 0 }), QColor(255, 0, 255));
    EXPECT_TRUE(Find<QWidget>("picColSwatchSM").isVisible());
}

TEST_F(Selecting, APictureWithoutATransparentColourSaysSo)
{
    Click("Alpha (Small Icon)");

    EXPECT_TRUE(Find<QLabel>("lblNoTransparentLG").isVisible());
    EXPECT_FALSE(Find<QLabel>("lblC_RGB_LG").isVisible());
    EXPECT_EQ(Pixel("picLG", { 0, 0 }), QColor(255, 0, 255));
}

TEST_F(Selecting, OneSlotOnlyLeavesTheOtherEmptyWithoutWords)
{
    Click("Alpha (Small Icon)"); // which has both, and no colour to show
    ASSERT_TRUE(Find<QLabel>("lblNoTransparentLG").isVisible());
    Click("Beta (Large Icon)");

    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "1 x 1 pixels");
    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "");
    EXPECT_FALSE(Find<QLabel>("lblNoTransparentLG").isVisible());
    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
}

TEST_F(Selecting, AHighResPictureOnlyLeavesTheLowResPanelEmpty)
{
    Click("Alpha (Small Icon)");
    ASSERT_TRUE(Find<QLabel>("lblNoTransparentSM").isVisible());
    IconTable[0].LowResFile = "NEW";
    Click("Alpha (Large Icon)");

    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "2 x 1 pixels");
    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "");
    EXPECT_FALSE(Find<QLabel>("lblNoTransparentSM").isVisible());
    EXPECT_FALSE(Find<QLabel>("lblC_RGB_SM").isVisible());
    EXPECT_TRUE(Find<QWidget>("picSM").size().isEmpty());
}

TEST_F(Selecting, APictureThatTheTableOfBitmapsLacksHasNoTransparentColour)
{
    Click("Alpha (Large Icon)");
    ASSERT_TRUE(Find<QLabel>("lblC_RGB_LG").isVisible());
    BitmapTable.assign(1, {});
    Click("Alpha (Small Icon)");
    Click("Alpha (Large Icon)");

    EXPECT_FALSE(LGhasTransparent || SMhasTransparent);
    EXPECT_FALSE(Find<QLabel>("lblC_RGB_LG").isVisible());
    EXPECT_TRUE(Find<QLabel>("lblNoTransparentLG").isVisible());
    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "2 x 1 pixels");
}

TEST_F(Selecting, PicturesStandInTheMiddleByTwoHalvings)
{
    Click("Beta (Large Icon)"); // 1 x 1: half of it is 0
    QWidget& box = Find<QWidget>("picSMfrm");
    const QWidget& picture = Find<QWidget>("picSM");
    for (const QSize size : { QSize(300, 200), QSize(301, 201) }) {
        box.resize(size);

        EXPECT_EQ(picture.pos(), QPoint(150, 100)) << "of an even box not (300 - 1) / 2";
    }
}

TEST_F(Selecting, PicturesStayInTheMiddleWhenTheWindowGrows)
{
    Click("Alpha (Large Icon)");

    Find<QWidget>("Form1").parentWidget()->resize(1100, 900);
    QCoreApplication::processEvents();

    EXPECT_EQ(Find<QWidget>("picLG").x(), Find<QWidget>("picLGfrm").width() / 2 - 1);
}

TEST_F(Selecting, AMissingWorkingFileLeavesThePanelEmpty)
{
    std::filesystem::remove(WorkPath("tAIB3500-d144.bmp"));

    Click("Alpha (Large Icon)");

    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "");
    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "2 x 1 pixels");
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(Selecting, ALargerPictureIsClippedByItsBox)
{
    WriteBytes(WorkPath("tAIB3500-d144.bmp"), EncodeBmp24(vypx::Picture(900, 800)));

    Click("Alpha (Large Icon)");

    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "900 x 800 pixels");
    EXPECT_EQ(Find<QWidget>("picLG").size(), QSize(900, 800));
    EXPECT_LT(Find<QWidget>("picLG").x(), 0);
}

TEST_F(Selecting, TheRootKeepsThePanelsEmptyAndOffersTheRename)
{
    Click("Alpha (Large Icon)");
    Click("Set");

    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
    EXPECT_EQ(Find<QLabel>("lblLG_Size").text() + Find<QLabel>("lbl_SMsize").text(), "");
    EXPECT_FALSE(IsOn("cmdRemoveIcon"));
    EXPECT_TRUE(IsOn("cmdChangeDataBaseName"));
}

TEST_F(Selecting, TheKeyboardSelectsLikeTheMouse)
{
    Click("Alpha (Large Icon)");

    QTest::keyClick(&Nodes(), Qt::Key_Down);

    EXPECT_EQ(SelectedNode, "Alpha (Small Icon)");
    EXPECT_TRUE(Find<QLabel>("lblNoTransparentLG").isVisible());
}

TEST_F(Selecting, TheRemoveButtonMarksAndRestores)
{
    Click("Alpha (Large Icon)");
    auto& button = Find<QPushButton>("cmdRemoveIcon");

    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(button.text(), "&Restore Selected");
    EXPECT_EQ(ImageOf("Alpha (Large Icon)"), 6);
    EXPECT_TRUE(IsOn("cmdClrDeleted"));
    EXPECT_TRUE(IconsetChanged);

    const QImage restore = button.icon().pixmap(16).toImage();
    Click("Beta (Large Icon)");
    EXPECT_EQ(button.text(), "&Remove Selected");
    EXPECT_NE(button.icon().pixmap(16).toImage(), restore) << "a picture of its own";
    Click("Alpha (Large Icon)");
    EXPECT_EQ(button.icon().pixmap(16).toImage(), restore);
    EXPECT_EQ(button.text(), "&Restore Selected");

    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(button.text(), "&Remove Selected");
    EXPECT_EQ(ImageOf("Alpha (Large Icon)"), 2);
    EXPECT_TRUE(IsOn("cmdClrDeleted")) << "the orphan is marked still";
}

TEST_F(Selecting, PlainRRemovesAndTheTreesTypeAheadDoesNotGetIt)
{
    Click("Alpha (Large Icon)");

    QTest::keyClick(&Nodes(), Qt::Key_R);

    EXPECT_EQ(ImageOf("Alpha (Large Icon)"), 6);
    EXPECT_EQ(SelectedNode, "Alpha (Large Icon)");
}

TEST_F(Selecting, AnRThatIsHeldDownMarksOnce)
{
    Click("Alpha (Large Icon)");

    for (const bool repeats : { false, true, true }) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_R, Qt::NoModifier, "r", repeats);
        QCoreApplication::sendEvent(&Nodes(), &press);
    }

    EXPECT_EQ(IconTable[0].IconState, 0);
    EXPECT_EQ(SelectedNode, "Alpha (Large Icon)") << "the tree's search gets none of them";
}

TEST_F(Selecting, TheAssignButtonSaysWhatItIsFor)
{
    Click("tAIB3503 (Orphan) ");
    EXPECT_EQ(Find<QPushButton>("cmdAssignApp").text(), "Assign Orphan");

    Click("Alpha (Large Icon)");
    EXPECT_EQ(Find<QPushButton>("cmdAssignApp").text(), "Change / Share");
}

TEST_F(Selecting, AfterAllIconsAreClearedOnlyTheRootStands)
{
    for (IconRow& row : IconTable)
        row.IconState = 0;
    frame->Form().UpdateIconStats();
    ask.Answer(QMessageBox::Ok);

    QTest::mouseClick(&Find<QPushButton>("cmdClrDeleted"), Qt::LeftButton);

    EXPECT_EQ(NodeTexts(), QStringList());
    EXPECT_EQ(Nodes().Root()->text(0), "Set");
}

TEST_F(Selecting, ALabelThatIsCutHasItsWholeTextInATip)
{
    const auto tipOf = [&](const QString& label) {
        const QPoint at = Nodes().visualItemRect(Nodes().NodeOf(label)).center();
        QHelpEvent help(QEvent::ToolTip, at, Nodes().viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(Nodes().viewport(), &help);
        return QToolTip::text();
    };
    EXPECT_EQ(tipOf("Alpha (Large Icon)"), "");
    const std::string name =
        "<b>A name that no tree is wide enough for</b> " + std::string(60, 'x');
    IconTable[0].IconLabel = name + " (Large Icon)";
    RebuildIconTree();
    Nodes().Fill(Tree);

    const QString tip = tipOf(QString::fromStdString(IconTable[0].IconLabel));

    EXPECT_TRUE(tip.contains("&lt;b&gt;A name")) << tip.toStdString();
    EXPECT_TRUE(tip.contains("(Large Icon)"));
    EXPECT_EQ(Nodes().textElideMode(), Qt::ElideMiddle) << "the size stays in sight";
}

TEST_F(Selecting, AFileThatCannotBeReadLeavesNothingToMark)
{
    Click("Alpha (Large Icon)");
    QTest::keyClick(&Nodes(), Qt::Key_R);
    ASSERT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Restore Selected");

    ask.Answer(QMessageBox::No); // nothing of the marks is to be saved
    Open(QString::fromStdString(program.File("gone.prc")));

    ASSERT_FALSE(FileLoaded);
    EXPECT_FALSE(IsOn("cmdRemoveIcon"));
    EXPECT_FALSE(IsOn("cmdClrDeleted"));
    EXPECT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Remove Selected");
    QTest::keyClick(&Nodes(), Qt::Key_R);
    EXPECT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Remove Selected");
}

TEST_F(Selecting, RWithCtrlRemovesNothing)
{
    Click("Alpha (Large Icon)");

    QTest::keyClick(&Nodes(), Qt::Key_R, Qt::ControlModifier);

    EXPECT_EQ(ImageOf("Alpha (Large Icon)"), 2);
}

TEST_F(Selecting, RDoesNothingWhileTheButtonIsDisabled)
{
    Click("tAIB3503 (Orphan) ");
    ASSERT_FALSE(IsOn("cmdRemoveIcon"));

    QTest::keyClick(&Nodes(), Qt::Key_R);

    EXPECT_FALSE(IconsetChanged);
    EXPECT_EQ(SelectedNode, "tAIB3503 (Orphan) ");
}

TEST_F(Selecting, ClearingAsksAndDropsMarkedIcons)
{
    Click("Alpha (Large Icon)");
    QTest::keyClick(&Nodes(), Qt::Key_R);

    ask.Answer(QMessageBox::Cancel);
    QTest::mouseClick(&Find<QPushButton>("cmdClrDeleted"), Qt::LeftButton);
    EXPECT_NE(Nodes().NodeOf("Alpha (Large Icon)"), nullptr);

    ask.Answer(QMessageBox::Ok);
    QTest::mouseClick(&Find<QPushButton>("cmdClrDeleted"), Qt::LeftButton);

    const Box& box = ask.shown.back();
    EXPECT_EQ(box.title, "Clear Deleted Icons From Tree?");
    EXPECT_EQ(box.text, "About to remove all icons that are marked as deleted.\n\nAre you sure?");
    EXPECT_EQ(box.icon, QMessageBox::Information);
    EXPECT_EQ(box.buttons, QMessageBox::Ok | QMessageBox::Cancel);
    EXPECT_EQ(NodeTexts(), QStringList({ "Alpha (Small Icon)", "Beta (Large Icon)" }))
        << "the orphan was marked as well";
    EXPECT_EQ(IconTable.size(), 2u);
    EXPECT_FALSE(IsOn("cmdRemoveIcon"));
    EXPECT_FALSE(IsOn("cmdClrDeleted"));
    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
}

TEST_F(Selecting, ClearingWithNothingMarkedSaysSo)
{
    Click("Alpha (Large Icon)");
    for (IconRow& row : IconTable)
        row.IconState = 1; // the button's state is that of the last count
    ask.Answer(QMessageBox::Ok);

    QTest::mouseClick(&Find<QPushButton>("cmdClrDeleted"), Qt::LeftButton);

    EXPECT_EQ(Messages(), QStringList("There are currently no icons to be deleted."));
}

TEST_F(Selecting, NoSelectionMovesThePanels)
{
    const QRect before = Find<QWidget>("frameLG").geometry();

    for (const QString text : { "Set", "Alpha (Large Icon)", "Alpha (Small Icon)" }) {
        Click(text);
        Find<QLabel>("lblC_RGB_LG").setText("255, 255, 255"); // no colour's text is wider
        QTest::qWait(30);

        EXPECT_EQ(Find<QWidget>("frameLG").geometry(), before) << text.toStdString();
    }
}

TEST_F(WindowFixture, AnIconWhoseOwnerHoldsAnyBytesCanBeSelectedAndMarked)
{
    const std::string owner("\0\n\x80\xFF", 4);
    Start();
    Open(Written(Iconset{
        .resources = { { "iTbl", 1000, IndexRecord("appl", owner, 3500, 0) }, Picture(3500) } }
                     .File()));
    ASSERT_EQ(Nodes().Root()->childCount(), 1);

    QTest::mouseClick(Nodes().viewport(), Qt::LeftButton, {},
        Nodes().visualItemRect(Nodes().Root()->child(0)).center());
    QTest::keyClick(&Nodes(), Qt::Key_R);

    EXPECT_EQ(SelectedNode, "tAIB3500 (" + owner + " - Large) ");
    EXPECT_EQ(Nodes().Root()->child(0)->data(0, IconTreeView::ImageRole), 6);
}

} // namespace
} // namespace vypx::test
