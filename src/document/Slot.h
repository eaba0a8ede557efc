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
    PixelSize limitOfLarge, limitOfSmall;
    std::span<const Command> ofPicture; ///< commands that a picture in the slot enables
    std::span<const Command> ofImport;  ///< commands that bring one in
    std::span<const Command> ofUndo;
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

} // namespace vypx
