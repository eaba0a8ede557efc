#pragma once

#include "companion/Rgb.h"
#include "document/Command.h"
#include "document/Slot.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace vypx {

/// What `cmdRemoveIcon` offers: its caption and its picture.
enum class Removal {
    Remove,  ///< "&Remove Selected", imgRemove
    Restore, ///< "&Restore Selected", imgRestore
};

/// What `cmdAssignApp` offers.
enum class Assignment {
    ChangeOrShare, ///< "Change / Share"
    AssignOrphan,  ///< "Assign Orphan"
};

/// What a selection shows in one panel. Empty: it stays as it is.
struct SlotEffects {
    bool draw = false;                     ///< the slot has a picture, which is to be drawn
    std::optional<std::string> colourText; ///< of lblC_RGB: "255, 0, 255"
    std::optional<Rgb> swatch;
    /// Swatch and colour text shown and "No Transparent Color" hidden, or the reverse.
    std::optional<bool> showsColour;
    bool hidesColour = false; ///< none of the three is shown: there is no picture
    std::string sizeLimit;    ///< of lblLG_Size, lblSM_Size
};

/// What a click on a node of the tree does to the main form, decided here and applied by the
/// window: commands, then the rest.
struct SelectionEffects {
    bool endsUndo = false;           ///< another icon than the last one was clicked
    bool listsShares = false;        ///< ShareNames is new
    std::map<Command, bool> enabled; ///< others stay as they are
    std::optional<Removal> removal;
    std::optional<Assignment> assignment;
    SlotEffects lg, sm;
};

/// The node with this text was clicked; `rootText` is the text of the tree's first node. Sets the
/// document's fields of the selection (SelectedNode, LastClickedText, ShareNames, the paths, masks
/// and flags of both slots) and tells what the form has to show.
SelectionEffects SelectNode(const std::string& text, const std::string& rootText);

/// Whether text and colour say that the root is selected. On purpose: the database name is what is
/// compared, so a name that was changed but refused by the tree makes the root look like an icon.
bool IsRootSelected(std::string_view text);

/// Fills ShareNames for a node with this text: from entry 1 the labels of the other icons that
/// share its images, up to the first empty entry.
void ListShareNames(std::string_view text);

/// Marks the rows with the label SelectedNode for removal, or keeps them again, sets
/// IconsetChanged and the nodes' images, and tells what the button offers next. Empty: no such row.
std::optional<Removal> ToggleRemoval();

/// Whether a row with a label is marked for removal.
bool HasMarkedRows();

/// Drops the rows that are marked for removal and sets IconsetChanged. A table without any row
/// left keeps one empty row.
void DropMarkedRows();

/// Makes Tree anew from IconTable: the root, and a node for every kept row.
void RebuildIconTree();

} // namespace vypx
