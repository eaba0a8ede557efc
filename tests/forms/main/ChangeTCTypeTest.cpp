#include "ChangeTCFixture.h"

#include <QClipboard>

namespace vypx::test {

namespace {

/// The transparent colour is typed, and chosen not to be used.
class ChangeTCType : public ChangeTCFixture { };

} // namespace

TEST_F(ChangeTCType, TypedNumbersCountWithEnter)
{
    OpenEditor();
    Choose("optManualColor");
    EXPECT_TRUE(CanUseIn("txtTC_Red") && CanUseIn("txtTC_Grn") && CanUseIn("txtTC_Blue"));

    Type("txtTC_Grn", "77");
    EXPECT_EQ(Cells(), "1 255 0 255");
    QTest::keyClick(&Part<ColourText>("txtTC_Grn"), Qt::Key_Return);

    EXPECT_EQ(Cells(), "1 255 77 255");
    EXPECT_EQ(SlotLG.Mask(), (Rgb{ 255, 77, 255 }));
    EXPECT_EQ(Swatch("picTCswatch"), QColor(255, 77, 255));
    EXPECT_EQ(Text("lblC_RGB_LG"), "255, 77, 255");
    EXPECT_EQ(Pixel("picColSwatchLG", { 4, 4 }), QColor(255, 77, 255));
    EXPECT_EQ(Seen(0, 0), QColor(255, 0, 255)) << "no longer transparent";
    EXPECT_TRUE(IsOpen());
}

TEST_F(ChangeTCType, LosingTheFocusIsLikeEnter)
{
    OpenEditor();
    Choose("optManualColor");

    Type("txtTC_Red", "1");
    QTest::keyClick(&Part<ColourText>("txtTC_Red"), Qt::Key_Tab);
    EXPECT_EQ(Cells(), "1 1 0 255");

    Type("txtTC_Blue", "300");
    QTest::mouseClick(&Part<ColourText>("txtTC_Grn"), Qt::LeftButton);
    EXPECT_EQ(Cells(), "1 1 0 0");
}

TEST_F(ChangeTCType, ANumberAbove255BecomesZero)
{
    OpenEditor();
    Choose("optManualColor");

    TypeAndEnter("txtTC_Red", "300");
    EXPECT_EQ(Typed(), QStringList({ "0", "0", "255" }));
    EXPECT_EQ(Cells(), "1 0 0 255");

    TypeAndEnter("txtTC_Red", "255");
    EXPECT_EQ(Cells(), "1 255 0 255");
    TypeAndEnter("txtTC_Red", "256");
    EXPECT_EQ(Cells(), "1 0 0 255");
    TypeAndEnter("txtTC_Blue", "99999999999999999999");
    EXPECT_EQ(Typed(), QStringList({ "0", "0", "0" }));
}

TEST_F(ChangeTCType, AnEmptyTextBecomesZero)
{
    OpenEditor();
    Choose("optManualColor");
    Type("txtTC_Red", "");
    QTest::keyClick(&Part<ColourText>("txtTC_Red"), Qt::Key_Backspace);
    ASSERT_EQ(Typed()[0], "");

    QTest::keyClick(&Part<ColourText>("txtTC_Red"), Qt::Key_Enter);

    EXPECT_EQ(Typed()[0], "0");
    EXPECT_EQ(Cells(), "1 0 0 255");
}

TEST_F(ChangeTCType, LettersNeverAppear)
{
    OpenEditor();
    Choose("optManualColor");

    Type("txtTC_Red", "1x-2 .,+e3");
    EXPECT_EQ(Typed()[0], "123");

    QTest::keyClick(&Part<ColourText>("txtTC_Red"), Qt::Key_Backspace);
    EXPECT_EQ(Typed()[0], "12");
    QGuiApplication::clipboard()->setText("4a");
    Part<ColourText>("txtTC_Red").paste();
    EXPECT_EQ(Typed()[0], "12");
}

TEST_F(ChangeTCType, TheFirstColourIsTypedOverZeros)
{
    Click("Alpha (Large Icon)"); // whose mask must not come along
    OpenEditor("Alpha (Small Icon)");

    Choose("optManualColor");

    EXPECT_EQ(Typed(), QStringList({ "0", "0", "0" }));
    EXPECT_TRUE(IsShownIn("picTCswatch") && IsShownIn("txtTC_Blue"));
    EXPECT_TRUE(IsChosen("optUseTransparent") && CanUseIn("optUseTransparent"));
    EXPECT_EQ(Cells().left(1), "0") << "no colour is on hand";

    TypeAndEnter("txtTC_Grn", "9");
    EXPECT_EQ(Cells(), "0 0 9 0");
    EXPECT_EQ(Text("lblC_RGB_LG"), "0, 9, 0");
    PressIn("cmdApplyTC");
    EXPECT_EQ(Cells(), "1 0 9 0");
    EXPECT_TRUE(IsShown("lblC_RGB_LG"));
}

TEST_F(ChangeTCType, OnPurposeAZoomTakesBackAnOptionThatHasNoColour)
{
    OpenEditor("Alpha (Small Icon)");
    Choose("optManualColor");
    ASSERT_TRUE(IsChosen("optUseTransparent"));

    PressIn("cmdZoom4X");
    EXPECT_FALSE(IsChosen("optUseTransparent") || IsChosen("optNoTransparent"));
    EXPECT_FALSE(CanUseIn("chkViewTransparent"));

    TypeAndEnter("txtTC_Red", "255");
    TypeAndEnter("txtTC_Blue", "255");
    Choose("optUseTransparent");
    EXPECT_EQ(Cells(), "1 255 0 255");
    EXPECT_EQ(Seen(0, 0, 4), QColor(0, 0, 255));
    Choose("optNoTransparent");
    EXPECT_FALSE(IsChosen("optUseTransparent")) << "one excludes the other again";
}

TEST_F(ChangeTCType, NoneShowsThePictureAsItIs)
{
    OpenEditor();

    Choose("optNoTransparent");

    EXPECT_EQ(Cells(), "0 255 0 255");
    EXPECT_FALSE(LGhasTransparent);
    EXPECT_FALSE(CanUseIn("chkViewTransparent") || IsChosen("chkViewTransparent"));
    EXPECT_EQ(Seen(0, 0), QColor(255, 0, 255));
    EXPECT_TRUE(CanUseIn("optUseTransparent"));

    Choose("optUseTransparent");
    EXPECT_EQ(Cells(), "1 255 0 255");
    EXPECT_TRUE(LGhasTransparent);
    EXPECT_TRUE(CanUseIn("chkViewTransparent"));
    EXPECT_FALSE(IsChosen("chkViewTransparent")) << "cleared it stays";
    EXPECT_EQ(Seen(0, 0), QColor(255, 0, 255));
    Choose("chkViewTransparent");
    EXPECT_EQ(Seen(0, 0), QColor(0, 0, 255));
}

TEST_F(ChangeTCType, TheCheckBoxChangesTheViewAlone)
{
    OpenEditor();

    Choose("chkViewTransparent");
    EXPECT_EQ(Seen(0, 0), QColor(255, 0, 255));
    EXPECT_EQ(Cells(), "1 255 0 255");
    EXPECT_TRUE(LGhasTransparent);

    Choose("chkViewTransparent");
    EXPECT_EQ(Seen(0, 0), QColor(0, 0, 255));
}

TEST_F(ChangeTCType, EnterInATextUsesNoButton)
{
    OpenEditor();
    Choose("optManualColor");

    for (int i = 0; i < 3; ++i) // pressed in a hurry
        QTest::keyClick(&Part<ColourText>("txtTC_Red"), Qt::Key_Return);

    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Cells(), "1 255 0 255");
    for (const QString button : { "cmdZoom2X", "cmdZoom4X", "cmdApplyTC", "cmdCancelTC" })
        EXPECT_FALSE(
            Part<QPushButton>(button).isDefault() || Part<QPushButton>(button).autoDefault())
            << button.toStdString();
}

} // namespace vypx::test
