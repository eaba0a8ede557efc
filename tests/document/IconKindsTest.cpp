#include "document/IconKinds.h"

#include "companion/IconRow.h"

#include <gtest/gtest.h>
#include <set>

namespace vypx::test {

namespace {

TEST(IconKinds, TheCatalogOfApplicationsNamesIconsWithFreeIds)
{
    const IconKindRow& kind = KindOf(Catalog::Apps);

    EXPECT_EQ(kind.word, "APP");
    EXPECT_EQ(kind.image, 2);
    EXPECT_EQ(kind.ids, IdRule::NextFree);
}

TEST(IconKinds, TheCatalogOfTheSystemNamesIconsWithFreeIds)
{
    const IconKindRow& kind = KindOf(Catalog::Palm);

    EXPECT_EQ(kind.word, "PALM");
    EXPECT_EQ(kind.image, 3);
    EXPECT_EQ(kind.ids, IdRule::NextFree);
}

TEST(IconKinds, TheLaunchersIconsHaveTheIdsOfTheirEntries)
{
    const IconKindRow& kind = KindOf(Catalog::Launcher);

    EXPECT_EQ(kind.word, "VY");
    EXPECT_EQ(kind.image, 1);
    EXPECT_EQ(kind.ids, IdRule::OfEntry);
}

TEST(IconKinds, WhatNoCatalogNamesIsNeverNew)
{
    int without = 0;
    for (const IconKindRow& kind : IconKinds()) {
        if (kind.catalog != Catalog::None)
            continue;
        ++without;
        EXPECT_EQ(kind.ids, IdRule::AsRead) << kind.word;
        EXPECT_TRUE(kind.word == KindUnknown || kind.word == KindDelete) << kind.word;
    }
    EXPECT_EQ(without, 2);
}

TEST(IconKinds, EachWordStandsOnceAndLeadsToItsImage)
{
    std::set<std::string_view> words;
    for (const IconKindRow& kind : IconKinds()) {
        EXPECT_TRUE(words.insert(kind.word).second) << kind.word;
        EXPECT_EQ(ImageOfKind(kind.word), kind.image) << kind.word;
    }
    EXPECT_EQ(words, (std::set<std::string_view>{ "APP", "PALM", "VY", "UNKNOWN", "DELETE" }));
}

TEST(IconKinds, AWordThatIsNoneHasNoImage)
{
    EXPECT_EQ(ImageOfKind(""), 0);
    EXPECT_EQ(ImageOfKind("app"), 0);
    EXPECT_EQ(ImageOfKind("NEW"), 0);
}

} // namespace
} // namespace vypx::test
