#pragma once

#include "companion/IconRow.h"
#include "companion/Rgb.h"
#include "document/Command.h"
#include "document/Labels.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vypx {

/// Pixels.
struct PixelSize {
    int width = 0, height = 0;

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// The largest picture that is stored, by a test of its own behind that of the limits, and the
/// words that tell of a larger one.
struct SizeGuard {
    int width = 0, height = 0; ///< pixels
    std::string_view phrase;   ///< what it exceeds
};

/// By the icon's size.
struct SizeGuards {
    SizeGuard large, small;

    const SizeGuard& Of(SizeClass size) const { return size == SizeClass::Large ? large : small; }
};

/// One of the two pictures of an icon: high-res (`LG` in names) or low-res (`SM`), whatever the
/// icon's size. The list of its fields is the list of differences between the two.
struct Slot {
    std::string IconRow::*fileCell; ///< where a row names its picture
    std::string& path;              ///< HighResPath, LowResPath
    bool& loaded;                   ///< LGloaded, SMloaded
    bool& hasTransparent;           ///< LGhasTransparent, SMhasTransparent
    int& maskR;                     ///< transparent colour of the picture on show
    int& maskG;
    int& maskB;
    std::string_view letters;    ///< "LG" or "SM", as names of controls end
    std::string_view resolution; ///< "High Res" or "Low Res", as the user reads it
    std::string_view fileSuffix; ///< of the working file's name, behind the resource's key
    PixelSize limitOfLarge, limitOfSmall;
    SizeGuards importGuards, pasteGuards;
    std::span<const Command> ofPicture; ///< commands that a selected icon's picture enables
    std::span<const Command> ofStored;  ///< those of them that need the picture itself
    std::span<const Command> ofImport;  ///< commands that bring one in
    std::span<const Command> ofUndo;
    bool& wasEmpty;        ///< LGWasEmpty, SMWasEmpty: the last change filled an empty slot
    std::string& undoName; ///< CurrentImageName, CurrentImageNameSM: the file that undo restores
    /// What an import takes undoName from. On purpose: the high-res cell for both, so undo after an
    /// import into a filled low-res slot looks for the backup of the high-res picture.
    std::string IconRow::*importUndoCell;
    bool& cropFor;    ///< CropForLG, CropForSM: the crop window was opened for this slot
    bool makesLowRes; ///< an import makes the low-res picture as well, where that slot is empty
    std::string_view removalText, removalTitle; ///< question before all its pictures are removed
    /// On purpose: only the low-res part decides whether an orphan can be restored by the button,
    /// so an orphan with nothing but a high-res picture can.
    bool decidesRemoval;

    Rgb Mask() const { return { maskR, maskG, maskB }; }
    void SetMask(Rgb colour) const;
    PixelSize LimitOf(SizeClass size) const
    {
        return size == SizeClass::Large ? limitOfLarge : limitOfSmall;
    }
};

extern const Slot SlotLG;
extern const Slot SlotSM;

struct BitmapEntry;

/// The transparent colour of a bitmap that declares one. A picture of 1 or 2 bits has empty colour
/// cells; its index then names the colour in the palette of its depth. Empty: no colour is known.
std::optional<Rgb> TransparentColour(const BitmapEntry& bitmap);

/// The row of BitmapTable that says whether the working file with that path has a transparent
/// colour: of several the last. Null: none does.
const BitmapEntry* BitmapAt(const std::string& path);

} // namespace vypx
