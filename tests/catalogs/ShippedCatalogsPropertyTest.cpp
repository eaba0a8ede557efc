#include "catalogs/ShippedCatalogs.h"

#include <algorithm>
#include <map>
#include <rapidcheck/gtest.h>

namespace vypx::test {

namespace {

/// An entry as a test sees it: its name's letter decides its identity, whatever the case.
struct Row {
    char name = 'a';
    int owner = 0;
};

/// Few of each, so that they meet often.
std::vector<Row> AnyRows()
{
    const auto row = rc::gen::construct<Row>(
        rc::gen::elementOf(std::string("abcdefABC")), rc::gen::inRange(0, 6));
    return *rc::gen::container<std::vector<Row>>(row);
}

std::string TextOf(const std::vector<Row>& rows)
{
    std::string text;
    for (const Row& row : rows)
        text += std::string("[") + row.name + "]\nType=appl\nCreator={AAA"
            + std::to_string(row.owner) + "}\n";
    return text;
}

char Small(char letter) { return static_cast<char>(letter | 0x20); }

/// Of rows of one name only the first counts.
std::vector<Row> Counting(const std::vector<Row>& rows)
{
    std::vector<Row> counting;
    for (const Row& row : rows)
        if (std::none_of(counting.begin(), counting.end(),
                [&](const Row& other) { return Small(other.name) == Small(row.name); }))
            counting.push_back(row);
    return counting;
}

bool Has(const std::vector<Row>& rows, const Row& row)
{
    const auto counting = Counting(rows);
    return std::any_of(counting.begin(), counting.end(), [&](const Row& other) {
        return Small(other.name) == Small(row.name) || other.owner == row.owner;
    });
}

std::set<std::string> Merge(
    const std::vector<Row>& shipped, const std::set<std::string>& facts, IniText& user)
{
    return AddShippedEntries(
        CatalogForm::Owners, "AppList.dat", IniText(TextOf(shipped)), {}, facts, user);
}

RC_GTEST_PROP(ShippedCatalogProperties, TheUsersEntriesStayAndNewOnesComeIfAllowed, ())
{
    const std::vector<Row> base = AnyRows(), shipped = AnyRows(), own = AnyRows();
    IniText scratch;
    const std::set<std::string> facts = Merge(base, {}, scratch);
    const std::string before = TextOf(own) + "; mine";
    IniText user(before);

    std::set<std::string> now = Merge(shipped, facts, user);

    std::vector<Row> there = Counting(own), added;
    for (const Row& row : Counting(shipped)) {
        if (Has(base, row) || Has(there, row))
            continue;
        added.push_back(row);
        there.push_back(row);
    }
    RC_ASSERT(user.Bytes() == (added.empty() ? before : before + "\n" + TextOf(added)));

    const std::string once = user.Bytes();
    now.insert(facts.begin(), facts.end());
    Merge(shipped, now, user);
    RC_ASSERT(user.Bytes() == once);
    Merge(shipped, facts, user); // what was learnt could not be kept
    RC_ASSERT(user.Bytes() == once);
    IniText emptied("");
    Merge(shipped, now, emptied);
    RC_ASSERT(emptied.Bytes().empty());
}

} // namespace
} // namespace vypx::test
