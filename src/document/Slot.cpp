#include "document/Slot.h"

#include "companion/Palettes.h"
#include "document/Document.h"

namespace vypx {

namespace {

constexpr Command OfPictureLG[] = { Command::ExportLG, Command::CopyLG, Command::ImportLG,
    Command::PasteLG, Command::ChangeColourLG, Command::DeleteLG, Command::MenuPasteLG,
    Command::CreateLowRes };
constexpr Command OfImportLG[] = { Command::PasteLG, Command::ImportLG, Command::MenuPasteLG };
constexpr Command OfUndoLG[] = { Command::UndoLG, Command::MenuUndoLG };

constexpr Command OfPictureSM[] = { Command::ExportSM, Command::CopySM, Command::ImportSM,
    Command::PasteSM, Command::ChangeColourSM, Command::DeleteSM, Command::MenuPasteSM };
constexpr Command OfImportSM[] = { Command::PasteSM, Command::ImportSM, Command::MenuPasteSM };
constexpr Command OfUndoSM[] = { Command::UndoSM, Command::MenuUndoSM };

} // namespace

const Slot SlotLG{
    .fileCell = &IconRow::HighResFile,
    .path = HighResPath,
    .loaded = LGloaded,
    .hasTransparent = LGhasTransparent,
    .maskR = MaskR_LG,
    .maskG = MaskG_LG,
    .maskB = MaskB_LG,
    .letters = "LG",
    .resolution = "High Res",
    .limitOfLarge = { 64, 44 },
    .limitOfSmall = { 30, 22 },
    .ofPicture = OfPictureLG,
    .ofImport = OfImportLG,
    .ofUndo = OfUndoLG,
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
    .resolution = "Low Res",
    .limitOfLarge = { 32, 22 },
    .limitOfSmall = { 15, 11 },
    .ofPicture = OfPictureSM,
    .ofImport = OfImportSM,
    .ofUndo = OfUndoSM,
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
