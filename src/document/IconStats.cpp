#include "document/IconStats.h"

#include "document/Document.h"
#include "document/Labels.h"

namespace vypx {

namespace {

void CountRow(const IconRow& row)
{
    StatLarge += CountsAs(SizeClass::Large, row.IconLabel);
    StatSmall += CountsAs(SizeClass::Small, row.IconLabel);
    StatLowRes += ImageFileValid(row.LowResFile) && SaysItsSize(row.IconLabel);
    StatHighRes += ImageFileValid(row.HighResFile) && SaysItsSize(row.IconLabel);
    StatTotal += !row.ResourceKey.empty();
    // On purpose: "NEW" is not empty here, so every such row counts once a load is done. Only
    // rows that no catalog knows have their resource's type in their label.
    StatUnknown +=
        NamesItsResource(row.IconLabel) && (!row.HighResFile.empty() || !row.LowResFile.empty());
}

void ColourNode(const IconRow& row)
{
    if (row.IconLabel.empty())
        return;
    const bool empty = !ImageFileValid(row.LowResFile) && !ImageFileValid(row.HighResFile);
    if (IconNode* node = Tree.Find(row.IconLabel))
        node->colour = empty ? Blue : Black;
}

void ClearCounters()
{
    for (int* counter :
        { &StatTotal, &StatLarge, &StatSmall, &StatHighRes, &StatLowRes, &StatUnknown })
        *counter = 0;
}

} // namespace

void CountIcons()
{
    ClearCounters();
    StatDeletable = false;
    for (const IconRow& row : IconTable) {
        if (!row.IconState)
            continue;
        if (*row.IconState == 0) {
            StatDeletable = true;
            continue;
        }
        CountRow(row);
        ColourNode(row);
    }
    if (!FileLoaded)
        ClearCounters();
}

} // namespace vypx
