#include "document/Document.h"

#include "document/HelpContext.h"
#include "document/IconStats.h"
#include "document/PictureState.h"
#include "document/SettingsFile.h"

#include <utility>

namespace vypx {

namespace {

void ResetCounters()
{
    for (int* counter :
        { &StatTotal, &StatLarge, &StatSmall, &StatHighRes, &StatLowRes, &StatUnknown })
        *counter = 0;
    StatDeletable = false;
}

} // namespace

void ForgetDocument()
{
    FileLoaded = LoadedAsTemplate = false;
    IconTable.assign(1, {});
    BitmapTable.assign(1, {});
    BitmapRow = 0;
    ShareNames.assign(1, {});
    Itbl.clear();
    FileCashe.clear();
    IconFileSize = 0;
    Tree.Clear();
    for (std::string* text : { &Parent, &DatabaseName, &FileName })
        text->clear();
    ClearSlots();
}

void ResetDocument()
{
    ForgetDocument();
    ShareNames.clear();
    for (std::string* text : { &DroppedFileName, &SelectedNode, &LastClickedText })
        text->clear();
    IconsetChanged = ChangeMark();
    TemplateMode = SkipOpenDialog = DroppedFile = DuplicateResource = false;
    DropLGEnabled = DropSMEnabled = false;
    AddIconAssignMode = AddIconChangeMode = false;
    LGhasTransparent = SMhasTransparent = false;
    MaskR_LG = MaskG_LG = MaskB_LG = MaskR_SM = MaskG_SM = MaskB_SM = 0;
    TransparentUse = true;
    HelpContext = HelpOfIconset;
    R = G = 0;
    B = 255;
    ResetPictureState();
    ResetCounters();
    SettingsSaved = false;
}

void ClearSlots()
{
    HighResPath.clear();
    LowResPath.clear();
    LGloaded = SMloaded = false;
    ForgetUndo();
}

std::optional<std::size_t> FindIconRow(std::string_view label)
{
    if (label.empty())
        return std::nullopt;
    for (std::size_t row = 0; row < IconTable.size(); ++row)
        if (IconTable[row].IconLabel == label)
            return row;
    return std::nullopt;
}

void AddBitmapRow(BitmapEntry bitmap)
{
    std::size_t free = BitmapTable.size();
    while (free > 0 && BitmapTable[free - 1] == BitmapEntry{})
        --free;
    BitmapTable.resize(free + 2);
    BitmapTable[free] = std::move(bitmap);
    BitmapRow = static_cast<int>(free) + 1;
}

void CompactIconTable(bool keepOne)
{
    std::erase_if(IconTable, [](const IconRow& row) { return row.IconLabel.empty(); });
    if (keepOne && IconTable.empty())
        IconTable.emplace_back();
}

} // namespace vypx
