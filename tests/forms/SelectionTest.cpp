#include "WindowFixture.h"

#include "companion/BmpFile.h"

#include <QLineEdit>
#include <QPushButton>

namespace vypx::test {

namespace {

/// A 2 x 1 record at 8 bits: index 5 (255, 0, 255), which is transparent when flagged, and white.
Bytes TwoPixels(bool high, bool flagged)
{
    Bytes record(high ? 28 : 20, 0);
    PutU16(record, 0, 2);
    PutU16(record, 2, 1);
    PutU16(record, 4, 2);
    record[6] = flagged ? 0x20 : 0;
    record[8] = 8;
    record[high ? 19 : 12] = 5;
    record[high ? 24 : 16] = 5;
    return record;
}

Resource BothPictures(int id, bool flagged)
{
    Bytes low = TwoPixels(false, flagged);
    PutU16(low, 10, static_cast<unsigned>(low.size() / 4));
    return { "tAIB", id, Join({ low, Separator(), TwoPixels(true, flagged) }) };
}

class Selecting : public WindowFixture {
protected:
    Selecting()
    {
        Start();
        AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "BETA", "" } };
        Open(Written(Iconset{ .name = "Set",
            .resources = { { "iTbl", 1000,
                               Join({ IndexRecord("appl", "ALPH", 3500, 3501),
                                   IndexRecord("appl", "BETA", 3502, 0) }) },
                BothPictures(3500, true), BothPictures(3501, false), Picture(3502),
                { "tAIB", 3503, TwoPixels(false, false) } } }
                         .File()));
    }

    /// A real click on the node's text.
    void Click(const QString& text)
    {
        QTreeWidgetItem* const node = text == "Set" ? Nodes().Root() : Nodes().NodeOf(text);
        ASSERT_NE(node, nullptr) << text.toStdString();
        QTest::mouseClick(
            Nodes().viewport(), Qt::LeftButton, {}, Nodes().visualItemRect(node).center());
    }
    bool IsOn(const QString& name) { return Find<QPushButton>(name).isEnabled(); }
    QColor Pixel(const QString& box, const QPoint& point)
    {
        return Find<QWidget>(box).grab().toImage().pixelColor(point);
    }
    int ImageOf(const QString& text)
    {
        return Nodes().NodeOf(text)->data(0, IconTreeView::ImageRole).toInt();
    }
};

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
    Click("Beta (Large Icon)");

    EXPECT_EQ(Find<QLabel>("lbl_SMsize").text(), "1 x 1 pixels");
    EXPECT_EQ(Find<QLabel>("lbl_LGsize").text(), "");
    EXPECT_FALSE(Find<QLabel>("lblNoTransparentLG").isVisible());
    EXPECT_TRUE(Find<QWidget>("picLG").size().isEmpty());
}

TEST_F(Selecting, PicturesStandInTheMiddleByTwoHalvings)
{
    Click("Beta (Large Icon)");

    const QWidget& box = Find<QWidget>("picSMfrm");
    const QWidget& picture = Find<QWidget>("picSM");
    EXPECT_EQ(picture.x(), box.width() / 2 - 1 / 2);
    EXPECT_EQ(picture.y(), box.height() / 2 - 1 / 2);
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

    Click("Beta (Large Icon)");
    EXPECT_EQ(button.text(), "&Remove Selected");
    Click("Alpha (Large Icon)");
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

TEST_F(Selecting, RWithCtrlOrAltRemovesNothing)
{
    Click("Alpha (Large Icon)");

    QTest::keyClick(&Nodes(), Qt::Key_R, Qt::ControlModifier);
    QTest::keyClick(&Nodes(), Qt::Key_R, Qt::AltModifier);

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

/// The root's text is edited to this.
class Renaming : public Selecting {
protected:
    void Rename(const QString& text)
    {
        Click("Set");
        QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
        auto& edit = Find<QLineEdit>("txtLabelEdit");
        edit.selectAll();
        if (text.isEmpty())
            QTest::keyClick(&edit, Qt::Key_Delete);
        else
            QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return Status(2) != "Palm Database Name = Set"; }));
    }
};

TEST_F(Renaming, ChangesTheRootTheNameAndTheStatusBar)
{
    Rename("Renamed r");

    EXPECT_EQ(Nodes().Root()->text(0), "Renamed r");
    EXPECT_EQ(DatabaseName, "Renamed r");
    EXPECT_EQ(Status(2), "Palm Database Name = Renamed r");
    EXPECT_EQ(Parent, "Set");
    EXPECT_FALSE(IconsetChanged);
}

TEST_F(Renaming, OnPurposeAnEmptyNameStandsInTheStatusBarButNotInTheTree)
{
    Rename("");

    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_EQ(DatabaseName, "");
    EXPECT_EQ(Status(2), "Palm Database Name = ");
    EXPECT_TRUE(ask.shown.empty());
}

TEST_F(Renaming, OnPurposeANameThatIsTooLongIsRefusedByTheTreeOnly)
{
    ask.Answer(QMessageBox::Ok);

    Rename("ABCDEFGHIJKLMNOPQRSTUVWXYZ012345");

    EXPECT_TRUE(QTest::qWaitFor([&] { return !ask.shown.empty(); }));
    EXPECT_EQ(Messages(), QStringList("Maximum name length is 31 characters."));
    EXPECT_EQ(Nodes().Root()->text(0), "Set");
    EXPECT_EQ(DatabaseName, "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345");
}

TEST_F(Renaming, AcceptsA31CharacterName)
{
    Rename("ABCDEFGHIJKLMNOPQRSTUVWXYZ01234");

    EXPECT_EQ(Nodes().Root()->text(0), "ABCDEFGHIJKLMNOPQRSTUVWXYZ01234");
}

TEST_F(Renaming, WhatLatin1LacksCannotBeTypedIn)
{
    Click("Set");
    QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
    auto& edit = Find<QLineEdit>("txtLabelEdit");
    edit.clear();

    edit.insert(QString::fromUtf8("\xE2\x82\xAC")); // the euro sign, as a paste brings it
    edit.insert(QString::fromUtf8("Caf\xC3\xA9"));

    EXPECT_EQ(edit.text(), QString::fromUtf8("Caf\xC3\xA9"));
}

TEST_F(Renaming, EscapeLeavesEverythingAsItWas)
{
    Click("Set");
    QTest::mouseClick(&Find<QPushButton>("cmdChangeDataBaseName"), Qt::LeftButton);
    auto& edit = Find<QLineEdit>("txtLabelEdit");
    QTest::keyClicks(&edit, "zzz");
    QTest::keyClick(&edit, Qt::Key_Escape);
    QCoreApplication::processEvents();

    EXPECT_EQ(DatabaseName, "Set");
    EXPECT_EQ(Nodes().Root()->text(0), "Set");
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

} // namespace
} // namespace vypx::test
