#pragma once

#include "catalogs/CatalogBox.h"

#include <optional>
#include <string>

/// The page of `frmEditAppList` that edits `PalmApp.dat`. All checks go by the whole of PalmTable,
/// however much of it the list shows; the caller reads it anew where the result says so.
namespace vypx {

/// What stands in the page's boxes (Latin-1). The name is without its "Palm ".
struct PalmSysBoxes {
    std::string name, type, creator;

    friend bool operator==(const PalmSysBoxes&, const PalmSysBoxes&) = default;
};

/// What the boxes show of the list's entry `name`, in edit mode: by the file, not by the table.
PalmSysBoxes PalmSysBoxesOf(const std::string& name);

struct PalmSysChange {
    PalmSysBoxes boxes;
    bool edits = false;  ///< `optEditSys`; else a new entry
    std::string current; ///< name of the list's current entry; empty: none is
};

struct PalmSysResult {
    bool wasApplied = false;              ///< all checks were passed: the list is to be read anew
    std::string name;                     ///< of the entry, when it was written
    std::optional<CatalogBox> afterwards; ///< to be shown once the list is filled
};

/// `cmdPalmSysApply`.
PalmSysResult ApplyPalmSys(const PalmSysChange& change, const ShowBox& show);

} // namespace vypx
