#include "companion/DatabaseHeader.h"

#include "support/Files.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

TEST(NameInField, EndsAtTheFirstByteOutsideOf32To126)
{
    EXPECT_EQ(NameInField(Hex("41 20 7E 00 42")), "A ~");
    EXPECT_EQ(NameInField(Hex("41 7F 42")), "A");
    EXPECT_EQ(NameInField(Hex("41 1F 42")), "A");
    EXPECT_EQ(NameInField(Hex("41 C4 42")), "A");
    EXPECT_EQ(NameInField(Hex("00 41")), "");
    EXPECT_EQ(NameInField(Hex("41 42")), "AB") << "or with the field";
}

} // namespace
} // namespace vypx::test
