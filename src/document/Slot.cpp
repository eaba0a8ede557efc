#include "document/Slot.h"

#include "companion/Palettes.h"
#include "document/Document.h"

namespace vypx {

const Slot SlotLG{
    .fileCell = &IconRow::HighResFile,
    .path = HighResPath,
    .loaded = LGloaded,
    .hasTransparent = LGhasTransparent,
    .maskR = MaskR_LG,
    .maskG = MaskG_LG,
    .maskB = MaskB_LG,
    .letters = "LG",
    .commands = { "cmdSaveLG", "cmdCopyClipLG", "cmdImportLG", "cmdPastePicLG", "cmdChangeTC_LG",
        "cmdDelLG", "mnuPasteLG", "cmdCreateLowRes" },
    .limitOfLarge = "Max 64 x 44",
    .limitOfSmall = "Max 30 x 22",
    .decidesRemoval = false,
};

const Slot SlotSM{
    .fileCell = &IconRow::LowResFile,
    .path = LowResPath,
    .loaded = SMloaded,
    .hasTransparent = SMhasTransparent,
    .maskR = MaskR_SM,
    .maskG = MaskG_SM,
    .maskB = MaskB_SM,
    .letters = "SM",
    .commands = { "cmdSaveSM", "cmdCopyClipSM", "cmdImportSM", "cmdPastePicSM", "cmdChangeTC_SM",
        "cmdDelSM", "mnuPasteSM" },
    .limitOfLarge = "Max 32 x 22",
    .limitOfSmall = "Max 15 x 11",
    .decidesRemoval = true,
};

void Slot::SetMask(Rgb colour) const
{
    maskR = colour.red;
    maskG = colour.green;
    maskB = colour.blue;
}

std::optional<Rgb> TransparentColour(const BitmapEntry& bitmap)
{
    if (bitmap.red && bitmap.green && bitmap.blue)
        return Rgb{ *bitmap.red, *bitmap.green, *bitmap.blue };
    if (bitmap.hasTransparent != 1 || !bitmap.index || *bitmap.index < 0)
        return std::nullopt;
    const auto index = static_cast<std::size_t>(*bitmap.index);
    if (bitmap.depth == 1 && index < Palette1.size())
        return Palette1[index];
    if (bitmap.depth == 2 && index < Palette2.size())
        return Palette2[index];
    return std::nullopt;
}

} // namespace vypx
