#pragma once

#include "document/Slot.h"

#include <QString>
#include <span>
#include <string_view>

namespace vypx {

/// The question before a changed document is left for a dropped one.
struct DropQuestion {
    std::string_view text, title;
};

/// Where a picture goes, by the command that would bring one there.
struct DropDestination {
    const Slot& slot;
    Command import;
};

/// A control on which files can be dropped. The list of its fields is the list of differences
/// between the targets; texts are empty where nothing is tested or told.
struct DropTargetRow {
    std::string_view control;
    const DropDestination* destination; ///< of a picture; null: the user is asked
    bool takesPicture;                  ///< also one without a file: pastes
    std::string_view noIcons;           ///< tested first: told where the document has no icon
    std::string_view noneSelected;      ///< told where the import can't be used
    std::span<const std::string_view> databases; ///< endings of those that are opened
    const DropQuestion& question;
};

/// All targets: eight of one behaviour, and the panels' pictures.
std::span<const DropTargetRow> DropTargets();

/// What ChkDragFile does: the behaviour of the eight.
const DropTargetRow& WindowTarget();

/// Told where a picture is dropped and its slot can't take one.
inline constexpr std::string_view AddIconFirst =
    "You must add a large icon before an image can be loaded.";
inline constexpr std::string_view SelectValidIconFirst =
    "You must first select a valid icon in the tree.";

/// Whether the last three characters of the name are one of `endings`, in any case of letters.
/// On purpose: no point is looked for, as a load looks for none.
bool HasDatabaseEnding(const QString& path, std::span<const std::string_view> endings);

} // namespace vypx
