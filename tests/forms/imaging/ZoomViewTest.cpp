#include "forms/imaging/ZoomView.h"

#include <QPixmap>
#include <QTest>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// Every pixel has another colour.
QImage Many(int width, int height)
{
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.setPixelColor(x, y, QColor(x, y, 200));
    return picture;
}

} // namespace

TEST(ZoomView, MakesASquareOfEachPixel)
{
    for (const int zoom : { 2, 4 }) {
        ZoomView view;
        view.SetPicture(Many(64, 44), zoom);

        const QImage seen = view.grab().toImage();

        ASSERT_EQ(seen.size(), QSize(64, 44) * zoom);
        for (int y = 0; y < seen.height(); ++y)
            for (int x = 0; x < seen.width(); ++x)
                ASSERT_EQ(seen.pixelColor(x, y), QColor(x / zoom, y / zoom, 200))
                    << zoom << ": " << x << ' ' << y;
    }
}

TEST(ZoomView, PaintsTheSameWhereOnlyAPartIsAskedFor)
{
    ZoomView view;
    view.SetPicture(Many(20, 20), 4);
    const QImage whole = view.grab().toImage();

    for (const QRect part : { QRect(3, 5, 7, 9), QRect(0, 0, 1, 1), QRect(78, 79, 2, 1) })
        EXPECT_EQ(view.grab(part).toImage(), whole.copy(part)) << part.x();
}

TEST(ZoomView, PixelsOfExactlyTheTransparentColourShowTheBackColour)
{
    ZoomView view;
    view.SetPicture(Many(3, 1), 2);
    view.SetBackColour(Qt::yellow);

    view.SetTransparent(Rgb{ 1, 0, 200 });
    QImage seen = view.grab().toImage();
    EXPECT_EQ(seen.pixelColor(1, 1), QColor(0, 0, 200));
    EXPECT_EQ(seen.pixelColor(2, 0), QColor(Qt::yellow));
    EXPECT_EQ(seen.pixelColor(4, 0), QColor(2, 0, 200));

    view.SetTransparent({});
    EXPECT_EQ(view.grab().toImage().pixelColor(2, 0), QColor(1, 0, 200));
}

TEST(ZoomView, ThePointersTipIsItsLowestLeftMostPixel)
{
    ZoomView view;
    const QImage pointer = view.cursor().pixmap().toImage();
    const QPoint tip = view.cursor().hotSpot();
    ASSERT_FALSE(pointer.isNull());

    EXPECT_GT(pointer.pixelColor(tip).alpha(), 128);
    for (int y = 0; y < pointer.height(); ++y)
        for (int x = 0; x < pointer.width(); ++x)
            if (x < tip.x() || y > tip.y()) {
                EXPECT_LT(pointer.pixelColor(x, y).alpha(), 128) << x << ' ' << y;
            }
}

TEST(ZoomView, ANewPictureKeepsTheMarkWithinIt)
{
    ZoomView view;
    std::optional<Rgb> sampled;
    QObject::connect(
        &view, &ZoomView::Sampled, [&sampled](const Rgb& colour) { sampled = colour; });
    view.SetPicture(Many(10, 10), 2);
    for (int i = 0; i < 9; ++i)
        QTest::keyClick(&view, Qt::Key_Right);
    ASSERT_EQ(sampled, (Rgb{ 9, 0, 200 }));

    view.SetPicture(Many(4, 4), 2);
    QTest::keyClick(&view, Qt::Key_Down);

    EXPECT_EQ(sampled, (Rgb{ 3, 1, 200 }));
}

} // namespace vypx::test
