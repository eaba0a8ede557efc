#pragma once

#include "document/IconKinds.h"
#include "document/Labels.h"

#include <span>
#include <string>
#include <string_view>

/// How icons enter the open document and change hands. What is done is done to IconTable,
/// BitmapTable, Tree and the working folder; IconsetChanged is set where anything changed, and at
/// the good end of ApplyAddIcons in any case. The caller shows message, note and node, and counts
/// the icons anew.
namespace vypx {

/// How one of the routines ended.
struct RowsOutcome {
    std::string message; ///< a box is to show it; the routine stopped there. Empty: none
    std::string note;    ///< what else the user should know, in plain words (UTF-8); may be empty
    std::string node;    ///< label of the node to be selected; empty: none is
    bool isDone = false; ///< the dialog is to be closed
};

/// What Assign, Change and Share work on.
struct AssignRequest {
    std::string selected; ///< label of the selected icon; empty: none is, or the root
    Catalog catalog = Catalog::Apps;
    SizeClass size = SizeClass::Large;
    std::string entry; ///< name of the catalog's entry that is current; empty: none is
};

/// Whether a catalog names the icon of that label, so that it can be added.
bool IsListed(std::string_view label);

/// Adds an icon without pictures for each label, in order. A label that the tree has already is
/// passed over. What was added before a stop stays.
RowsOutcome ApplyAddIcons(std::span<const std::string> labels);

/// Makes a row with the resource and the pictures of the selected one. The launcher can't be its
/// owner.
RowsOutcome ApplyShareIcon(const AssignRequest& request);

/// Gives the selected icon another label, kind and owner. As an icon of the launcher it gets the
/// resource ID of the entry, by `VY_Icons.dat`, and its pictures are moved; one that was the
/// launcher's goes by ReassignVYIcon. A picture that other rows show too is copied.
RowsOutcome ApplyAssignIcon(const AssignRequest& request);

/// Makes an icon of the launcher that of an application or a system item, with a resource ID of its
/// own and its pictures moved along.
RowsOutcome ReassignVYIcon(const AssignRequest& request);

} // namespace vypx
