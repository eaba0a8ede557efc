#pragma once

#include "catalogs/PrcSearch.h"

#include <string>
#include <string_view>
#include <vector>

/// The second stage of a search for Palm applications: what was found is added to `AppList.dat` if
/// it is new.
namespace vypx {

/// What became of a file. All but the first: it was passed over.
enum class PrcVerdict {
    Added,
    Unreadable,
    TooShort,
    NoApplication,
    OfPalmOS,
    UnwritableCreator,
    CreatorOfPalmItem, ///< `entry` is the item
    KnownCreator,      ///< `entry` is the application
    PartName,          ///< `entry` is the application
    NoName,
    KnownName, ///< `entry` is the name
    NotSaved,
};

/// Why a file was passed over, in plain words (ASCII), to stand behind its path; empty for one that
/// was added.
std::string_view WhyPassedOver(PrcVerdict verdict);

struct JudgedPrc {
    std::string path; ///< UTF-8
    PrcVerdict verdict = PrcVerdict::Added;
    std::string entry; ///< of the catalogs, Latin-1: the one that was added or that is in the way
};

struct AddEnd {
    std::vector<JudgedPrc> files; ///< of listPRC, in its order, as far as they were gone through
    bool wasStopped = false;
    bool couldWrite = true; ///< false: nothing was added, and a box told it
};

/// Goes through listPRC and adds what AppTable, PalmTable, `AppList.dat` and the files before it
/// don't have, all in one replacement of the file. No entry is ever overwritten. AppTable is not
/// read anew.
AddEnd AddPrcFiles(SearchListener& listener);

/// A whole search: both stages from an empty listPRC on, the second one if ScanHasNew. A stop amid
/// the walk ends the walk alone. Then comes ReadAppIni.
struct SearchEnd {
    WalkEnd walk;
    AddEnd add;
};
SearchEnd SearchAndAdd(SearchListener& listener);

} // namespace vypx
