#include "companion/ByteView.h"

#include "support/Files.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

const Bytes Five = Hex("01 02 83 41 5A");

TEST(ByteView, NumbersAreBigEndianAndWithoutASign)
{
    const ByteView view(Five);

    EXPECT_EQ(view.Size(), 5u);
    EXPECT_EQ(view.U8(2), 0x83);
    EXPECT_EQ(view.U16(1), 0x0283);
    EXPECT_EQ(view.U24(2), 0x83415Au);
    EXPECT_EQ(view.U32(1), 0x0283415Au);
}

TEST(ByteView, NothingIsReadBehindTheEnd)
{
    const ByteView view(Five);

    EXPECT_THROW(view.U8(5), PastTheEnd);
    EXPECT_THROW(view.U16(4), PastTheEnd);
    EXPECT_THROW(view.U24(3), PastTheEnd);
    EXPECT_THROW(view.U32(2), PastTheEnd);
    EXPECT_THROW(view.U8(SIZE_MAX), PastTheEnd);
    EXPECT_THROW(ByteView().U8(0), PastTheEnd);
}

TEST(ByteView, APartEndsWithTheWholeAtLast)
{
    const ByteView view(Five);

    EXPECT_EQ(view.Text(3, 2), "AZ");
    EXPECT_EQ(view.Part(1, 3).U16(1), 0x8341);
    EXPECT_EQ(view.Part(5, 0).Size(), 0u);
    EXPECT_THROW(view.Part(1, 3).U8(3), PastTheEnd);
    EXPECT_THROW(view.Part(6, 0), PastTheEnd);
    EXPECT_THROW(view.Part(4, 2), PastTheEnd);
    EXPECT_THROW(view.Part(1, SIZE_MAX), PastTheEnd);
    EXPECT_THROW(view.Text(4, 2), PastTheEnd);
}

} // namespace
} // namespace vypx::test
