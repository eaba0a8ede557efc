#include "ChangeTCFixture.h"

namespace vypx::test {

namespace {

/// The colour behind the picture in the window.
class ChangeTCPreview : public ChangeTCFixture {
protected:
    QScrollBar& Bar(const QString& colour) { return Part<QScrollBar>("VScroll" + colour); }
    QStringList Texts()
    {
        return { Part<ColourText>("TextRed").text(), Part<ColourText>("TextGrn").text(),
            Part<ColourText>("TextBlue").text() };
    }
    QColor Around()
    {
        return Part<QScrollArea>("picFrame").viewport()->grab().toImage().pixelColor(3, 3);
    }
};

} // namespace

TEST_F(ChangeTCPreview, IsBlueAtTheFirstOpening)
{
    OpenEditor();

    EXPECT_EQ(Texts(), QStringList({ "0", "0", "255" }));
    EXPECT_EQ(Bar("Blue").value(), 255);
    EXPECT_EQ(Around(), QColor(0, 0, 255));
}

TEST_F(ChangeTCPreview, AChangePaintsTheViewAndWhatIsAroundIt)
{
    OpenEditor();

    Bar("Grn").setValue(100);

    EXPECT_EQ(Around(), QColor(0, 100, 255));
    EXPECT_EQ(Seen(0, 0), QColor(0, 100, 255));
    EXPECT_EQ(Seen(1, 0), QColor(Qt::white));
    EXPECT_EQ(Pixel("picLGfrm", { 1, 1 }), QColor(0, 0, 255)) << "the panels have their own";
    EXPECT_EQ(Cells(), "1 255 0 255");
}

TEST_F(ChangeTCPreview, ADragPaintsEachStep)
{
    OpenEditor();
    Bar("Red").setSliderDown(true);

    for (const int position : { 10, 90, 200 }) {
        Bar("Red").setSliderPosition(position);
        EXPECT_EQ(Around(), QColor(position, 0, 255));
        EXPECT_EQ(Texts()[0], QString::number(position));
    }
    EXPECT_EQ(Bar("Red").value(), 0) << "still being dragged";
}

TEST_F(ChangeTCPreview, ARedChangeWritesAllThreeTexts)
{
    OpenEditor();
    Part<ColourText>("TextGrn").setText("00"); // the same number

    Bar("Red").setValue(5);

    EXPECT_EQ(Texts(), QStringList({ "5", "0", "255" }));
}

TEST_F(ChangeTCPreview, LockedToGreyAMoveOfRedMovesAllThree)
{
    OpenEditor();
    Bar("Red").setValue(40);

    Choose("chkBackGray");
    EXPECT_EQ(Around(), QColor(40, 40, 40));
    EXPECT_FALSE(Bar("Grn").isEnabled() || Bar("Blue").isEnabled());

    Bar("Red").setValue(90);
    EXPECT_EQ(Around(), QColor(90, 90, 90));
    EXPECT_EQ(Texts(), QStringList({ "90", "90", "90" }));
}

TEST_F(ChangeTCPreview, ATypedNumberMovesItsBar)
{
    OpenEditor();

    Type("TextRed", "140");
    EXPECT_EQ(Around(), QColor(140, 0, 255));

    Type("TextRed", "300");
    EXPECT_EQ(Texts()[0], "0");
    EXPECT_EQ(Around(), QColor(0, 0, 255));
}

TEST_F(ChangeTCPreview, ApplyKeepsItForTheNextOpening)
{
    OpenEditor();
    Bar("Red").setValue(10);
    Bar("Blue").setValue(30);

    PressIn("cmdApplyTC");
    OpenEditor("Alpha (Small Icon)", "SM");

    EXPECT_EQ(Texts(), QStringList({ "10", "0", "30" }));
    EXPECT_EQ(Around(), QColor(10, 0, 30));
    EXPECT_EQ(Bar("Red").value(), 10);
}

TEST_F(ChangeTCPreview, TheFrameKeepsItToo)
{
    OpenEditor();
    Bar("Grn").setValue(20);

    Window()->close();
    OpenEditor();

    EXPECT_EQ(Texts(), QStringList({ "0", "20", "255" }));
}

TEST_F(ChangeTCPreview, CancelGoesBackToTheOneBefore)
{
    OpenEditor();
    Bar("Grn").setValue(20);

    PressIn("cmdCancelTC");

    EXPECT_FALSE(TCPreviewSet);
    OpenEditor();
    EXPECT_EQ(Texts(), QStringList({ "0", "0", "255" }));
}

} // namespace vypx::test
