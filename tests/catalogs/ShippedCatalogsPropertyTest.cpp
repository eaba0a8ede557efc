#include "catalogs/ShippedCatalogs.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>

namespace vypx::test {

namespace {

/// An entry as a test sees it: its name's letter decides its identity, whatever the case.
struct ShippedRow {
    char name = 'a';
    int owner = 0;
};

/// Few of each, so that they meet often.
std::vector<ShippedRow> AnyShippedRows()
{
    const auto row = rc::gen::construct<ShippedRow>(
        rc::gen::elementOf(std::string("abcdefABC")), rc::gen::inRange(0, 6));
    return *rc::gen::container<std::vector<ShippedRow>>(row);
}

std::string TextOfRows(const std::vector<ShippedRow>& rows)
{
    std::string text;
    for (const ShippedRow& row : rows)
        text += std::string("[") + row.name + "]\nType=appl\nCreator={AAA"
            + std::to_string(row.owner) + "}\n";
    return text;
}

char SmallLetter(char letter) { return static_cast<char>(letter | 0x20); }

/// Of rows of one name only the first counts.
std::vector<ShippedRow> CountingRows(const std::vector<ShippedRow>& rows)
{
    std::vector<ShippedRow> counting;
    for (const ShippedRow& row : rows)
        if (std::none_of(counting.begin(), counting.end(), [&](const ShippedRow& other) {
                return SmallLetter(other.name) == SmallLetter(row.name);
            }))
            counting.push_back(row);
    return counting;
}

bool TellsOf(const std::vector<ShippedRow>& rows, const ShippedRow& row)
{
    const auto counting = CountingRows(rows);
    return std::any_of(counting.begin(), counting.end(), [&](const ShippedRow& other) {
        return SmallLetter(other.name) == SmallLetter(row.name) || other.owner == row.owner;
    });
}

std::set<std::string> MergeShipped(
    const std::vector<ShippedRow>& shipped, const std::set<std::string>& facts, IniText& user)
{
    return AddShippedEntries(
        CatalogForm::Owners, "AppList.dat", IniText(TextOfRows(shipped)), {}, facts, user);
}

RC_GTEST_PROP(ShippedCatalogProperties, TheUsersEntriesStayAndNewOnesComeIfAllowed, ())
{
    const std::vector<ShippedRow> base = AnyShippedRows(), shipped = AnyShippedRows(),
                                  own = AnyShippedRows();
    IniText scratch;
    const std::set<std::string> facts = MergeShipped(base, {}, scratch);
    const std::string before = TextOfRows(own) + "; mine";
    IniText user(before);

    std::set<std::string> now = MergeShipped(shipped, facts, user);

    std::vector<ShippedRow> there = CountingRows(own), added;
    for (const ShippedRow& row : CountingRows(shipped)) {
        if (TellsOf(base, row) || TellsOf(there, row))
            continue;
        added.push_back(row);
        there.push_back(row);
    }
    RC_ASSERT(user.Bytes() == (added.empty() ? before : before + "\n" + TextOfRows(added)));

    const std::string once = user.Bytes();
    now.insert(facts.begin(), facts.end());
    MergeShipped(shipped, now, user);
    RC_ASSERT(user.Bytes() == once);
    MergeShipped(shipped, facts, user); // what was learnt could not be kept
    RC_ASSERT(user.Bytes() == once);
    IniText emptied("");
    MergeShipped(shipped, now, emptied);
    RC_ASSERT(emptied.Bytes().empty());
}

} // namespace
} // namespace vypx::test
