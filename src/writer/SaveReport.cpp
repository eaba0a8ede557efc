#include "writer/SaveReport.h"

#include "catalogs/OwnerRules.h"
#include "companion/Numbers.h"
#include "document/Document.h"

#include <numeric>
#include <unordered_set>

namespace vypx {

namespace {

/// IDs that the records name, 0 included where one has no large or no small icon.
std::unordered_set<int> NamedIds(const IconIndex& index)
{
    std::unordered_set<int> ids;
    for (const ItblValue& record : index.values) {
        ids.insert(record.largeId);
        ids.insert(record.smallId);
    }
    return ids;
}

/// Keys of the kept resources whose application the tree tells.
std::unordered_set<std::string> OwnedKeys()
{
    std::unordered_set<std::string> keys;
    for (const IconRow& row : IconTable)
        if (row.IconState != 0
            && (row.owner.IsKnown() || row.IconKind == KindApp || row.IconKind == KindPalm))
            keys.insert(row.ResourceKey);
    return keys;
}

void AddSentence(std::string& note, const std::string& sentence)
{
    note += (note.empty() ? "" : " ") + sentence;
}

/// "1 icon" and what it does, or "2 icons" and what they do.
std::string Counted(int count, const std::string& one, const std::string& many)
{
    return std::to_string(count) + (count == 1 ? " icon " + one : " icons " + many);
}

} // namespace

SaveReport ReportOn(std::span<const ResourceRow> pictures, const IconIndex& index)
{
    SaveReport report{
        .ownersFromRows =
            std::accumulate(index.ownersFromRows.begin(), index.ownersFromRows.end(), 0),
        .withoutName = DatabaseName.empty(),
    };
    const RowsById launcher = LauncherRows();
    const std::unordered_set<int> named = NamedIds(index);
    const std::unordered_set<std::string> owned = OwnedKeys();
    std::unordered_set<std::string> seen; // a reader passes over what repeats type and ID
    for (const ResourceRow& picture : pictures) {
        const int id = ResourceId(picture.key);
        if (!launcher.Of(id).empty()
            || !seen.insert(picture.key.substr(0, 4) + std::to_string(id)).second)
            continue;
        if (index.values.empty())
            report.unknown += owned.contains(picture.key);
        else
            report.orphans += !named.contains(id);
    }
    return report;
}

std::string NoteOf(const SaveReport& report)
{
    std::string note;
    if (report.orphans > 0)
        AddSentence(note,
            Counted(report.orphans, "will be an orphan", "will be orphans")
                + " when this file is opened: its index of applications does not name "
                + (report.orphans == 1 ? "it." : "them."));
    if (report.unknown > 0)
        AddSentence(note,
            Counted(report.unknown, "will be unknown", "will be unknown")
                + " when this file is opened: it has no index of applications.");
    if (report.ownersFromRows > 0)
        AddSentence(note,
            Counted(report.ownersFromRows, "keeps its application", "keep their application")
                + " as it was: the catalogs do not name it any more.");
    if (report.withoutName)
        AddSentence(note, "The iconset has no Palm database name.");
    return note;
}

} // namespace vypx
