#pragma once

#include "catalogs/CatalogBox.h"

#include <string>

/// Adding one application to `AppList.dat`, from a file or by hand. Both compare with AppTable and
/// PalmTable as they are; the caller reads AppTable anew where the result says so.
namespace vypx {

/// `cmdAddSingle` with the file that was chosen (UTF-8). A file that can't be read, has no name or
/// a Creator that can't be written ends it silently. An application that changed its name loses
/// its old entry, once the user has agreed and no iconset is open. True: all checks were passed;
/// the file was written, or a box has told that it could not be.
bool AddSingle(const std::string& path, const ShowBox& show);

/// What is typed in `frmAddAppManual` (Latin-1).
struct ManualEntry {
    std::string name, creator, type;
};

/// `cmdAppApply`. True as above: the window closes.
bool AddManual(const ManualEntry& typed, const ShowBox& show);

} // namespace vypx
