#include "document/Slot.h"

#include "companion/Palettes.h"
#include "document/Document.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"

namespace vypx {

namespace {

constexpr Command OfPictureLG[] = { Command::ExportLG, Command::CopyLG, Command::ImportLG,
    Command::PasteLG, Command::ChangeColourLG, Command::DeleteLG, Command::MenuPasteLG,
    Command::CreateLowRes };
constexpr Command OfStoredLG[] = { Command::ChangeColourLG, Command::ExportLG, Command::CopyLG,
    Command::CreateLowRes, Command::DeleteLG };
constexpr Command OfImportLG[] = { Command::PasteLG, Command::ImportLG, Command::MenuPasteLG };
constexpr Command OfUndoLG[] = { Command::UndoLG, Command::MenuUndoLG };

constexpr Command OfPictureSM[] = { Command::ExportSM, Command::CopySM, Command::ImportSM,
    Command::PasteSM, Command::ChangeColourSM, Command::DeleteSM, Command::MenuPasteSM };
constexpr Command OfStoredSM[] = { Command::ChangeColourSM, Command::ExportSM, Command::CopySM,
    Command::DeleteSM };
constexpr Command OfImportSM[] = { Command::PasteSM, Command::ImportSM, Command::MenuPasteSM };
constexpr Command OfUndoSM[] = { Command::UndoSM, Command::MenuUndoSM };

// On purpose: "High" and "Low" follow the icon's size and not the panel.
constexpr SizeGuards GuardsOfImportLG{
    .large = { 64, 44, " the the maximum size of a large High Res Icon." },
    // On purpose: 32 and "Low", though nothing wider than 30 comes so far.
    .small = { 32, 22, " the the maximum size of a large Low Res Icon." },
};
constexpr SizeGuards GuardsOfSM{
    .large = { 32, 22, " the the maximum size of a small High Res Icon." },
    .small = { 15, 11, " the the maximum size of a small Low Res Icon." },
};

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
    .fileSuffix = "-d144.bmp",
    .limitOfLarge = { 64, 44 },
    .limitOfSmall = { 30, 22 },
    .importGuards = GuardsOfImportLG,
    // On purpose: an import lets a small icon be 2 pixels wider than a paste does.
    .pasteGuards = { GuardsOfImportLG.large, { 30, 22, GuardsOfImportLG.small.phrase } },
    .ofPicture = OfPictureLG,
    .ofStored = OfStoredLG,
    .ofImport = OfImportLG,
    .ofUndo = OfUndoLG,
    .wasEmpty = LGWasEmpty,
    .undoName = CurrentImageName,
    .importUndoCell = &IconRow::HighResFile,
    .cropFor = CropForLG,
    .makesLowRes = true,
    .removalText = "Please check the VYPX help to make sure you don't need any high-res icons.\n\n"
                   "Are you sure you would you like to erase all of the high-res images now?",
    .removalTitle = "Erase all the high res images?",
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
    .fileSuffix = ".bmp",
    .limitOfLarge = { 32, 22 },
    .limitOfSmall = { 15, 11 },
    .importGuards = GuardsOfSM,
    .pasteGuards = GuardsOfSM,
    .ofPicture = OfPictureSM,
    .ofStored = OfStoredSM,
    .ofImport = OfImportSM,
    .ofUndo = OfUndoSM,
    .wasEmpty = SMWasEmpty,
    .undoName = CurrentImageNameSM,
    .importUndoCell = &IconRow::HighResFile,
    .cropFor = CropForSM,
    .makesLowRes = false,
    .removalText =
        "Please check the VYPX help to make sure you don't need to include any low-res icons.\n\n"
        "Are you sure you would you like to erase all of the low res images now?",
    .removalTitle = "Erase all the low res images?",
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

const BitmapEntry* BitmapAt(const std::string& path)
{
    const BitmapEntry* last = nullptr;
    for (const BitmapEntry& bitmap : BitmapTable)
        if (!bitmap.file.empty() && bitmap.hasTransparent && WorkPath(bitmap.file) == path)
            last = &bitmap;
    return last;
}

} // namespace vypx
