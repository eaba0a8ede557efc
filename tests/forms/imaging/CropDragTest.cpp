#include "CropFixture.h"

#include <QPainter>

namespace vypx::test {

namespace {

/// Over a picture of 700 x 500 pixels, which the view shows at half its size: 350 pixels a side,
/// the picture from row 50 to row 300.
class CropDrag : public CropFixture {
protected:
    CropDrag() { OpenCrop(700, 500); }

    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&View(), static_cast<Qt::Key>(key), modifiers);
    }
};

/// Its size is the target's, in the middle of the view.
const QRect FirstRectangle(143, 153, 64, 44);

} // namespace

TEST_F(CropDrag, TheFirstRectangleIsInTheMiddle)
{
    EXPECT_EQ(View().size(), QSize(350, 350));
    EXPECT_EQ(Rectangle(), FirstRectangle);
    EXPECT_EQ(RegionText(), "128 x 88 to 64 x 44 pixels");
}

TEST_F(CropDrag, TheFirstRectangleIsAsLargeAsTheTargetWhereTheViewIsLarger)
{
    Cancel();
    OpenCrop(100, 80); // which the view shows as large as it is

    EXPECT_EQ(Rectangle(), QRect(18, 28, 64, 44));
    EXPECT_EQ(RegionText(), "64 x 44 to 64 x 44 pixels");
}

TEST_F(CropDrag, TheFirstRectangleOfATinyViewIsHalfTheTarget)
{
    Cancel();
    OpenCrop(60, 51); // 60 pixels a side

    EXPECT_EQ(Rectangle(), QRect(14, 19, 32, 22));
    EXPECT_EQ(RegionText(), "32 x 22 to 64 x 44 pixels");
}

TEST_F(CropDrag, AnEnlargedPictureGivesASmallerRegion)
{
    Cancel();
    OpenCrop(200, 100); // twice as large

    EXPECT_EQ(Rectangle(), QRect(168, 178, 64, 44));
    EXPECT_EQ(RegionText(), "32 x 22 to 64 x 44 pixels");
    Cancel();
    OpenCrop(65, 44); // four times

    EXPECT_EQ(Rectangle(), QRect(98, 108, 64, 44));
    EXPECT_EQ(RegionText(), "16 x 11 to 64 x 44 pixels");
}

TEST_F(CropDrag, TheLeftButtonMovesIt)
{
    DragLeft({ 175, 175 }, { 185, 168 });

    EXPECT_EQ(Rectangle(), FirstRectangle.translated(10, -7));
    EXPECT_EQ(RegionText(), "128 x 88 to 64 x 44 pixels");
}

TEST_F(CropDrag, ItFollowsEveryMotionWhereverTheDragBegan)
{
    Mouse(QEvent::MouseButtonPress, { 5, 5 }, Qt::LeftButton);
    Mouse(QEvent::MouseMove, { 15, 5 }, Qt::LeftButton);
    EXPECT_EQ(Rectangle(), FirstRectangle.translated(10, 0));
    Mouse(QEvent::MouseMove, { 15, 25 }, Qt::LeftButton);
    EXPECT_EQ(Rectangle(), FirstRectangle.translated(10, 20));
    Mouse(QEvent::MouseMove, { 5, 5 }, Qt::LeftButton);
    EXPECT_EQ(Rectangle(), FirstRectangle);
}

TEST_F(CropDrag, BeyondTheLeftAndUpperEdgeItIsPutToTheEdge)
{
    DragLeft({ 300, 300 }, { 0, 0 });

    EXPECT_EQ(Rectangle(), QRect(0, 0, 64, 44));
}

TEST_F(CropDrag, OnPurposeAFastDragStopsBeforeTheRightAndLowerEdge)
{
    DragLeft({ 0, 0 }, { 160, 100 }); // 143 + 64 + 160 are more than 350, 153 + 44 + 100 are not

    EXPECT_EQ(Rectangle(), FirstRectangle.translated(0, 100));
}

TEST_F(CropDrag, PixelByPixelItReachesTheRightAndLowerEdge)
{
    std::vector<QPoint> places;
    for (int i = 0; i < 250; ++i)
        places.push_back({ i, i });

    Drag(Qt::LeftButton, places);

    EXPECT_EQ(Rectangle(), QRect(286, 306, 64, 44));
}

TEST_F(CropDrag, TheRightButtonResizesItByVerticalMotion)
{
    Drag(Qt::RightButton, { { 175, 175 }, { 175, 197 } }); // 22 higher and 32 wider

    EXPECT_EQ(Rectangle(), QRect(143, 153, 96, 66));
    EXPECT_EQ(RegionText(), "192 x 132 to 64 x 44 pixels");

    Drag(Qt::RightButton, { { 175, 175 }, { 175, 142 } });

    EXPECT_EQ(Rectangle(), QRect(143, 153, 48, 33));
    EXPECT_EQ(RegionText(), "96 x 66 to 64 x 44 pixels");
}

TEST_F(CropDrag, HorizontalMotionDoesNotResizeIt)
{
    Drag(Qt::RightButton, { { 10, 175 }, { 300, 175 }, { 5, 175 } });

    EXPECT_EQ(Rectangle(), FirstRectangle);
}

TEST_F(CropDrag, SmallStepsKeepTheAspect)
{
    DragRight(11);
    DragRight(11);

    EXPECT_EQ(Rectangle(), QRect(143, 153, 96, 66));
}

TEST_F(CropDrag, BelowTwentyPixelsItShrinksNoMore)
{
    DragRight(-60);

    EXPECT_EQ(Rectangle(), QRect(143, 153, 28, 19)) << "64 - 25 * 64 / 44 = 27.6";

    DragRight(1);
    EXPECT_EQ(Rectangle().height(), 20) << "it can grow again";
}

TEST_F(CropDrag, BeyondTheRightEdgeItGrowsNoMore)
{
    DragRight(300);

    EXPECT_EQ(Rectangle(), QRect(143, 153, 208, 143)) << "at 99 pixels more the edge is crossed";
}

TEST_F(CropDrag, BeyondTheLowerEdgeItGrowsNoMore)
{
    DragLeft({ 200, 200 }, { 0, 200 });
    DragLeft({ 0, 0 }, { 0, 137 }); // 290 + 44 of 350

    DragRight(100);

    EXPECT_EQ(Rectangle(), QRect(0, 290, 89, 61)) << "64 + 17 * 64 / 44 = 88.7";
}

TEST_F(CropDrag, ARectangleBeyondTheEdgeCanBeMovedInward)
{
    DragLeft({ 200, 200 }, { 0, 200 });
    DragLeft({ 0, 0 }, { 0, 137 });
    DragRight(100);

    DragLeft({ 100, 100 }, { 100, 101 });
    EXPECT_EQ(Rectangle().top(), 290);
    DragLeft({ 100, 100 }, { 100, 99 });
    EXPECT_EQ(Rectangle().top(), 289);
}

TEST_F(CropDrag, AMiddleButtonAndAMotionWithoutAButtonDoNothing)
{
    Drag(Qt::MiddleButton, { { 175, 175 }, { 185, 185 } });
    Mouse(QEvent::MouseMove, { 10, 10 }, Qt::NoButton);

    EXPECT_EQ(Rectangle(), FirstRectangle);
}

TEST_F(CropDrag, AMotionBesideTheViewGoesOn)
{
    DragLeft({ 175, 175 }, { -400, -20 });

    EXPECT_EQ(Rectangle(), QRect(0, 0, 64, 44));
}

TEST_F(CropDrag, ArrowKeysMoveItByAPixelAndWithShiftByTen)
{
    Key(Qt::Key_Right);
    Key(Qt::Key_Right);
    Key(Qt::Key_Down);
    EXPECT_EQ(Rectangle(), FirstRectangle.translated(2, 1));

    Key(Qt::Key_Left, Qt::ShiftModifier);
    Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(Rectangle(), FirstRectangle.translated(-8, -9));
}

TEST_F(CropDrag, ArrowKeysOfTheNumberBlockMoveItToo)
{
    Key(Qt::Key_Left, Qt::KeypadModifier);

    EXPECT_EQ(Rectangle(), FirstRectangle.translated(-1, 0));
}

TEST_F(CropDrag, PlusAndMinusResizeItByAPixelHoweverTyped)
{
    Key(Qt::Key_Plus);
    Key(Qt::Key_Plus, Qt::ShiftModifier);
    Key(Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_EQ(Rectangle(), QRect(143, 153, 68, 47)) << "64 + 3 * 64 / 44 = 68.4";

    for (int i = 0; i < 3; ++i)
        Key(Qt::Key_Minus, i == 0 ? Qt::KeypadModifier : Qt::NoModifier);
    EXPECT_EQ(Rectangle(), FirstRectangle);
}

TEST_F(CropDrag, HeldKeysStopAtTheSameEdges)
{
    for (int i = 0; i < 400; ++i)
        Key(Qt::Key_Right);
    EXPECT_EQ(Rectangle(), QRect(286, 153, 64, 44));
    for (int i = 0; i < 60; ++i)
        Key(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(Rectangle().top(), 0);
    for (int i = 0; i < 60; ++i)
        Key(Qt::Key_Minus);
    EXPECT_EQ(Rectangle().height(), 19);
}

TEST_F(CropDrag, KeysBelongToTheViewAloneAndAClickGivesThemToIt)
{
    Control("cmdOK").setFocus();
    QTest::keyClick(&Control("cmdOK"), Qt::Key_Plus);
    EXPECT_EQ(Rectangle(), FirstRectangle);

    QTest::mouseClick(&View(), Qt::LeftButton, {}, { 20, 20 });

    EXPECT_EQ(Crop().focusWidget(), &View());
    EXPECT_EQ(Rectangle(), FirstRectangle) << "a click is no drag";
}

TEST_F(CropDrag, TheRectangleCanBeSeenOnAnyPicture)
{
    const Rgb colours[] = { { 0, 0, 0 }, { 255, 255, 255 }, { 127, 127, 127 }, { 255, 0, 0 },
        { 0, 255, 0 }, { 0, 0, 255 }, { 255, 255, 0 }, { 192, 192, 192 } };
    for (const Rgb& colour : colours) {
        Cancel();
        vypx::Picture picture(300, 300);
        for (int y = 0; y < 300; ++y)
            for (int x = 0; x < 300; ++x)
                picture.Set(x, y, colour);
        OpenCrop(picture);
        const QImage view = View().grab().toImage();
        const QRect edge = Rectangle();

        const auto differs = [&](int x, int y) {
            const QColor seen = view.pixelColor(x, y);
            return std::abs(seen.red() - colour.red) + std::abs(seen.green() - colour.green)
                + std::abs(seen.blue() - colour.blue)
                >= 100;
        };
        int left = 0, top = 0; // pixels of a side that stand out, in its two outer lines
        for (int y = edge.top(); y <= edge.bottom(); ++y)
            left += differs(edge.left(), y) || differs(edge.left() + 1, y) ? 1 : 0;
        for (int x = edge.left(); x <= edge.right(); ++x)
            top += differs(x, edge.top()) || differs(x, edge.top() + 1) ? 1 : 0;
        EXPECT_GE(left, edge.height() / 3) << colour.red << ' ' << colour.green;
        EXPECT_GE(top, edge.width() / 3) << colour.red << ' ' << colour.green;
    }
}

} // namespace vypx::test
