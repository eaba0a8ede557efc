#include "BorderFixture.h"

#include <QCheckBox>
#include <QGroupBox>

namespace vypx::test {

namespace {

class ChangeBackColor : public BorderFixture { };

const QRect First(143, 153, 64, 44);

} // namespace

TEST_F(ChangeBackColor, ShowsTheBordersColour)
{
    EXPECT_TRUE(Border().isVisible() && Border().isEnabled());
    EXPECT_EQ(Texts(), QStringList({ "255", "255", "255" }));
    EXPECT_EQ(Bar("Red").value() + Bar("Grn").value() + Bar("Blue").value(), 3 * 255);
    EXPECT_EQ(Swatch(), QColor(Qt::white));
    EXPECT_EQ(In<QGroupBox>(Border(), "Frame8").title(), "Preview Border Color");
    EXPECT_EQ(In<QAbstractButton>(Border(), "chkBackGray").text(), "Lock to Grayscale");
    EXPECT_FALSE(In<QAbstractButton>(Border(), "cmdOK").text().isEmpty());
    EXPECT_FALSE(In<QAbstractButton>(Border(), "cmdCancel").text().isEmpty());
}

TEST_F(ChangeBackColor, AChangeShowsInTheSwatchAloneUntilItIsAccepted)
{
    Choose(10, 120, 30);
    EXPECT_EQ(Swatch(), QColor(10, 120, 30));
    EXPECT_EQ(Seen({ 5, 5 }), QColor(Qt::white));
    EXPECT_EQ(BorderColour(), QColor(Qt::white));

    BorderOk();

    EXPECT_FALSE(IsBorderOpen());
    ExpectBorder({ 10, 120, 30 });
}

TEST_F(ChangeBackColor, ADragShowsInTheSwatchAtEachStep)
{
    Bar("Grn").setSliderDown(true);

    Bar("Grn").setSliderPosition(40);
    EXPECT_EQ(Swatch(), QColor(255, 40, 255));
    Bar("Grn").setSliderPosition(90);
    EXPECT_EQ(Swatch(), QColor(255, 90, 255));
}

TEST_F(ChangeBackColor, ANumberAbove255BecomesZeroAndMovesTheBar)
{
    Text("Red").setFocus();
    Text("Red").selectAll();
    QTest::keyClicks(&Text("Red"), "256");

    EXPECT_EQ(Text("Red").text(), "0");
    EXPECT_EQ(Bar("Red").value(), 0);
    EXPECT_EQ(Swatch(), QColor(0, 255, 255));
}

TEST_F(ChangeBackColor, ALockedRedBarGivesAGrey)
{
    auto& lock = In<QCheckBox>(Border(), "chkBackGray");
    QTest::mouseClick(&lock, Qt::LeftButton, {}, { 8, lock.height() / 2 });

    Bar("Red").setValue(99);

    EXPECT_EQ(Texts(), QStringList({ "99", "99", "99" }));
    EXPECT_EQ(Swatch(), QColor(99, 99, 99));
    EXPECT_FALSE(Bar("Grn").isEnabled() || Bar("Blue").isEnabled());
    BorderOk();
    ExpectBorder({ 99, 99, 99 });
}

TEST_F(ChangeBackColor, CancelGivesTheColourOfBeforeAlsoAfterManyChanges)
{
    Choose(10, 120, 30);
    BorderOk();
    Push("cmdChangeBackColor");
    EXPECT_EQ(Texts(), QStringList({ "10", "120", "30" }));
    for (int i = 0; i < 40; ++i)
        Choose(i, 2 * i, 255 - i);

    BorderCancel();

    EXPECT_FALSE(IsBorderOpen());
    ExpectBorder({ 10, 120, 30 });
}

TEST_F(ChangeBackColor, ItsFrameAndEscapeAreItsCancel)
{
    Choose(10, 120, 30);
    Border().close();
    EXPECT_FALSE(IsBorderOpen());
    ExpectBorder(Qt::white);

    Push("cmdChangeBackColor");
    Choose(10, 120, 30);
    QTest::keyClick(&Bar("Red"), Qt::Key_Escape);
    EXPECT_FALSE(IsBorderOpen());
    ExpectBorder(Qt::white);
    EXPECT_TRUE(IsOpen()) << "the crop window stays";
}

TEST_F(ChangeBackColor, EnterIsItsOkAlsoInATextAndOnABar)
{
    for (const QString name : { "TextBlue", "VScrollRed", "chkBackGray" }) {
        Choose(10, 120, 30);
        auto& control = In<QWidget>(Border(), name);
        control.setFocus();

        QTest::keyClick(&control, Qt::Key_Return);

        EXPECT_FALSE(IsBorderOpen()) << name.toStdString();
        ExpectBorder({ 10, 120, 30 });
        EXPECT_TRUE(IsOpen()) << "the crop window stays";
        Push("cmdChangeBackColor");
    }
}

TEST_F(ChangeBackColor, OkKeepsTheRectanglesPlaceAndSize)
{
    BorderCancel();
    DragLeft({ 175, 175 }, { 150, 165 });
    DragRight(22);
    const QRect before = Rectangle();
    ASSERT_EQ(before, QRect(118, 143, 96, 66));

    Push("cmdChangeBackColor");
    Choose(1, 2, 3);
    BorderOk();

    EXPECT_EQ(Rectangle(), before);
    EXPECT_EQ(RegionText(), "192 x 132 to 64 x 44 pixels");
    EXPECT_TRUE(IsSeen("CropRec"));
    DragRight(-22);
    EXPECT_EQ(Rectangle(), QRect(118, 143, 64, 44)) << "its aspect as well";
}

TEST_F(ChangeBackColor, OkKeepsTheSquareAspect)
{
    BorderCancel();
    Push("optAspectSquare");
    Push("cmdChangeBackColor");
    BorderOk();

    EXPECT_EQ(Rectangle(), QRect(153, 153, 44, 44));
    EXPECT_TRUE(IsChosen("optAspectSquare"));
    DragRight(10);
    EXPECT_EQ(Rectangle(), QRect(153, 153, 54, 54));
    Ok();
    EXPECT_EQ(SizeOf(StoredLG()), QSize(44, 44));
}

TEST_F(ChangeBackColor, ARectangleMovedMeanwhileStaysWhereItIs)
{
    DragLeft({ 175, 175 }, { 150, 165 });
    const QRect before = Rectangle();

    BorderOk();

    EXPECT_EQ(Rectangle(), before);
}

TEST_F(ChangeBackColor, NeitherOkNorCancelKeepsARectangleForLater)
{
    for (const bool accepted : { false, true }) {
        DragLeft({ 175, 175 }, { 150, 165 });
        accepted ? BorderOk() : BorderCancel();
        DragLeft({ 175, 175 }, { 150, 165 });

        Push("optStretch");
        Push("optMaintainAspect");

        EXPECT_EQ(Rectangle(), First) << accepted;
        Push("cmdChangeBackColor");
    }
}

TEST_F(ChangeBackColor, TheChosenBorderIsCutAlong)
{
    Choose(10, 120, 30);
    BorderOk();
    DragLeft({ 175, 175 }, { 175, 0 }); // to the upper edge: all border

    Ok();

    ASSERT_EQ(SizeOf(StoredLG()), QSize(64, 44));
    EXPECT_EQ(StoredLG().At(0, 0), (Rgb{ 10, 120, 30 }));
    EXPECT_EQ(StoredLG().At(63, 43), (Rgb{ 10, 120, 30 }));
    EXPECT_EQ(Find<QLabel>("lblC_RGB_LG").text(), "10, 120, 30");
}

TEST_F(ChangeBackColor, TheBorderIsWhiteAtEachOpening)
{
    Choose(10, 120, 30);
    BorderOk();
    Cancel();

    OpenCrop(700, 500);

    ExpectBorder(Qt::white);
    Push("cmdChangeBackColor");
    EXPECT_EQ(Texts(), QStringList({ "255", "255", "255" }));
}

TEST_F(ChangeBackColor, OnPurposeTheBorderIsWhiteAgainAfterStretching)
{
    Choose(10, 120, 30);
    BorderOk();

    Push("optStretch");
    Push("optMaintainAspect");

    ExpectBorder(Qt::white);
    Push("cmdChangeBackColor");
    EXPECT_EQ(Texts(), QStringList({ "255", "255", "255" }));
}

} // namespace vypx::test
