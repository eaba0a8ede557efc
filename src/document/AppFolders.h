#pragma once

#include "platform/Platform.h"

#include <string>

namespace vypx {

/// Where a copy of the program works, and what it has to be given for that. Paths without a
/// separator at their end.
struct AppFolders {
    std::string work;    ///< settings, catalogs, working folders
    std::string shipped; ///< what stands there comes from here; empty: from the folder itself

    friend bool operator==(const AppFolders&, const AppFolders&) = default;
};

/// The folders of the copy whose program stands in `programFolder`; `userFolder` is the user's own
/// one for its data, which is made where it is needed.
///
/// An installed copy, for which there is a folder DataFromPrograms that is not the program's own,
/// works in the user's folder, whoever the user is, whatever can be written and whatever stands
/// beside the program. Root whose `userFolder` is another user's, as some ways to become root leave
/// it, works in the folder of its name below ".local/share" in `ownHome`, root's home. Where there
/// is no such folder, where it can't be made or is another user's too, the copy does not work at
/// all: throws std::filesystem::filesystem_error.
///
/// Any other copy works where the program stands if files can be written there, else in the user's
/// folder. Where neither can be written, it is the program's: the program starts, and each write
/// tells its own failure.
AppFolders ResolveAppFolders(const std::string& programFolder, const std::string& userFolder,
    const std::string& ownHome = platform::HomeOfThisUser());

} // namespace vypx
