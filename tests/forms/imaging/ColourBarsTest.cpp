#include "forms/imaging/ColourBars.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <gmock/gmock.h>

namespace vypx::test {

namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

MATCHER(IsGrey, "") { return arg.red == arg.green && arg.green == arg.blue; }

class ColourBarsTest : public ::testing::Test {
protected:
    ColourBarsTest()
    {
        QObject::connect(&bars, &ColourBars::ColourChanged,
            [this](const Rgb& colour) { told.push_back(colour); });
        bars.show();
        bars.activateWindow();
        (void)QTest::qWaitForWindowActive(&bars);
    }

    QScrollBar& Bar(const QString& colour)
    {
        return *bars.findChild<QScrollBar*>("VScroll" + colour);
    }
    QLineEdit& Text(const QString& colour) { return *bars.findChild<QLineEdit*>("Text" + colour); }
    QCheckBox& Lock() { return *bars.findChild<QCheckBox*>("chkBackGray"); }
    QStringList Texts() { return { Text("Red").text(), Text("Grn").text(), Text("Blue").text() }; }
    std::vector<int> Values()
    {
        return { Bar("Red").value(), Bar("Grn").value(), Bar("Blue").value() };
    }

    void ClickLock() { QTest::mouseClick(&Lock(), Qt::LeftButton, {}, { 8, Lock().height() / 2 }); }
    /// On the arrow at a bar's lower end.
    void ClickArrow(const QString& colour)
    {
        QScrollBar& bar = Bar(colour);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, { bar.width() / 2, bar.height() - 3 });
    }
    /// Takes the thumb of a bar that stands at 0.
    void TakeThumb(const QString& colour)
    {
        QTest::mousePress(&Bar(colour), Qt::LeftButton, {}, Thumb());
    }
    void DragThumb(const QString& colour, int by)
    {
        QMouseEvent move(QEvent::MouseMove, Thumb() + QPoint(0, by),
            Bar(colour).mapToGlobal(Thumb() + QPoint(0, by)), Qt::NoButton, Qt::LeftButton,
            Qt::NoModifier);
        QApplication::sendEvent(&Bar(colour), &move);
    }
    void LetGo(const QString& colour, int at)
    {
        QTest::mouseRelease(&Bar(colour), Qt::LeftButton, {}, Thumb() + QPoint(0, at));
    }
    /// Types over what stands in the text.
    void Type(const QString& colour, const QString& keys)
    {
        Text(colour).setFocus();
        Text(colour).selectAll();
        QTest::keyClicks(&Text(colour), keys);
    }

    ColourBars bars;
    std::vector<Rgb> told;

private:
    QPoint Thumb() { return { Bar("Red").width() / 2, 21 }; } // below the arrow
};

} // namespace

TEST_F(ColourBarsTest, ShowsAColourInBarsAndTextsAndTellsNobody)
{
    bars.SetColour({ 10, 200, 255 });

    EXPECT_EQ(Values(), (std::vector{ 10, 200, 255 }));
    EXPECT_EQ(Texts(), QStringList({ "10", "200", "255" }));
    EXPECT_EQ(bars.Colour(), (Rgb{ 10, 200, 255 }));
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(ColourBarsTest, AClickOnAnArrowChangesOneComponent)
{
    bars.SetColour({ 1, 2, 3 });

    ClickArrow("Red");
    ClickArrow("Grn");
    ClickArrow("Blue");

    EXPECT_EQ(Texts(), QStringList({ "2", "3", "4" }));
    EXPECT_THAT(told, ElementsAre(Rgb{ 2, 2, 3 }, Rgb{ 2, 3, 3 }, Rgb{ 2, 3, 4 }));
}

TEST_F(ColourBarsTest, KeysMoveTheBarThatHasTheFocus)
{
    bars.SetColour({ 100, 100, 100 });

    QTest::keyClick(&Bar("Grn"), Qt::Key_Down);
    EXPECT_EQ(Text("Grn").text(), "101");
    QTest::keyClick(&Bar("Grn"), Qt::Key_End);
    EXPECT_EQ(bars.Colour(), (Rgb{ 100, 255, 100 }));
    QTest::keyClick(&Bar("Grn"), Qt::Key_Down);
    EXPECT_EQ(bars.Colour(), (Rgb{ 100, 255, 100 }));
}

TEST_F(ColourBarsTest, ADragTellsEachStepAndItsEnd)
{
    TakeThumb("Grn");
    DragThumb("Grn", 10);

    ASSERT_EQ(told.size(), 1u);
    const int half = told[0].green;
    EXPECT_GT(half, 0);
    EXPECT_EQ(Texts(), QStringList({ "0", QString::number(half), "0" }));

    DragThumb("Grn", 30);
    LetGo("Grn", 30);

    EXPECT_GT(bars.Colour().green, half);
    EXPECT_EQ(Bar("Grn").value(), bars.Colour().green);
    EXPECT_EQ(told.back(), bars.Colour());
}

TEST_F(ColourBarsTest, ALockedGreyFollowsAChangeOfTheRedBar)
{
    bars.SetColour({ 50, 50, 50 });
    ClickLock();

    ClickArrow("Red");

    EXPECT_EQ(Values(), (std::vector{ 51, 51, 51 }));
    EXPECT_EQ(Texts(), QStringList({ "51", "51", "51" }));
    EXPECT_THAT(told, ElementsAre(Rgb{ 51, 51, 51 })) << "and no colour on the way";
}

TEST_F(ColourBarsTest, OnPurposeALockedGreyFollowsADragOnlyAtItsEnd)
{
    ClickLock();

    TakeThumb("Red");
    DragThumb("Red", 20);
    ASSERT_EQ(told.size(), 1u);
    EXPECT_GT(told[0].red, 0);
    EXPECT_EQ(told[0].green, 0);

    LetGo("Red", 20);

    EXPECT_EQ(bars.Colour(), (Rgb{ told[0].red, told[0].red, told[0].red }));
}

TEST_F(ColourBarsTest, TheLockTakesTheRedValueAndKeepsTheOthersFromBeingMoved)
{
    bars.SetColour({ 10, 20, 30 });

    ClickLock();

    EXPECT_EQ(bars.Colour(), (Rgb{ 10, 10, 10 }));
    EXPECT_EQ(Values(), (std::vector{ 10, 10, 10 }));
    EXPECT_EQ(Texts(), QStringList({ "10", "10", "10" }));
    EXPECT_TRUE(Bar("Red").isEnabled());
    EXPECT_FALSE(Bar("Grn").isEnabled() || Bar("Blue").isEnabled());
    EXPECT_THAT(told, ElementsAre(Rgb{ 10, 10, 10 }));

    ClickLock();

    EXPECT_TRUE(Bar("Grn").isEnabled() && Bar("Blue").isEnabled());
    EXPECT_EQ(bars.Colour(), (Rgb{ 10, 10, 10 }));
}

TEST_F(ColourBarsTest, ATypedNumberOfALockedGreyIsAllThree)
{
    ClickLock();

    Type("Blue", "77");

    EXPECT_EQ(bars.Colour(), (Rgb{ 77, 77, 77 }));
    EXPECT_THAT(told, Not(IsEmpty()));
    EXPECT_THAT(told, Each(IsGrey()));
}

TEST_F(ColourBarsTest, ATypedNumberMovesItsBar)
{
    bars.SetColour({ 1, 2, 3 });

    Type("Blue", "140");

    EXPECT_EQ(bars.Colour(), (Rgb{ 1, 2, 140 }));
    EXPECT_EQ(Values(), (std::vector{ 1, 2, 140 }));
    EXPECT_EQ(Text("Blue").text(), "140");
}

TEST_F(ColourBarsTest, OnlyDigitsCanBeTyped)
{
    Type("Red", "1a-2. x+b");

    EXPECT_EQ(Text("Red").text(), "12");
    EXPECT_EQ(Bar("Red").value(), 12);
}

TEST_F(ColourBarsTest, ANumberAbove255BecomesZero)
{
    Type("Red", "255");
    EXPECT_EQ(Bar("Red").value(), 255);

    Type("Red", "256");

    EXPECT_EQ(Text("Red").text(), "0");
    EXPECT_EQ(Bar("Red").value(), 0);
}

TEST_F(ColourBarsTest, AnEmptyTextBecomesZeroWhichTheNextDigitReplaces)
{
    bars.SetColour({ 7, 0, 0 });
    Text("Red").setFocus();
    Text("Red").setCursorPosition(1);

    QTest::keyClick(&Text("Red"), Qt::Key_Backspace);

    EXPECT_EQ(Text("Red").text(), "0");
    EXPECT_EQ(bars.Colour(), Rgb{});

    QTest::keyClicks(&Text("Red"), "9");

    EXPECT_EQ(Text("Red").text(), "9");
}

TEST_F(ColourBarsTest, WhatIsNoNumberFrom0To255BecomesZero)
{
    for (const QString text : { "-5", "abc", "99999999999999999999", "" }) {
        bars.SetColour({ 7, 0, 0 });
        Text("Red").setText(text);
        EXPECT_EQ(Text("Red").text(), "0") << text.toStdString();
        EXPECT_EQ(bars.Colour(), Rgb{}) << text.toStdString();
    }
}

TEST_F(ColourBarsTest, OnPurposeARedChangeWritesItsOwnTextAlone)
{
    bars.SetColour({ 5, 5, 5 });
    Text("Grn").setText("05"); // the same number

    ClickArrow("Red");
    EXPECT_EQ(Texts(), QStringList({ "6", "05", "5" }));

    ClickArrow("Blue");
    EXPECT_EQ(Texts(), QStringList({ "6", "5", "6" }));
}

TEST_F(ColourBarsTest, ARedChangeWritesAllTextsWhereThatIsWanted)
{
    bars.SetRedChange(ColourBars::RedChange::WritesAllTexts);
    bars.SetColour({ 5, 5, 5 });
    Text("Grn").setText("05");

    ClickArrow("Red");

    EXPECT_EQ(Texts(), QStringList({ "6", "5", "5" }));
}

TEST_F(ColourBarsTest, TabGoesThroughTheColumnsToTheLock)
{
    Bar("Red").setFocus();

    for (const QString name :
        { "TextRed", "VScrollGrn", "TextGrn", "VScrollBlue", "TextBlue", "chkBackGray" }) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
    }
}

TEST_F(ColourBarsTest, TheBarWithTheFocusIsMarked)
{
    Text("Red").setFocus();
    const QImage before = bars.grab().toImage();

    Bar("Grn").setFocus();

    const QPoint corner = Bar("Grn").geometry().topLeft() - QPoint(2, 2);
    EXPECT_NE(bars.grab().toImage().pixelColor(corner), before.pixelColor(corner));
}

TEST_F(ColourBarsTest, ItsControlsBearTheirNames)
{
    EXPECT_EQ(bars.findChild<QLabel*>("Label2")->text(), "Red");
    EXPECT_EQ(bars.findChild<QLabel*>("Label3")->text(), "Green");
    EXPECT_EQ(bars.findChild<QLabel*>("Label4")->text(), "Blue");
    EXPECT_EQ(Lock().text(), "Lock to Grayscale");
    EXPECT_EQ(Bar("Grn").accessibleName(), "Green");
    EXPECT_EQ(Bar("Grn").maximum(), 255);
}

} // namespace vypx::test
