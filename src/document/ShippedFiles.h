#pragma once

#include "document/AppFolders.h"
#include "document/Product.h"
#include "document/ShippedState.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vypx {

/// A file of the shipped data, for a user's folder that has or had one of its name.
struct ShippedFile {
    std::string name; ///< path from the folder
    std::vector<std::uint8_t> bytes;
    std::string folder; ///< the user's

    std::string Target() const;
};

/// The fact that something of that name was shipped before this time, so that others tell what.
std::string KnownFact(std::string_view name);

/// Brings a catalog of the user's that is there up to what is shipped, and learns the facts that a
/// later time needs. Without its KnownFact nothing was told of it, and it only learns. False: that
/// could not be done now.
using UpdateCatalog = std::function<bool(const ShippedFile&, std::set<std::string>& facts)>;

/// At a start: gives the user's folder what is shipped with the program and was never there, file
/// by file, each whole or not at all. What it was given before is brought up to date: catalogs by
/// `updateCatalog`; any other file is replaced if it is what was shipped once, and stays if the
/// user changed it. What the user deleted does not come back, and what is shipped no more stays.
///
/// Copies that start at once take turns. After a failure or a kill at any point the next start goes
/// on. A program of an older version than one that was here before does nothing. Where nothing
/// shipped has changed since the last time this costs a few questions to the file system.
void TakeShippedFiles(const AppFolders& folders, const UpdateCatalog& updateCatalog,
    std::string_view version = ProductVersion);

} // namespace vypx
