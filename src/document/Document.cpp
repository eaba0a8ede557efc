#include "document/Document.h"

namespace vypx {

void ResetDocument()
{
    IconTable.assign(1, {});
    BitmapTable.assign(1, {});
    BitmapRow = 0;
    Itbl.clear();
    BitmapFamily = {};
    BitmapFamilyCount = 0;
    FileCashe.clear();
    IconFileSize = 0;
    Tree.Clear();
    for (std::string* text : { &Parent, &DatabaseName, &FileName, &DroppedFileName, &ResourceName,
             &SelectedNode, &LastClickedText, &HighResPath, &LowResPath })
        text->clear();
    FileLoaded = IconsetChanged = TemplateMode = SkipOpenDialog = DroppedFile = false;
    BmpTotalNum = TotalBmpResources = Rcntr = 0;
    FCin = ResourceOffset = NextOffset = ResourceSize = PFcnt = TLstCnt = 0;
    Abmp = DuplicateResource = false;
    ResourceBytes.clear();
    LGloaded = SMloaded = LGhasTransparent = SMhasTransparent = false;
    MaskR_LG = MaskG_LG = MaskB_LG = MaskR_SM = MaskG_SM = MaskB_SM = 0;
    TransparentUse = true;
    R = G = 0;
    B = 255;
    ShareNames.clear();
}

void ClearSlots()
{
    HighResPath.clear();
    LowResPath.clear();
    LGloaded = SMloaded = false;
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

void CompactIconTable(bool keepOne)
{
    std::erase_if(IconTable, [](const IconRow& row) { return row.IconLabel.empty(); });
    if (keepOne && IconTable.empty())
        IconTable.emplace_back();
}

} // namespace vypx
