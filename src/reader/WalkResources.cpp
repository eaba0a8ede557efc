#include "reader/WalkResources.h"

#include "catalogs/IconMatcher.h"
#include "companion/Lookups.h"
#include "document/Catalogs.h"
#include "document/Document.h"
#include "document/IconKinds.h"
#include "document/Labels.h"
#include "reader/BitmapChain.h"
#include "reader/IconTableResource.h"
#include "reader/ResourceList.h"

#include <utility>

namespace vypx {

namespace {

constexpr std::string_view DuplicateMessage = "Warning, file contains a duplicate resource!";

class Walk {
public:
    Walk(WalkState& state, LoadListener& listener)
        : m_state(state)
        , m_listener(listener)
    {
    }

    void Run()
    {
        while (Pass() && !m_itblSeen) {
            m_itblSeen = m_noItbl = true;
            Itbl.clear(); // the index of the last file says nothing about this one
        }
    }

private:
    /// False: the walk was given up.
    bool Pass();
    void Visit(const ResourceEntry& entry);
    void RestartWithIndex();
    void AddRowsOf(const ResourceEntry& entry);
    bool AddMatches(const std::vector<IconMatcher::Match>& matches);
    void AddUnmatched(const IconMatcher::Note& note);
    void WriteRow(std::string label, std::string_view kind, const Owner& owner);
    void LocateData();
    void TellDuplicate();
    void GiveUp();

    WalkState& m_state;
    LoadListener& m_listener;
    IconMatcher m_matcher;
    ResourceKeys m_keys; // those of IconTable
    int m_count = 0;
    bool m_itblSeen = false, m_noItbl = false;
};

bool Walk::Pass()
{
    m_count = ReadResourceCount();
    m_state.FCin = FirstEntryIndex;
    m_state.Rcntr = 1;
    m_state.TLstCnt = 0;
    while (m_state.Rcntr <= m_count) {
        m_state.BitmapFamily = {};
        m_state.BitmapFamilyCount = 0;
        if (m_count > MaxResources) {
            GiveUp();
            return false;
        }
        const ResourceEntry entry = ReadEntry(m_state.FCin);
        if (!m_itblSeen && entry.type == "iTbl") {
            RestartWithIndex();
            continue;
        }
        Visit(entry);
        m_state.FCin += EntrySize;
        ++m_state.Rcntr;
    }
    for (IconRow& row : IconTable)
        if (IsOrphanLabel(row.IconLabel))
            row.IconState = 0;
    return true;
}

void Walk::RestartWithIndex()
{
    ReadIconTableResource(m_state, m_listener);
    m_matcher.UseIndex();
    m_itblSeen = true;
    m_state.Rcntr = 1;
    m_state.FCin = FirstEntryIndex;
}

void Walk::Visit(const ResourceEntry& entry)
{
    m_state.ResourceName = entry.Name();
    std::int32_t duplicate = 0;
    ChkDup(m_keys, m_state.ResourceName, duplicate);
    if (duplicate == 0 && m_itblSeen && entry.IsBitmap())
        AddRowsOf(entry);
    LocateData();
    // On purpose: the bitmaps of a resource that was passed over as a duplicate count as well.
    if (m_itblSeen && entry.IsBitmap())
        WalkBitmapChain(m_state, m_listener);
}

void Walk::AddRowsOf(const ResourceEntry& entry)
{
    // An icon of the launcher never asks the index, even if the index names its ID.
    if (AddMatches(m_matcher.LauncherIcons(entry.id)))
        return;
    if (m_noItbl) {
        AddUnmatched({});
        return;
    }
    // An index that could not be read, with none before it, ends the walk here: what has been
    // found of the launcher's icons stays.
    if (Itbl.empty())
        throw BrokenFile("no icon index");
    if (!AddMatches(m_matcher.Applications(entry.id)))
        AddUnmatched(m_matcher.NoteOf(entry.id));
}

/// Whether at least one row was added. A label of a catalog that is taken already can't become
/// another by a new resource name, so that row is passed over and the next match is tried.
bool Walk::AddMatches(const std::vector<IconMatcher::Match>& matches)
{
    bool matched = false;
    for (const IconMatcher::Match& match : matches) {
        if (!Tree.Add({ .key = match.label, .image = ImageOfKind(match.kind) })) {
            TellDuplicate();
            continue;
        }
        WriteRow(match.label, match.kind, match.owner);
        matched = true;
    }
    return matched;
}

void Walk::AddUnmatched(const IconMatcher::Note& note)
{
    const auto label = [&] { return UnmatchedLabel(m_state.ResourceName, note.text); };
    while (!Tree.Add({ .key = label(), .image = ImageUnknown })) {
        TellDuplicate();
        m_state.ResourceName += "(Dup)";
    }
    const bool orphan = IsOrphanLabel(label());
    if (orphan) {
        IconNode& node = *Tree.Find(label());
        node.image = ImageDelete;
        node.colour = Red;
    }
    WriteRow(label(), orphan ? KindDelete : KindUnknown, note.owner);
}

void Walk::WriteRow(std::string label, std::string_view kind, const Owner& owner)
{
    const auto next = static_cast<std::size_t>(m_state.TLstCnt);
    if (next >= IconTable.size()) { // as labels are unique, catalogs and resources bound the table
        IconTable.push_back({ .IconState = 1 });
        ShareNames.resize(IconTable.size());
    }
    IconRow& row = IconTable[next];
    row.IconLabel = std::move(label);
    row.ResourceKey = m_state.ResourceName;
    row.IconKind = kind;
    row.owner = owner;
    m_keys.insert(m_state.ResourceName);
    ++m_state.TLstCnt;
}

void Walk::LocateData()
{
    m_state.ResourceOffset = ReadDataOffset(m_state.FCin);
    if (m_state.Rcntr == m_count) {
        m_state.ResourceSize = IconFileSize - m_state.ResourceOffset;
        return;
    }
    m_state.NextOffset = ReadDataOffset(m_state.FCin + EntrySize);
    m_state.ResourceSize = m_state.NextOffset - m_state.ResourceOffset;
}

void Walk::TellDuplicate()
{
    m_listener.DuplicateResource(m_state.ResourceName);
    m_listener.Message(DuplicateMessage);
}

void Walk::GiveUp()
{
    m_listener.Message("Error parsing file!");
    m_listener.WalkGivenUp();
}

} // namespace

void WalkResources(WalkState& walk, LoadListener& listener)
{
    try {
        Walk(walk, listener).Run();
    } catch (const BrokenFile&) {
        // Nothing is said: the tree shows what was found before the list or a table ended.
    }
}

} // namespace vypx
