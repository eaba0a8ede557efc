#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vypx {

/// What stands in a file cell of a slot without an image. An empty cell means the same while a
/// file is being read.
inline constexpr std::string_view NoImage = "NEW";

/// Whose icon it is: Palm database type and creator ID of the application, four characters each,
/// any byte values. Empty texts: nobody's that is known.
struct Owner {
    std::string type, creator;

    bool IsKnown() const { return !type.empty() && !creator.empty(); }

    friend bool operator==(const Owner&, const Owner&) = default;
};

/// What stands behind a resource's key in the name of the working file of its high-res image; of
/// its low-res one nothing does. ".bmp" follows.
inline constexpr std::string_view HighResSuffix = "-d144";

/// One row of `IconTable`: one icon of one application, or of the launcher, in one size class.
/// Texts are single bytes (Latin-1).
struct IconRow {
    /// The row's unique text, also its tree node's key and text. Empty: a free row.
    /// "(Large Icon", "(Small Icon", "Large", "Small" and "Orphan" in it are the only record of
    /// size class and orphan state; other code finds them by search, so they stay letter for
    /// letter.
    std::string IconLabel;
    /// The Palm resource with the images, type and decimal ID, such as `tAIB1005`.
    /// Rows with the same key share their images.
    std::string ResourceKey;
    /// Bare name of the low-res image in the working folder, or NoImage.
    std::string LowResFile;
    /// The same for the high-res image.
    std::string HighResFile;
    /// 1: kept, 0: marked for deletion; empty in a table that nothing was read into yet.
    std::optional<int> IconState;
    /// One of the Kind... words, or empty.
    std::string IconKind;
    /// Whose icon it was when the row got its label; unknown for orphans and icons of the launcher.
    /// A save takes it where the catalog file no longer names the row.
    Owner owner{};

    friend bool operator==(const IconRow&, const IconRow&) = default;
};

inline constexpr std::string_view KindVY = "VY";           ///< icon of the launcher itself
inline constexpr std::string_view KindApp = "APP";         ///< of an application in `AppTable`
inline constexpr std::string_view KindPalm = "PALM";       ///< of a system item in `PalmTable`
inline constexpr std::string_view KindUnknown = "UNKNOWN"; ///< of something no catalog lists
inline constexpr std::string_view KindDelete = "DELETE";   ///< orphan: no index entry names it

/// Whether a LowResFile or HighResFile cell holds an image: it is neither empty nor NoImage.
inline bool ImageFileValid(std::string_view cell) { return !cell.empty() && cell != NoImage; }

/// Whether a label holds `words`. Case counts.
inline bool LabelHolds(std::string_view label, std::string_view words)
{
    return label.find(words) != std::string_view::npos;
}

} // namespace vypx
