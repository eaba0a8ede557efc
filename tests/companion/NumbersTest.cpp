#include "companion/Numbers.h"

#include <gtest/gtest.h>

namespace vypx {
namespace {

TEST(LeadingNumber, StandsAtTheBeginningOfAText)
{
    EXPECT_EQ(LeadingNumber("2000"), 2000);
    EXPECT_EQ(LeadingNumber("  2000 x"), 2000);
    EXPECT_EQ(LeadingNumber("\t+7"), 7);
    EXPECT_EQ(LeadingNumber("-7"), -7);
    EXPECT_EQ(LeadingNumber("2000.5"), 2000.5);
    EXPECT_EQ(LeadingNumber("x2000"), std::nullopt);
    EXPECT_EQ(LeadingNumber(""), std::nullopt);
}

TEST(LeadingWhole, IsOneOfTheRange)
{
    EXPECT_EQ(LeadingWhole("0", 0, 255), 0);
    EXPECT_EQ(LeadingWhole("255", 0, 255), 255);
    EXPECT_EQ(LeadingWhole("256", 0, 255), std::nullopt);
    EXPECT_EQ(LeadingWhole("-1", 0, 255), std::nullopt);
    EXPECT_EQ(LeadingWhole("1.5", 0, 255), std::nullopt);
    EXPECT_EQ(LeadingWhole("nan", 0, 255), std::nullopt);
    EXPECT_EQ(LeadingWhole("99999999999999999999", 0, 255), std::nullopt);
}

TEST(ResourceId, StandsBehindTheType)
{
    EXPECT_EQ(ResourceId("tAIB1005"), 1005);
    EXPECT_EQ(ResourceId("tAIB1005(Dup)"), 1005);
    EXPECT_EQ(ResourceId("Tbmp65535"), 65535);
    EXPECT_EQ(ResourceId("Tbmp65536"), 0);
    EXPECT_EQ(ResourceId("tAIB"), 0);
    EXPECT_EQ(ResourceId("tA"), 0);
}

} // namespace
} // namespace vypx
