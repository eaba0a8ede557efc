#include "cli/FirstIcons.h"

#include "cli/Sheet.h"
#include "document/Document.h"
#include "document/Labels.h"

#include <array>
#include <unordered_set>
#include <utility>

namespace vypx {

namespace {

enum Group { LargeOnes, OfNoSize, SmallOnes, Orphans, SecondOnes, Groups };

/// What the large and the small icon of one application have in common.
std::string ApplicationOf(const IconRow& row)
{
    return row.owner.IsKnown() ? row.owner.type + row.owner.creator
                               : std::string(NameInLabel(row.IconLabel));
}

std::unordered_set<std::string> ApplicationsWithLargeIcon()
{
    std::unordered_set<std::string> names;
    for (const IconRow& row : IconTable)
        if (SizeToImport(row.IconLabel) == SizeClass::Large)
            names.insert(ApplicationOf(row));
    return names;
}

Group GroupOf(const IconRow& row, const std::unordered_set<std::string>& withLargeIcon)
{
    if (IsOrphanLabel(row.IconLabel))
        return Orphans;
    const std::optional<SizeClass> size = SizeToImport(row.IconLabel);
    if (!size)
        return OfNoSize;
    if (*size == SizeClass::Large)
        return LargeOnes;
    return withLargeIcon.contains(ApplicationOf(row)) ? SecondOnes : SmallOnes;
}

} // namespace

void FirstIcons::RankResources()
{
    const std::unordered_set<std::string> withLargeIcon = ApplicationsWithLargeIcon();
    std::array<std::vector<std::string>, Groups> keys;
    for (const IconRow& row : IconTable)
        if (!row.IconLabel.empty())
            keys.at(GroupOf(row, withLargeIcon)).push_back(row.ResourceKey);
    for (int group = 0; group < Groups; ++group) {
        if (group == SecondOnes)
            m_firstSpare = m_ranks.size();
        for (const std::string& key : keys.at(static_cast<std::size_t>(group)))
            m_ranks.try_emplace(key, m_ranks.size());
    }
    m_isRanked = true;
}

bool FirstIcons::HasAll() const
{
    return m_kept.size() == m_most && m_kept.rbegin()->first < m_most;
}

bool FirstIcons::GoOn()
{
    if (!m_isRanked)
        RankResources();
    return !HasAll();
}

bool FirstIcons::Wants(const PictureHeader& header)
{
    const auto rank = m_ranks.find(header.resourceKey);
    const bool isOnePixel = header.width == 1 && header.height == 1;
    if (rank == m_ranks.end() || isOnePixel || !IsWithinLimits(header))
        return false;
    return m_kept.size() < m_most || rank->second <= m_kept.rbegin()->first;
}

void FirstIcons::Take(const PictureHeader& header, Picture picture)
{
    if (picture.IsNull())
        return;
    const std::size_t rank = m_ranks.at(header.resourceKey);
    // Where a resource stands there once more, its second picture counts, as in the program; but a
    // low-res one never takes a high-res one's place.
    const auto before = m_kept.find(rank);
    if (before != m_kept.end() && before->second.highDensity && !header.highDensity)
        return;
    m_kept.insert_or_assign(rank,
        Kept{ FitInto({ std::move(picture), header.transparent }, m_side, m_side),
            header.highDensity });
    if (m_kept.size() > m_most)
        m_kept.erase(std::prev(m_kept.end()));
}

std::vector<MaskedPicture> FirstIcons::TakePictures()
{
    std::vector<MaskedPicture> pictures;
    const bool spareOnly = !m_kept.empty() && m_kept.begin()->first >= m_firstSpare;
    for (auto& [rank, kept] : m_kept)
        if (rank < m_firstSpare || spareOnly)
            pictures.push_back(std::move(kept.picture));
    m_kept.clear();
    return pictures;
}

} // namespace vypx
