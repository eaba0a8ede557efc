#include "document/Slot.h"

#include "document/Document.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(TransparentColour, IsTheOneInTheCellsIfAllThreeAreThere)
{
    BitmapEntry bitmap{ .hasTransparent = 1, .red = 1, .green = 2, .blue = 3 };
    EXPECT_EQ(TransparentColour(bitmap), (Rgb{ 1, 2, 3 }));

    for (std::optional<int> BitmapEntry::*cell :
        { &BitmapEntry::red, &BitmapEntry::green, &BitmapEntry::blue }) {
        BitmapEntry incomplete = bitmap;
        (incomplete.*cell).reset();
        EXPECT_EQ(TransparentColour(incomplete), std::nullopt);
    }
}

TEST(TransparentColour, OfAPictureOf1Or2BitsIsThatOfItsIndex)
{
    const auto colour = [](int depth, std::optional<int> index) {
        return TransparentColour({ .hasTransparent = 1, .index = index, .depth = depth });
    };

    EXPECT_EQ(colour(1, 0), (Rgb{ 255, 255, 255 }));
    EXPECT_EQ(colour(1, 1), Black);
    EXPECT_EQ(colour(1, 2), std::nullopt) << "a palette of two";
    EXPECT_EQ(colour(2, 1), (Rgb{ 170, 170, 170 }));
    EXPECT_EQ(colour(2, 3), Black);
    EXPECT_EQ(colour(2, 4), std::nullopt) << "a palette of four";
    EXPECT_EQ(colour(2, -1), std::nullopt);
    EXPECT_EQ(colour(2, std::nullopt), std::nullopt);
    EXPECT_EQ(colour(4, 0), std::nullopt) << "its cells would hold it";
}

TEST(TransparentColour, IsNoneWithoutTheFlag)
{
    EXPECT_EQ(TransparentColour({ .hasTransparent = 0, .index = 1, .depth = 2 }), std::nullopt);
    EXPECT_EQ(TransparentColour({ .index = 1, .depth = 2 }), std::nullopt);
    EXPECT_EQ(TransparentColour({}), std::nullopt);
}

} // namespace
} // namespace vypx::test
