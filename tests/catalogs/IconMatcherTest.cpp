#include "catalogs/IconMatcher.h"

#include "companion/IconRow.h"
#include "support/LoadFixture.h"
#include "support/Properties.h"

namespace vypx::test {

namespace {

using Labels = std::vector<std::pair<std::string, std::string>>; // label, kind

Labels LabelsOf(const std::vector<IconMatcher::Match>& matches)
{
    Labels labels;
    for (const IconMatcher::Match& match : matches)
        labels.emplace_back(match.label, match.kind);
    return labels;
}

/// The plain search through the product of all three lists that the matcher stands for.
Labels SearchEverything(int id)
{
    Labels found;
    const auto search = [&](bool large, const std::vector<CatalogRow>& catalog, const char* kind) {
        for (std::size_t i = 1; i < Itbl.size(); ++i)
            for (const CatalogRow& row : catalog)
                if ((large ? Itbl[i].largeId : Itbl[i].smallId) == id && !row.name.empty()
                    && row.type == Itbl[i].type && row.creator == Itbl[i].creator)
                    found.emplace_back(
                        row.name + (large ? " (Large Icon)" : " (Small Icon)"), kind);
    };
    search(true, AppTable, "APP");
    search(false, AppTable, "APP");
    search(true, PalmTable, "PALM");
    search(false, PalmTable, "PALM");
    return found;
}

std::string SearchNote(int id)
{
    std::string note = "Orphan";
    for (std::size_t i = 1; i < Itbl.size(); ++i)
        if (Itbl[i].largeId == id)
            note = Itbl[i].creator + " - Large";
    for (std::size_t i = 1; i < Itbl.size(); ++i)
        if (Itbl[i].smallId == id)
            note = Itbl[i].creator + " - Small";
    return note;
}

#ifdef RC_GTEST_PROP
/// Few different words, so that many rows meet.
std::vector<CatalogRow> SomeCatalog()
{
    const auto rows = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 60));
    std::vector<CatalogRow> catalog(1);
    for (const int row : rows)
        catalog.push_back({ .name = row % 7 == 0 ? "" : "N" + std::to_string(row % 5),
            .type = row % 2 ? "appl" : "panl",
            .creator = row % 11 == 0 ? "AB" : "CR0" + std::to_string(row % 3),
            .extra = "" });
    return catalog;
}

RC_GTEST_PROP(IconMatcher, AnswersWhatASearchThroughEverythingAnswers, ())
{
    AppTable = SomeCatalog();
    PalmTable = SomeCatalog();
    Itbl.assign(1, {});
    for (const int row : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 1000)))
        Itbl.push_back({ .type = row % 2 ? "appl" : "panl",
            .creator = "CR0" + std::to_string(row % 3),
            .largeId = row % 6,
            .smallId = row / 6 % 6 });
    IconMatcher matcher;
    matcher.UseIndex();

    for (int id = 0; id < 7; ++id) {
        RC_ASSERT(LabelsOf(matcher.Applications(id)) == SearchEverything(id));
        RC_ASSERT(matcher.NoteOf(id).text == SearchNote(id));
    }
    ResetCatalogs();
    Itbl.clear();
}
#endif

TEST(IconMatcher, AnIdWithAFractionIsNoResources)
{
    VYTable = { {}, { "Half", "2000.5", "" }, { "Far", "99999", "" }, { "Below", "-1", "" } };

    const IconMatcher matcher;

    EXPECT_TRUE(matcher.LauncherIcons(2000).empty());
    EXPECT_TRUE(matcher.LauncherIcons(65535).empty());
    ResetCatalogs();
}

} // namespace
} // namespace vypx::test
