#include "WindowFixture.h"

#include <QImage>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTextDocumentFragment>

namespace vypx::test {

namespace {

class MainForm : public WindowFixture {
protected:
    MainForm() { Start(); }

    /// The colour that the screen shows at a point of a control.
    QColor ColourAt(const QString& name, const QPoint& point)
    {
        QWidget& control = Find<QWidget>(name);
        return control.grab().toImage().pixelColor(point);
    }
};

TEST_F(MainForm, HasEveryControl)
{
    for (const QString name :
        { "TreeView1", "StatusBar1", "ProgressBar1", "lblWorking", "lblTargetCD", "lblSearchingApp",
            "listPRC", "ListBuffMain", "picbuff", "ImageBUF", "picbufCLowRes", "imgbuffCLowRes",
            "frameKey", "cmdAddIcon", "cmdAssignApp", "cmdRemoveIcon", "cmdClrDeleted",
            "cmdEditAppList", "cmdChangeDataBaseName", "cmdCreateLowRes" })
        EXPECT_NE(frame->findChild<QWidget*>(name), nullptr) << name.toStdString();
    for (const QString letters : { "LG", "SM" })
        for (const QString name :
            { "frame%1", "pic%1frm", "pic%1", "lbl%1_Size", "lbl_%1size", "frameTC_%1",
                "picColSwatch%1", "lblC_RGB_%1", "lblNoTransparent%1", "cmdImport%1", "cmdSave%1",
                "cmdCopyClip%1", "cmdPastePic%1", "cmdDel%1", "cmdUndo%1", "cmdChangeTC_%1" })
            EXPECT_NE(frame->findChild<QWidget*>(name.arg(letters)), nullptr)
                << name.arg(letters).toStdString();
}

TEST_F(MainForm, CaptionsStandLetterForLetter)
{
    EXPECT_EQ(Find<QPushButton>("cmdAddIcon").text(), "Add Icon");
    EXPECT_EQ(Find<QPushButton>("cmdRemoveIcon").text(), "&Remove Selected");
    EXPECT_EQ(Find<QPushButton>("cmdChangeDataBaseName").text(), "Change Palm Iconset Name");
    EXPECT_EQ(Find<QGroupBox>("frameLG").title(), "High Res");
    EXPECT_EQ(Find<QGroupBox>("frameSM").title(), "Low Res");
    EXPECT_EQ(Find<QGroupBox>("frameTC_LG").title(), "Transparent Color");
    EXPECT_EQ(Find<QGroupBox>("frameTC_SM").title(), "Transparent Color");
    EXPECT_EQ(Find<QLabel>("lblNoTransparentLG").text(), "No Transparent Color");
    EXPECT_EQ(Find<QLabel>("lblNoTransparentSM").text(), "No Transparent Color");
    EXPECT_EQ(Find<QLabel>("lblWorking").text(), "Working....");
    EXPECT_EQ(Find<QLabel>("lblCurrentCD").text(), "Current Color Depth = ");
    EXPECT_EQ(Find<QWidget>("picColSwatchLG").toolTip(), "The current transparent color");
    EXPECT_EQ(Find<QWidget>("picColSwatchSM").toolTip(), "The current transparent color");
    EXPECT_EQ(frame->windowTitle(), "VY Pixelworks");
}

TEST_F(MainForm, TheLegendExplainsTheTreesPictures)
{
    struct {
        int image;
        const char *caption, *tip;
    } const legend[] = {
        { 1, "Vantry", "Vantry System Icon" },
        { 3, "Palm", "A Palm OS System Icon" },
        { 2, "Application", " Program Icon" },
        { 4, "Unknown App", "A valid icon, but program isn't listed in the program database" },
        { 6, "Icon to be Deleted", "Icon wil be removed from the iconset when saved" },
    };

    for (const auto& [image, caption, tip] : legend) {
        QLabel& words = Find<QLabel>(QString("lblKey%1").arg(image));
        QLabel& picture = Find<QLabel>(QString("imgKey%1").arg(image));
        EXPECT_EQ(words.text(), caption);
        EXPECT_EQ(words.toolTip(), tip);
        EXPECT_EQ(picture.toolTip(), tip);
        EXPECT_EQ(picture.pixmap(Qt::ReturnByValue).toImage(),
            Nodes().Image(image).pixmap(16, 16).toImage());
    }
}

TEST_F(MainForm, TheLegendsWordsStayBesideTheirPicturesInAWideWindow)
{
    Find<QWidget>("Form1").parentWidget()->resize(1200, 700);
    QTest::qWait(30);

    for (const int image : { 1, 2, 3, 4, 6 }) {
        const QRect picture = Find<QLabel>(QString("imgKey%1").arg(image)).geometry();
        const QRect words = Find<QLabel>(QString("lblKey%1").arg(image)).geometry();
        EXPECT_LE(picture.width(), 24) << image;
        EXPECT_LT(words.left() - picture.right(), 12) << image;
    }
}

TEST_F(MainForm, ChromeAndPanelsHaveTheirColours)
{
    const QColor chrome(224, 223, 227), blue(0, 0, 255);
    // Points that show the control's own ground: no text, frame or control stands there.
    EXPECT_EQ(ColourAt("Form1", { 2, 2 }), chrome);
    for (const QString name : { "frameKey", "frameLG", "frameSM", "frameTC_LG", "frameTC_SM" }) {
        const QSize size = Find<QWidget>(name).size();
        EXPECT_EQ(ColourAt(name, { 6, size.height() - 4 }), chrome) << name.toStdString();
    }
    for (const QString name : { "picLGfrm", "picSMfrm" })
        EXPECT_EQ(ColourAt(name, { 5, 5 }), blue) << name.toStdString();
    for (const QString name : { "picLG", "picSM" }) {
        Find<QWidget>(name).resize(4, 4);
        EXPECT_EQ(ColourAt(name, { 1, 1 }), blue) << name.toStdString();
    }
    Find<QWidget>("lblWorking").show();
    EXPECT_EQ(ColourAt("lblWorking", { 0, 0 }), chrome);
}

TEST_F(MainForm, IsReadableOnADarkDesktop)
{
    const QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    QApplication::setPalette(dark);
    MDIForm1 other(ask);
    other.Start(QString::fromStdString(program.Path()), {});

    const auto* words = other.findChild<QLabel*>("lblKey1");
    EXPECT_LT(words->palette().color(QPalette::WindowText).lightness(), 80);
    EXPECT_GT(words->palette().color(QPalette::Window).lightness(), 200);

    QApplication::setPalette(QPalette());
}

TEST_F(MainForm, HelpersStayOutOfSight)
{
    for (const QString name : { "listPRC", "ListBuffMain", "picbuff", "ImageBUF", "picbufCLowRes",
             "imgbuffCLowRes", "lblWorking", "lblSearchingApp", "ProgressBar1", "picColSwatchLG",
             "picColSwatchSM", "lblNoTransparentLG", "lblNoTransparentSM" })
        EXPECT_FALSE(Find<QWidget>(name).isVisible()) << name.toStdString();
}

TEST_F(MainForm, NoTwoCommandsShareAnAltKey)
{
    QStringList keys;
    const auto add = [&](const QString& caption) {
        const QKeySequence key = QKeySequence::mnemonic(caption);
        if (key.isEmpty())
            return;
        EXPECT_FALSE(keys.contains(key.toString())) << caption.toStdString();
        keys << key.toString();
    };

    for (const QAction* menu : Find<QMenuBar>("menuBar").actions())
        add(menu->text());
    for (const QPushButton* button : Find<QWidget>("Form1").findChildren<QPushButton*>())
        add(button->text());

    EXPECT_GT(keys.size(), 6);
}

TEST_F(MainForm, TheKeysThatCloseADocumentCloseNoWindow)
{
    frame->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));

    for (const Qt::Key key : { Qt::Key_W, Qt::Key_F4 })
        QTest::keyClick(&Nodes(), key, Qt::ControlModifier);

    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(Find<QWidget>("Form1").isVisible());
}

TEST_F(MainForm, TheTipOfAStatusPanelShowsTagsAsTheyAre)
{
    Open(Written(Iconset{ .name = "<b>Fern</b>" }.File()));

    const QString tip = Find<QLabel>("StatusBar1_Panel2").toolTip();
    EXPECT_EQ(
        QTextDocumentFragment::fromHtml(tip).toPlainText(), "Palm Database Name = <b>Fern</b>");
    EXPECT_EQ(Status(2), "Palm Database Name = <b>Fern</b>");
}

} // namespace
} // namespace vypx::test
