#include "forms/catalogs/CatalogList.h"

#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// A list of a hundred entries on the screen.
class CatalogListTest : public ::testing::Test {
protected:
    CatalogListTest()
    {
        for (int i = 0; i < 100; ++i)
            entries.push_back({ .name = "App " + std::to_string(i), .type = "appl" });
        list.resize(200, 150);
        list.show();
        list.ShowEntries(entries);
        QObject::connect(&list, &CatalogList::Filled, &list, [this] { ++filled; });
        QObject::connect(&list, &QListWidget::itemSelectionChanged, &list, [this] { ++chosen; });
    }
    /// That entry is in the catalog no more.
    void Lose(int entry)
    {
        entries.erase(entries.begin() + entry);
        list.ShowEntries(entries);
    }
    int TopRow() { return list.row(list.itemAt(5, 5)); }

    std::vector<AvailableIcon> entries;
    CatalogList list;
    int filled = 0, chosen = 0;
};

TEST_F(CatalogListTest, TheSameEntriesLeaveItAlone)
{
    list.setCurrentRow(7);

    list.ShowEntries(entries);

    EXPECT_EQ(filled, 0);
    EXPECT_EQ(list.CurrentName(), "App 7");
}

TEST_F(CatalogListTest, OtherEntriesLeaveItWhereItIsScrolledTo)
{
    list.scrollToItem(list.item(50), QAbstractItemView::PositionAtTop);
    ASSERT_EQ(TopRow(), 50);

    Lose(60);

    EXPECT_EQ(list.count(), 99);
    EXPECT_EQ(TopRow(), 50);
    EXPECT_EQ(filled, 1);
}

TEST_F(CatalogListTest, WhatIsSelectedStaysSoWithoutBeingChosenAnew)
{
    list.setCurrentRow(10);
    list.item(20)->setSelected(true);
    list.item(30)->setSelected(true);
    const int before = chosen;

    Lose(20);

    EXPECT_EQ(list.SelectedNames(), QStringList({ "App 10", "App 30" }));
    EXPECT_EQ(list.CurrentName(), "App 10");
    EXPECT_EQ(chosen, before) << "nobody chose";
}

TEST_F(CatalogListTest, TheKeysGoOnWhereTheCurrentEntryWas)
{
    list.setCurrentRow(20);

    Lose(20);

    EXPECT_EQ(list.CurrentName(), "") << "it is not selected";
    EXPECT_TRUE(list.selectedItems().isEmpty());
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.CurrentName(), "App 22");
}

TEST_F(CatalogListTest, EntriesOfOneNameAreToldApartByTheirOwner)
{
    list.ShowEntries({ { .name = "Twin", .type = "appl", .creator = "AAAA" },
        { .name = "Twin", .type = "appl", .creator = "BBBB" } });
    list.setCurrentRow(1);

    list.Narrow("tw");

    EXPECT_FALSE(list.item(0)->isSelected());
    EXPECT_TRUE(list.item(1)->isSelected());
}

TEST_F(CatalogListTest, ItCanBeNarrowedBeforeItIsFilled)
{
    list.Narrow("99");
    EXPECT_EQ(list.count(), 1);

    Lose(99);

    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.Total(), 99);
    list.Narrow("");
    EXPECT_EQ(list.count(), 99);
}

} // namespace
} // namespace vypx::test
