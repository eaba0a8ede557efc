#include "reader/WalkResources.h"

#include "companion/Lookups.h"
#include "document/Catalogs.h"
#include "document/Document.h"
#include "reader/BitmapChain.h"
#include "reader/IconMatcher.h"
#include "reader/IconTableResource.h"
#include "reader/ResourceList.h"

#include <stdexcept>

namespace vypx {

namespace {

constexpr std::string_view DuplicateMessage = "Warning, file contains a duplicate resource!";

class Walk {
public:
    explicit Walk(LoadListener& listener)
        : m_listener(listener)
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
    void AddUnmatched(const std::string& note);
    void WriteRow(std::string label, std::string_view kind);
    void LocateData();
    void GiveUp();

    LoadListener& m_listener;
    IconMatcher m_matcher;
    ResourceKeys m_keys; // those of IconTable
    std::string m_bitmapStem;
    int m_count = 0;
    bool m_itblSeen = false, m_noItbl = false;
};

bool Walk::Pass()
{
    m_count = ReadResourceCount();
    FCin = FirstEntryIndex;
    Rcntr = 1;
    TLstCnt = 0;
    while (Rcntr <= m_count) {
        BitmapFamily = {};
        BitmapFamilyCount = 0;
        if (m_count > MaxResources) {
            GiveUp();
            return false;
        }
        const ResourceEntry entry = ReadEntry(FCin);
        if (!m_itblSeen && entry.type == "iTbl") {
            RestartWithIndex();
            continue;
        }
        Visit(entry);
        FCin += EntrySize;
        ++Rcntr;
    }
    for (IconRow& row : IconTable)
        if (LabelHolds(row.IconLabel, "Orphan"))
            row.IconState = 0;
    return true;
}

void Walk::RestartWithIndex()
{
    ReadIconTableResource(m_listener);
    m_matcher.UseIndex();
    m_itblSeen = true;
    Rcntr = 1;
    FCin = FirstEntryIndex;
}

void Walk::Visit(const ResourceEntry& entry)
{
    ResourceName = entry.Name();
    std::int32_t duplicate = 0;
    ChkDup(m_keys, ResourceName, duplicate);
    if (duplicate == 0 && m_itblSeen && entry.IsBitmap()) {
        AddRowsOf(entry);
        ++TotalBmpResources;
    }
    LocateData();
    // On purpose: the bitmaps of a resource that was passed over as a duplicate count as well.
    if (m_itblSeen && entry.IsBitmap())
        WalkBitmapChain(m_bitmapStem, m_listener);
}

void Walk::AddRowsOf(const ResourceEntry& entry)
{
    // An icon of the launcher never asks the index, even if the index names its ID.
    if (AddMatches(m_matcher.LauncherIcons(entry.id)))
        return;
    if (m_noItbl) {
        AddUnmatched("");
        return;
    }
    // An index that could not be read, with none before it, ends the walk here: what has been
    // found of the launcher's icons stays.
    if (Itbl.empty())
        throw std::out_of_range("no icon index");
    if (!AddMatches(m_matcher.Applications(entry.id)))
        AddUnmatched(m_matcher.Note(entry.id));
}

/// Whether at least one row was added. A label of a catalog that is taken already can't become
/// another by a new resource name, so that row is passed over and the next match is tried.
bool Walk::AddMatches(const std::vector<IconMatcher::Match>& matches)
{
    bool matched = false;
    for (const IconMatcher::Match& match : matches) {
        if (!Tree.Add({ .key = match.label, .image = ImageOfKind(match.kind) })) {
            m_listener.Message(DuplicateMessage);
            continue;
        }
        WriteRow(match.label, match.kind);
        matched = true;
    }
    return matched;
}

void Walk::AddUnmatched(const std::string& note)
{
    const auto label = [&] { return ResourceName + " (" + note + ") "; };
    while (!Tree.Add({ .key = label(), .image = ImageUnknown })) {
        m_listener.Message(DuplicateMessage);
        ResourceName += "(Dup)";
    }
    const bool orphan = LabelHolds(label(), "Orphan");
    if (orphan) {
        IconNode& node = *Tree.Find(label());
        node.image = ImageDelete;
        node.colour = Red;
    }
    WriteRow(label(), orphan ? KindDelete : KindUnknown);
}

void Walk::WriteRow(std::string label, std::string_view kind)
{
    // On purpose: a file can have no more rows than twice its resources and one; the next one ends
    // the walk by the table's bound.
    IconRow& row = IconTable.at(static_cast<std::size_t>(TLstCnt));
    row.IconLabel = std::move(label);
    row.ResourceKey = ResourceName;
    row.IconKind = kind;
    m_keys.insert(ResourceName);
    ++TLstCnt;
}

void Walk::LocateData()
{
    ResourceOffset = ReadDataOffset(FCin);
    if (Rcntr == m_count) {
        ResourceSize = IconFileSize - ResourceOffset;
        return;
    }
    NextOffset = ReadDataOffset(FCin + EntrySize);
    ResourceSize = NextOffset - ResourceOffset;
}

void Walk::GiveUp()
{
    m_listener.Message("Error parsing file!");
    m_listener.WalkGivenUp();
}

} // namespace

void WalkResources(LoadListener& listener)
{
    try {
        Walk(listener).Run();
    } catch (const std::out_of_range&) {
        // Nothing is said: the tree shows what was found before the list or a table ended.
    }
}

} // namespace vypx
