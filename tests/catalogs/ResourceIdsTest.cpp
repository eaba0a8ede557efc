#include "catalogs/ResourceIds.h"

#include "document/Document.h"
#include "support/Properties.h"

#include <gtest/gtest.h>

namespace vypx::test {

namespace {

void SetKeys(const std::vector<std::string>& keys)
{
    IconTable.clear();
    for (const std::string& key : keys)
        IconTable.push_back({ "Row of " + key, key, "NEW", "NEW", 1, "APP" });
}

/// The rule once more, digit by digit: what is handed out over one run.
class PlainRule {
public:
    std::optional<int> Next(SizeClass size)
    {
        for (const IconRow& row : IconTable) {
            const int number = NumberIn(row.ResourceKey);
            if (number >= 3500 && number <= 9999 && number > m_maximum)
                m_maximum = number;
        }
        int id = m_maximum + 1;
        if (id < 3500)
            id = 3500;
        if (id > 10000)
            return std::nullopt;
        while (id % 2 != 0)
            ++id;
        m_maximum = id;
        return size == SizeClass::Large ? id : id + 1;
    }

private:
    /// Ends where the digits do; a large number is cut at a million.
    static int NumberIn(const std::string& key)
    {
        int number = 0;
        for (std::size_t i = 4; i < key.size() && key[i] >= '0' && key[i] <= '9'; ++i)
            number = std::min(number * 10 + (key[i] - '0'), 1'000'000);
        return number;
    }

    int m_maximum = 0;
};

class ResourceIdsTest : public ::testing::Test {
protected:
    ResourceIdsTest() { ResetDocument(); }
    ~ResourceIdsTest() override { ResetDocument(); }

    /// What a fresh run hands out first, with those keys in the table.
    static std::optional<int> First(
        const std::vector<std::string>& keys, SizeClass size = SizeClass::Large)
    {
        SetKeys(keys);
        return ResourceIds().Next(size);
    }
};

TEST_F(ResourceIdsTest, BeginAt3500ForALargeAndAt3501ForASmallIcon)
{
    EXPECT_EQ(First({}), 3500);
    EXPECT_EQ(First({}, SizeClass::Small), 3501);
}

TEST_F(ResourceIdsTest, OfALargeAndThenASmallIconAre3500And3503)
{
    IconTable.assign(1, {});
    ResourceIds ids;

    EXPECT_EQ(ids.Next(SizeClass::Large), 3500);
    EXPECT_EQ(ids.Next(SizeClass::Small), 3503);
    EXPECT_EQ(ids.Next(SizeClass::Small), 3505);
    EXPECT_EQ(ids.Next(SizeClass::Large), 3506);
}

TEST_F(ResourceIdsTest, FollowTheHighestThatIsTaken)
{
    EXPECT_EQ(First({ "tAIB3600", "tAIB3502" }), 3602);
    EXPECT_EQ(First({ "tAIB3601" }), 3602);
    EXPECT_EQ(First({ "tAIB3601" }, SizeClass::Small), 3603);
    EXPECT_EQ(First({ "tAIB3500" }, SizeClass::Small), 3503);
}

TEST_F(ResourceIdsTest, OnPurposeNumbersBelow3500AndFrom10000OnAreNotSeen)
{
    EXPECT_EQ(First({ "tAIB3499" }), 3500);
    EXPECT_EQ(First({ "tAIB10000", "tAIB10001", "tAIB65535", "tAIB99999999999" }), 3500);
    EXPECT_EQ(First({ "tAIB3500", "tAIB10000" }), 3502);
}

TEST_F(ResourceIdsTest, CountResourcesOfAnyTypeAndRepeatedOnes)
{
    EXPECT_EQ(First({ "Tbmp4000" }), 4002);
    EXPECT_EQ(First({ "tAIB4001(Dup)" }), 4002);
    EXPECT_EQ(First({ "Tbmp4000(Dup)", "tAIB3500" }), 4002);
}

TEST_F(ResourceIdsTest, PassOverKeysWithoutANumber)
{
    EXPECT_EQ(First({ "", "t", "tAI", "tAIB", "tAIB(Dup)", "tAIBx4000", "4000" }), 3500);
}

TEST_F(ResourceIdsTest, OfRowsThatAreMarkedForRemovalAreTaken)
{
    SetKeys({ "tAIB3700" });
    IconTable[0].IconState = 0;

    EXPECT_EQ(ResourceIds().Next(SizeClass::Large), 3702);
}

TEST_F(ResourceIdsTest, OnPurposeARunAtTheTopGives10000AgainAndASmallIcon10001)
{
    EXPECT_EQ(First({ "tAIB9999" }), 10000);
    EXPECT_EQ(First({ "tAIB9999", "tAIB10000", "tAIB10001" }), 10000);
    EXPECT_EQ(First({ "tAIB9999" }, SizeClass::Small), 10001);
    EXPECT_EQ(First({ "tAIB9998", "tAIB10001" }, SizeClass::Small), 10001);
    EXPECT_EQ(First({ "tAIB9997" }), 9998);
}

TEST_F(ResourceIdsTest, WithinARunThereAreNoneBehind10000)
{
    SetKeys({ "tAIB9997" });
    ResourceIds ids;

    EXPECT_EQ(ids.Next(SizeClass::Small), 9999);
    EXPECT_EQ(ids.Next(SizeClass::Large), 10000);
    EXPECT_EQ(ids.Next(SizeClass::Large), std::nullopt);
    EXPECT_EQ(ids.Next(SizeClass::Small), std::nullopt);
}

TEST_F(ResourceIdsTest, BecomeKeysOfOneType)
{
    EXPECT_EQ(ResourceKeyOf(3500), "tAIB3500");
    EXPECT_EQ(ResourceKeyOf(10001), "tAIB10001");
}

#ifdef RC_GTEST_PROP
std::string AnyKey()
{
    const auto type = *rc::gen::element<std::string>("tAIB", "Tbmp", "tAI", "", "abcd", "9999");
    const auto number = *rc::gen::weightedOneOf<int>({
        { 3, rc::gen::inRange(3490, 3520) },
        { 3, rc::gen::inRange(3500, 10000) },
        { 2, rc::gen::inRange(9990, 10010) },
        { 1, rc::gen::inRange(0, 100'000) },
        { 1, rc::gen::element(0, 3499, 3500, 9999, 10000, 65535, 65536, 2147483647) },
    });
    const auto end = *rc::gen::element<std::string>("", "", "", "(Dup)", " (Dup)");
    const bool hasNumber = *rc::gen::inRange(0, 10) != 0;
    return type + (hasNumber ? std::to_string(number) : "") + end;
}

RC_GTEST_FIXTURE_PROP(ResourceIdsTest, AreThoseOfThePlainRuleOverRunsOfAnySizes, ())
{
    std::vector<std::string> keys;
    for (int i = *rc::gen::inRange(0, 12); i > 0; --i)
        keys.push_back(AnyKey());
    SetKeys(keys);
    ResourceIds ids;
    PlainRule plain;

    for (const bool isLarge : *rc::gen::container<std::vector<bool>>(rc::gen::arbitrary<bool>())) {
        const SizeClass size = isLarge ? SizeClass::Large : SizeClass::Small;
        const std::optional<int> id = ids.Next(size);
        RC_ASSERT(id == plain.Next(size));
        if (!id)
            continue;
        RC_ASSERT(*id >= 3500 && *id <= 10001 && (*id % 2 == 0) == isLarge);
        if (*rc::gen::arbitrary<bool>()) // the row that got it is in the table by the next one
            IconTable.push_back({ "Row", ResourceKeyOf(*id), "NEW", "NEW", 1, "APP" });
    }
}

RC_GTEST_FIXTURE_PROP(ResourceIdsTest, NeverGiveAnIdBelow10000ThatIsTaken, ())
{
    std::vector<std::string> keys;
    for (int i = *rc::gen::inRange(0, 12); i > 0; --i)
        keys.push_back(ResourceKeyOf(*rc::gen::inRange(3480, 10010)));
    SetKeys(keys);
    ResourceIds ids;

    for (int i = 0; i < 8; ++i)
        if (const std::optional<int> id = ids.Next(i % 3 ? SizeClass::Large : SizeClass::Small)) {
            if (*id < 10000)
                for (const IconRow& row : IconTable)
                    RC_ASSERT(row.ResourceKey != ResourceKeyOf(*id));
            IconTable.push_back({ "Row", ResourceKeyOf(*id), "NEW", "NEW", 1, "APP" });
        }
}
#endif

} // namespace
} // namespace vypx::test
