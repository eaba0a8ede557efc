#pragma once

#include "document/ShippedFiles.h"
#include "settings/IniText.h"

#include <set>
#include <span>
#include <string>

/// What becomes of the user's catalogs when a new version ships other ones.
namespace vypx {

/// How two entries are known for one, besides by their names.
enum class CatalogForm {
    Owners,   ///< by Type and Creator: AppList.dat, PalmApp.dat
    Launcher, ///< by their resource ID, a number: VY_Icons.dat
};

/// Adds to the user's catalog, at its end, the entries of `shipped` that are new, and leaves all
/// else there as it is. New is what has neither the name (A to Z in any case) nor the Type with
/// Creator, or the ID, of an entry that `facts` tell of; and it is only added where neither stands
/// in the catalog, nor in one of `others`, that must not tell of one application twice. An entry
/// without them is none. One whose name would not be seen any more, behind too many others, is left
/// for a time with room.
///
/// Gives back what is to be known from now on. `file` is the catalog's bare name.
std::set<std::string> AddShippedEntries(CatalogForm form, const std::string& file,
    const IniText& shipped, std::span<const IniText* const> others,
    const std::set<std::string>& facts, IniText& user);

/// The UpdateCatalog for all three catalogs. The file is replaced once, in turn with other writers,
/// and only if something is added. On a failure it is as it was, and no fact is learnt.
bool UpdateShippedCatalog(const ShippedFile& file, std::set<std::string>& facts);

} // namespace vypx
