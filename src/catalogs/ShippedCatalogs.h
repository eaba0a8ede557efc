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
/// Creator, or the ID, of an entry that `facts` tell of. It is only added where neither stands in
/// the catalog, nor in one of `others`, and where neither of them has its Creator, be it with
/// another Type: each start would tell of a duplicate. An entry without name, Type, Creator or ID,
/// and one that can't be copied whole, is none. One whose name would not be seen any more, behind
/// too many others, is neither added nor known: it is tried again when the shipped catalog changes.
///
/// Gives back what is to be known from now on. `file` is the catalog's bare name.
std::set<std::string> AddShippedEntries(CatalogForm form, const std::string& file,
    const IniText& shipped, std::span<const IniText* const> others,
    const std::set<std::string>& facts, IniText& user);

/// For all three catalogs. The user's file is replaced once, in turn with other writers, and only
/// if something is added. Nothing is done, for a later time to try, where it or the other one of
/// AppList.dat and PalmApp.dat is there and can't be read.
extern const CatalogRules ShippedCatalogRules;

} // namespace vypx
