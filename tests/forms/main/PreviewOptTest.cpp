#include "IconsFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollBar>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::HasSubstr;
using ::testing::Not;

const QColor Background(0, 0, 255);

/// Finds the window by its name, as a user by its title.
template <typename Fixture>
class WithPreview : public Fixture {
protected:
    QMdiSubWindow* Window()
    {
        return this->frame->template findChild<QMdiSubWindow*>("frmPreviewOpt");
    }
    QAction& Mark() { return this->Entry("mnuShowPrevOpt"); }
    void Choose(const QString& colour, int value)
    {
        this->template Find<QScrollBar>("VScroll" + colour).setValue(value);
    }
    QStringList Texts()
    {
        QStringList texts;
        for (const QString name : { "TextRed", "TextGrn", "TextBlue" })
            texts << this->template Find<QLineEdit>(name).text();
        return texts;
    }
    void LetItGo() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    void Close()
    {
        Window()->close();
        LetItGo();
    }
    void Leave()
    {
        this->Entry("mnuExit").trigger();
        this->frame.reset();
    }
    QColor Shown(const QString& box, const QPoint& point)
    {
        return this->template Find<QWidget>(box).grab().toImage().pixelColor(point);
    }
};

/// At a start with a settings file.
class PreviewAtStart : public WithPreview<WindowFixture> { };

/// Over a document with a transparent icon on show.
class PreviewOptions : public WithPreview<IconsFixture> {
protected:
    PreviewOptions() { Click("Alpha (Large Icon)"); }
};

} // namespace

TEST_F(PreviewAtStart, ItShowsBlueByDefault)
{
    Start();

    EXPECT_EQ(Texts(), QStringList({ "0", "0", "255" }));
}

TEST_F(PreviewAtStart, ItShowsTheRememberedColour)
{
    WriteSettings("[PreviewBackColor]\nRemember=True\nRed=10\nGreen=20\nBlue=30\n");

    Start();

    EXPECT_EQ(Texts(), QStringList({ "10", "20", "30" }));
}

TEST_F(PreviewAtStart, AColourThatIsRememberedComesBack)
{
    Start();
    Choose("Red", 77);
    RememberPreviewColor = true;

    Leave();
    Start();

    EXPECT_EQ(Texts(), QStringList({ "77", "0", "255" }));
}

TEST_F(PreviewOptions, AChangePaintsBothPanelsAtOnce)
{
    Choose("Red", 200);

    EXPECT_EQ(R, 200);
    for (const QString box : { "picLGfrm", "picSMfrm", "picLG", "picSM" })
        EXPECT_EQ(Shown(box, { 0, 0 }), QColor(200, 0, 255)) << box.toStdString();
    EXPECT_EQ(Shown("picLG", { 1, 0 }), QColor(Qt::white)) << "the icon itself";
    EXPECT_EQ(Find<QLabel>("lblC_RGB_LG").isVisible(), true) << "texts of the icon stay";
}

TEST_F(PreviewOptions, ADragPaintsThemAtEachStep)
{
    QScrollBar& bar = Find<QScrollBar>("VScrollGrn");
    bar.setSliderDown(true);

    bar.setSliderPosition(40);
    EXPECT_EQ(Shown("picLG", { 0, 0 }), QColor(0, 40, 255));

    bar.setSliderPosition(90);
    EXPECT_EQ(Shown("picSMfrm", { 0, 0 }), QColor(0, 90, 255));
    EXPECT_EQ(bar.value(), 0) << "still being dragged";
}

TEST_F(PreviewOptions, WithoutTheTransparentColourTheMaskIsShown)
{
    QCheckBox& use = Find<QCheckBox>("chkUseTransparent");
    EXPECT_EQ(use.text(), "Use Transparent Color");
    ASSERT_TRUE(use.isChecked());
    ASSERT_EQ(Shown("picLG", { 0, 0 }), Background);

    QTest::mouseClick(&use, Qt::LeftButton, {}, { 8, use.height() / 2 });
    EXPECT_FALSE(TransparentUse);
    EXPECT_EQ(Shown("picLG", { 0, 0 }), QColor(255, 0, 255));
    EXPECT_EQ(Shown("picSM", { 0, 0 }), QColor(255, 0, 255));

    Close();
    Mark().trigger();
    EXPECT_FALSE(Find<QCheckBox>("chkUseTransparent").isChecked());
    Find<QCheckBox>("chkUseTransparent").click();
    EXPECT_EQ(Shown("picLG", { 0, 0 }), Background);
}

TEST_F(PreviewOptions, OnPurposeAColourThatIsNotRememberedGoesWithItsWindow)
{
    Choose("Red", 200);
    Close();
    ASSERT_EQ(Shown("picLG", { 0, 0 }), QColor(200, 0, 255));

    Mark().trigger();

    EXPECT_EQ(Texts(), QStringList({ "0", "0", "255" }));
    EXPECT_EQ(Shown("picLG", { 0, 0 }), Background);
    EXPECT_EQ(Shown("picSMfrm", { 0, 0 }), Background);
}

TEST_F(PreviewOptions, OnPurposeARememberedColourIsThatOfTheStart)
{
    RememberPreviewColor = true;
    Rsave = 1;
    Gsave = 2;
    Bsave = 3;
    Choose("Red", 200);
    Find<QAction>("mnuOptions").trigger();
    Find<QWidget>("frmProgOptions").close(); // writes the settings, the colour in use among them
    ASSERT_THAT(Settings(), HasSubstr("Red=200\n"));
    Close();

    Mark().trigger();

    EXPECT_EQ(Texts(), QStringList({ "1", "2", "3" }));
    EXPECT_EQ(Shown("picLG", { 0, 0 }), QColor(1, 2, 3));
}

TEST_F(PreviewOptions, ALoadKeepsTheColourAndTakesNoInput)
{
    Choose("Red", 200);
    Resource broken = Picture(3501); // its chain breaks, which a box tells amid the load
    PutU16(broken.data, 10, 0x4000);
    ask.Answer(QMessageBox::Ok, [&] {
        QScrollBar& bar = Find<QScrollBar>("VScrollGrn");
        QTest::mouseClick(&bar, Qt::LeftButton, {}, { bar.width() / 2, bar.height() - 3 });
    });

    Open(Written(Iconset{ .resources = { broken } }.File(), "box.prc"));

    EXPECT_EQ(Texts(), QStringList({ "200", "0", "255" }));
    EXPECT_EQ(Shown("picLGfrm", { 0, 0 }), QColor(200, 0, 255));
}

TEST_F(PreviewOptions, ItHasRoomForAllControlsAndNoMore)
{
    Window()->resize(400, 400);

    const QSize inside = Find<QWidget>("previewOptContents").size();
    EXPECT_EQ(inside, Find<QWidget>("previewOptContents").sizeHint());
    EXPECT_LT(Window()->width(), inside.width() + 20);
    EXPECT_LT(
        Find<QWidget>("VScrollRed").geometry().bottom(), Find<QWidget>("TextRed").geometry().top());
}

} // namespace vypx::test
