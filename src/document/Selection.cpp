#include "document/Selection.h"

#include "companion/Lookups.h"
#include "document/Document.h"
#include "document/IconKinds.h"
#include "document/IconTree.h"
#include "document/WorkingFolder.h"

namespace vypx {

namespace {

std::string ColourText(const BitmapEntry& bitmap)
{
    std::string text;
    if (const std::optional<Rgb> colour = TransparentColour(bitmap))
        text = std::to_string(colour->red) + ", " + std::to_string(colour->green) + ", "
            + std::to_string(colour->blue);
    else
        text = ", , "; // On purpose: three empty cells with their separators.
    return text;
}

/// Two commands that a row offers as a whole.
void EnableRowCommands(SelectionEffects& effects, bool on)
{
    effects.enabled[Command::RemoveIcon] = on;
    effects.enabled[Command::AssignApp] = on;
}

void Enable(SelectionEffects& effects, std::span<const Command> commands, bool on)
{
    for (const Command command : commands)
        effects.enabled[command] = on;
}

void ListShares(const std::string& text, SelectionEffects& effects)
{
    ListShareNames(text);
    effects.listsShares = true;
    SelectedNode = text;
}

/// The row's picture in the slot, and what BitmapTable says of its transparent colour.
void ShowPictureOf(
    const IconRow& row, const Slot& slot, SlotEffects& shown, SelectionEffects& effects)
{
    slot.path = WorkPath(row.*slot.fileCell);
    slot.loaded = true;
    for (const BitmapEntry& bitmap : BitmapTable) {
        if (bitmap.file != row.*slot.fileCell)
            continue;
        shown.colourText = ColourText(bitmap);
        if (const std::optional<Rgb> colour = TransparentColour(bitmap)) {
            shown.swatch = *colour;
            slot.SetMask(*colour);
        }
        if (slot.decidesRemoval)
            effects.enabled[Command::RemoveIcon] = !IsOrphanLabel(row.IconLabel);
        slot.hasTransparent = bitmap.hasTransparent != 0;
        shown.showsColour = slot.hasTransparent;
    }
}

void FindPictures(const std::string& text, SelectionEffects& effects)
{
    for (const IconRow& row : IconTable) {
        if (row.IconLabel != text)
            continue;
        if (!SMloaded && ImageFileValid(row.LowResFile))
            ShowPictureOf(row, SlotSM, effects.sm, effects);
        if (ImageFileValid(row.HighResFile))
            ShowPictureOf(row, SlotLG, effects.lg, effects);
        if (LGloaded)
            return;
    }
}

void OfferSlotCommands(const Slot& slot, SlotEffects& shown, SelectionEffects& effects)
{
    Enable(effects, slot.ofPicture, slot.loaded);
    shown.draw = slot.loaded;
    shown.hidesColour = !slot.loaded;
}

void OfferImport(const std::string& text, SelectionEffects& effects)
{
    for (const Slot* slot : { &SlotLG, &SlotSM })
        Enable(effects, slot->ofImport, SizeToImport(text).has_value());
}

std::string SizeLimit(const std::string& text, const Slot& slot)
{
    const std::optional<SizeClass> size = SizeToImport(text);
    if (!size)
        return {};
    const PixelSize limit = slot.LimitOf(*size);
    return "Max " + std::to_string(limit.width) + " x " + std::to_string(limit.height);
}

void OfferAssignment(const std::string& text, SelectionEffects& effects)
{
    const bool orphan = IsOrphanLabel(text);
    if (orphan)
        effects.enabled[Command::AssignApp] = true;
    effects.assignment = orphan ? Assignment::AssignOrphan : Assignment::ChangeOrShare;
}

} // namespace

bool IsRootSelected(std::string_view text) { return text == DatabaseName; }

SelectionEffects SelectNode(const std::string& text, const std::string& rootText)
{
    SelectionEffects effects;
    for (const Slot* slot : { &SlotLG, &SlotSM }) {
        slot->loaded = false;
        slot->path.clear();
    }
    effects.endsUndo = text != LastClickedText;
    LastClickedText = text;
    if (FileLoaded) // after a New that was cancelled nothing else enables it
        effects.enabled[Command::AddIcon] = true;

    if (IsRootSelected(text)) {
        EnableRowCommands(effects, false);
        effects.removal = Removal::Remove;
    } else {
        ListShares(text, effects);
        EnableRowCommands(effects, text != rootText);
    }
    for (const IconRow& row : IconTable)
        if (row.IconLabel == text && !text.empty())
            effects.removal = row.IconState == 0 ? Removal::Restore : Removal::Remove;
    if (!text.empty())
        FindPictures(text, effects);
    OfferSlotCommands(SlotLG, effects.lg, effects);
    OfferSlotCommands(SlotSM, effects.sm, effects);

    const bool isFirstNode = text == rootText;
    effects.enabled[Command::ChangeDatabaseName] = isFirstNode;
    if (isFirstNode)
        return effects;
    OfferImport(text, effects);
    effects.lg.sizeLimit = SizeLimit(text, SlotLG);
    effects.sm.sizeLimit = SizeLimit(text, SlotSM);
    OfferAssignment(text, effects);
    return effects;
}

void ListShareNames(std::string_view text)
{
    ShareNames.assign(IconTable.size(), {});
    ChkShared(IconTable, ShareNames, text);
}

std::optional<Removal> ToggleRemoval()
{
    IconsetChanged = true;
    std::optional<Removal> next;
    for (IconRow& row : IconTable) {
        if (row.IconLabel.empty() || row.IconLabel != SelectedNode)
            continue;
        const bool marks = row.IconState == 1;
        row.IconState = marks ? 0 : 1;
        next = marks ? Removal::Restore : Removal::Remove;
        const int image = marks ? int(ImageDelete) : ImageOfKind(row.IconKind);
        IconNode* node = Tree.Find(row.IconLabel);
        if (node && image != 0)
            node->image = image;
    }
    return next;
}

bool HasMarkedRows()
{
    for (const IconRow& row : IconTable)
        if (!row.IconLabel.empty() && row.IconState == 0)
            return true;
    return false;
}

void DropMarkedRows()
{
    std::erase_if(IconTable, [](const IconRow& row) { return row.IconState == 0; });
    CompactIconTable(true);
    IconsetChanged = true;
}

void RebuildIconTree()
{
    Tree.Clear();
    Tree.SetRoot(Parent);
    for (const IconRow& row : IconTable)
        if (!row.IconLabel.empty() && row.IconState != 0)
            Tree.Add({ .key = row.IconLabel, .image = ImageOfKind(row.IconKind) });
}

} // namespace vypx
