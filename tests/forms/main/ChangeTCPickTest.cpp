#include "ChangeTCFixture.h"

#include <QLayout>

namespace vypx::test {

namespace {

/// A colour is picked from the view.
class ChangeTCPick : public ChangeTCFixture {
protected:
    bool HasEyedropper() { return View().cursor().shape() == Qt::BitmapCursor; }
};

} // namespace

TEST_F(ChangeTCPick, ThePointerSamplesTheColourUnderIt)
{
    OpenEditor();

    Hover(PlaceOf(1, 0));
    EXPECT_TRUE(IsShownIn("frmSampColors"));
    EXPECT_EQ(Sampled(), QStringList({ "255", "255", "255" }));
    EXPECT_EQ(Swatch("picSampSwatch"), QColor(Qt::white));
    EXPECT_TRUE(HasEyedropper());

    Hover({ 1, 1 });
    EXPECT_EQ(Swatch("picSampSwatch"), QColor(255, 0, 255));
    EXPECT_EQ(Cells(), "1 255 0 255") << "nothing is chosen by that";
}

TEST_F(ChangeTCPick, ATransparentPixelGivesItsOwnColourAndNotThePreviewColour)
{
    OpenEditor();
    ASSERT_EQ(Seen(0, 0), QColor(0, 0, 255));

    Hover(PlaceOf(0, 0));
    EXPECT_EQ(Sampled(), QStringList({ "255", "0", "255" }));

    Pick(0, 0);
    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTCPick, OutsideOfThePictureNothingIsSampled)
{
    OpenEditor();
    Hover(PlaceOf(0, 0));

    for (const QPoint place : { QPoint(-1, 0), QPoint(0, -1), QPoint(4, 0), QPoint(0, 2) }) {
        Hover(PlaceOf(0, 0));
        Hover(place); // as with a button held down
        EXPECT_FALSE(IsShownIn("frmSampColors")) << place.x() << ' ' << place.y();
        QTest::mousePress(&View(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(&View(), Qt::LeftButton, {}, place);
    }
    QTest::mouseClick(Part<QScrollArea>("picFrame").viewport(), Qt::LeftButton, {}, { 3, 3 });
    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTCPick, TheSampleGoesWhenThePointerLeaves)
{
    OpenEditor();
    Hover(PlaceOf(1, 0));
    const QRect around = Part<QWidget>("Frame3").geometry();

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&View(), &leave);

    EXPECT_FALSE(IsShownIn("frmSampColors"));
    Window()->layout()->activate();
    EXPECT_EQ(Part<QWidget>("Frame3").geometry(), around) << "and nothing jumps";
}

TEST_F(ChangeTCPick, AClickIsAtOnceInTheDocumentAndOnTheMainForm)
{
    OpenEditor();

    Pick(1, 0);

    EXPECT_EQ(Cells(), "1 255 255 255");
    EXPECT_EQ(SlotLG.Mask(), White);
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 255, 255");
    EXPECT_EQ(Pixel("picColSwatchLG", { 4, 4 }), QColor(Qt::white));
    EXPECT_EQ(Typed(), QStringList({ "255", "255", "255" }));
    EXPECT_EQ(Swatch("picTCswatch"), QColor(Qt::white));
    EXPECT_EQ(Seen(0, 0), QColor(255, 0, 255));
    EXPECT_EQ(Seen(1, 0), QColor(0, 0, 255));
    EXPECT_TRUE(IsOpen());
}

TEST_F(ChangeTCPick, OnlyTheLeftButtonPicks)
{
    OpenEditor();

    QTest::mouseClick(&View(), Qt::RightButton, {}, PlaceOf(1, 0));
    QTest::mouseClick(&View(), Qt::MiddleButton, {}, PlaceOf(1, 0));

    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTCPick, APickGivesAPictureWithoutAColourOne)
{
    OpenEditor("Alpha (Small Icon)");

    Pick(0, 0);

    EXPECT_EQ(Cells(), "1 255 0 255");
    EXPECT_TRUE(LGhasTransparent);
    EXPECT_TRUE(IsChosen("optUseTransparent") && CanUseIn("optUseTransparent"));
    EXPECT_FALSE(IsChosen("optNoTransparent"));
    EXPECT_TRUE(CanUseIn("chkViewTransparent"));
    EXPECT_TRUE(IsShownIn("picTCswatch") && IsShownIn("txtTC_Red"));
    EXPECT_EQ(Typed(), QStringList({ "255", "0", "255" }));
    EXPECT_EQ(Seen(0, 0), QColor(0, 0, 255));
    EXPECT_TRUE(IsShown("lblC_RGB_LG"));
    EXPECT_FALSE(IsShown("lblNoTransparentLG"));
}

TEST_F(ChangeTCPick, APickUsesTheColourAgainAfterNone)
{
    OpenEditor();
    Choose("optNoTransparent");
    ASSERT_EQ(Cells(), "0 255 0 255");

    Pick(1, 0);

    EXPECT_EQ(Cells(), "1 255 255 255");
    EXPECT_TRUE(IsChosen("optUseTransparent"));
}

TEST_F(ChangeTCPick, AtFourTimesThePixelUnderThePointerIsTheMagnifiedOne)
{
    vypx::Picture picture(3, 2);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            picture.Set(x, y, { 8 * x, 8 * y, 8 });
    OpenEditorOn(picture);
    PressIn("cmdZoom4X");

    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            for (const QPoint corner : { QPoint(0, 0), QPoint(3, 3) }) {
                Hover(QPoint(4 * x, 4 * y) + corner);
                EXPECT_EQ(Sampled(),
                    QStringList({ QString::number(8 * x), QString::number(8 * y), "8" }));
            }
    Pick(2, 1, 4);
    EXPECT_EQ(Cells(), "1 16 8 8");
}

TEST_F(ChangeTCPick, WhileColoursAreTypedTheViewPicksNothing)
{
    OpenEditor();
    Choose("optManualColor");
    EXPECT_FALSE(HasEyedropper());

    Hover(PlaceOf(1, 0));
    Pick(1, 0);
    EXPECT_FALSE(IsShownIn("frmSampColors"));
    EXPECT_EQ(Cells(), "1 255 0 255");

    Choose("optUsePicker");
    EXPECT_TRUE(HasEyedropper());
    EXPECT_FALSE(CanUseIn("txtTC_Red") || CanUseIn("txtTC_Grn") || CanUseIn("txtTC_Blue"));
    Pick(1, 0);
    EXPECT_EQ(Cells(), "1 255 255 255");
}

TEST_F(ChangeTCPick, ArrowKeysMoveAMarkAndSpaceTakesItsColour)
{
    OpenEditor();
    View().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(Sampled(), QStringList({ "255", "0", "255" }));
    EXPECT_TRUE(IsShownIn("frmSampColors"));

    QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_EQ(Sampled(), QStringList({ "255", "255", "255" }));
    for (const Qt::Key key : { Qt::Key_Right, Qt::Key_Up, Qt::Key_Down }) // the edges
        QTest::keyClick(&View(), key);
    EXPECT_EQ(Cells(), "1 255 0 255");

    QTest::keyClick(&View(), Qt::Key_Space);
    EXPECT_EQ(Cells(), "1 255 255 255");

    QTest::keyClick(&View(), Qt::Key_Left);
    QTest::keyClick(&View(), Qt::Key_Return);
    EXPECT_EQ(Cells(), "1 255 0 255");
    EXPECT_TRUE(IsOpen());

    Part<QWidget>("cmdZoom2X").setFocus();
    EXPECT_FALSE(IsShownIn("frmSampColors"));
}

TEST_F(ChangeTCPick, TheMarkCanBeSeenWhileTheViewHasTheFocus)
{
    vypx::Picture picture(8, 8);
    OpenEditorOn(picture);
    Choose("optNoTransparent");
    const QImage before = View().grab().toImage();

    View().setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&View(), Qt::Key_Right);
        QTest::keyClick(&View(), Qt::Key_Down);
    }
    EXPECT_NE(View().grab().toImage(), before);

    Hover({ 1, 1 });
    EXPECT_EQ(View().grab().toImage(), before) << "the pointer is enough";
}

TEST_F(ChangeTCPick, ACornerOfALargePictureScrollsIntoSightWithTheMark)
{
    Click("Alpha (Large Icon)");
    WriteBytes(HighResPath, EncodeBmp24(vypx::Picture(300, 200)));
    OpenEditor();
    View().setFocus(Qt::TabFocusReason);

    for (int i = 0; i < 299; ++i)
        QTest::keyClick(&View(), Qt::Key_Right);

    EXPECT_TRUE(View().visibleRegion().contains(QPoint(599, 0)));
}

} // namespace vypx::test
