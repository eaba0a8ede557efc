#include "catalogs/AvailableIcons.h"

#include "catalogs/RowParts.h"

#include <string_view>
#include <unordered_set>

namespace vypx {

namespace {

/// Labels by hash: a catalog's thousand entries are looked up among thousands of rows whenever a
/// list is filled.
class TakenLabels {
public:
    TakenLabels(AddedLabels added)
        : m_labels(added.begin(), added.end())
    {
        for (const IconRow& row : IconTable)
            m_labels.insert(row.IconLabel);
    }
    bool Has(const std::string& label) const { return m_labels.contains(label); }

private:
    std::unordered_set<std::string_view> m_labels;
};

std::vector<AvailableIcon> Whole(const std::vector<CatalogRow>& catalog)
{
    std::vector<AvailableIcon> icons;
    for (const CatalogRow& row : catalog)
        if (!row.name.empty())
            icons.push_back({ .name = row.name, .type = row.type, .creator = row.creator });
    return icons;
}

std::vector<AvailableIcon> Untaken(
    std::vector<AvailableIcon> icons, Catalog catalog, SizeClass size, AddedLabels added)
{
    const TakenLabels taken(added);
    std::erase_if(icons, [&](const AvailableIcon& icon) {
        return taken.Has(LabelOfEntry(catalog, size, icon.name));
    });
    return icons;
}

SizeClass OtherSize(SizeClass size)
{
    return size == SizeClass::Large ? SizeClass::Small : SizeClass::Large;
}

bool IsLarger(const PixelSize& size, const PixelSize& bound)
{
    return size.width > bound.width || size.height > bound.height;
}

} // namespace

std::vector<AvailableIcon> FillAppCombo() { return Whole(AppTable); }

std::vector<AvailableIcon> FillPalmCombo() { return Whole(PalmTable); }

std::vector<AvailableIcon> FillVYCombo()
{
    std::vector<AvailableIcon> icons;
    for (const LauncherRow& row : VYTable)
        if (!row.name.empty())
            icons.push_back({ .name = row.name, .id = row.id });
    return icons;
}

std::vector<AvailableIcon> FilterAppCombo(SizeClass size, AddedLabels added)
{
    return FileLoaded ? Untaken(FillAppCombo(), Catalog::Apps, size, added) : FillAppCombo();
}

std::vector<AvailableIcon> FilterPalmCombo(SizeClass size, AddedLabels added)
{
    return FileLoaded ? Untaken(FillPalmCombo(), Catalog::Palm, size, added) : FillPalmCombo();
}

std::vector<AvailableIcon> FilterVYCombo(
    SizeClass size, AddedLabels added, const PictureInHand& inHand)
{
    if (!FileLoaded)
        return FillVYCombo();
    std::vector<AvailableIcon> icons = Untaken(FillVYCombo(), Catalog::Launcher, size, added);
    constexpr PixelSize Bound{ 44, 22 };
    const bool isTooLarge = inHand.assigns && IsLarger(inHand.highRes, Bound);
    std::erase_if(icons, [&](const AvailableIcon& icon) {
        return SaysWholeIconOf(OtherSize(size), icon.name)
            || (isTooLarge && SaysWholeIconOf(SizeClass::Small, icon.name));
    });
    return icons;
}

std::vector<AvailableIcon> FilterCombo(
    Catalog catalog, SizeClass size, AddedLabels added, const PictureInHand& inHand)
{
    if (catalog == Catalog::Apps)
        return FilterAppCombo(size, added);
    if (catalog == Catalog::Palm)
        return FilterPalmCombo(size, added);
    return FilterVYCombo(size, added, inHand);
}

bool CanBeSmall(const PixelSize& highRes)
{
    // On purpose: not the 44 x 22 of the launcher's icons.
    constexpr PixelSize Bound{ 32, 22 };
    return !IsLarger(highRes, Bound);
}

std::string LabelOfEntry(Catalog catalog, SizeClass size, const std::string& name)
{
    return catalog == Catalog::Launcher ? name : LabelOf(name, size);
}

std::vector<std::string> LabelsInBothSizes(
    Catalog catalog, const std::string& name, AddedLabels added)
{
    const bool isLauncher = catalog == Catalog::Launcher;
    const std::string_view base = isLauncher ? NameInLabel(name) : std::string_view(name);
    std::vector<std::string> labels{ LabelOf(base, SizeClass::Large),
        LabelOf(base, SizeClass::Small) };
    if (isLauncher && name != labels[0] && name != labels[1])
        labels = { name }; // it has no other size
    const TakenLabels taken(added);
    std::erase_if(labels, [&](const std::string& label) {
        return taken.Has(label) || (isLauncher && !FindLauncherRow(label));
    });
    return labels;
}

} // namespace vypx
