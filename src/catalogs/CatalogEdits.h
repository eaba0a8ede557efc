#pragma once

#include "catalogs/CatalogBox.h"

#include <span>
#include <string>

/// What `frmEditAppList` does to entries of either catalog. Names are Latin-1.
namespace vypx {

/// `cmdDeleteApp`: takes the entries of these names out of a catalog, all in one step. A box for
/// each tells when that fails; then all stay. Of more than one a ".bak" of the catalog is left.
/// The caller reads the catalog anew.
void DeleteApplications(std::span<const std::string> names, const ShowBox& show);
void DeletePalmItems(std::span<const std::string> names, const ShowBox& show);

/// `cmdSearchIcon`: tells in a box which entry has that Creator, by the files.
void SearchIcon(const std::string& creator, const ShowBox& show);

} // namespace vypx
