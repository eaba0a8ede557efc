#pragma once

#include "document/AppFolders.h"
#include "document/Product.h"

#include <cstdint>
#include <functional>
#include <set>
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

/// What is known of catalogs by those who can read them.
struct CatalogRules {
    /// The facts of all that is shipped in a catalog.
    std::function<std::set<std::string>(const ShippedFile&)> facts;
    /// Brings the user's catalog, which is there, up to what is shipped, and learns the facts that
    /// a later time needs. False: nothing was changed, as that could not be done now.
    std::function<bool(const ShippedFile&, std::set<std::string>& facts)> merge;
};

/// At a start: gives the user's folder what is shipped with the program and was never there, file
/// by file, each whole or not at all. What it was given before is brought up to date: catalogs by
/// `rules`; any other file is replaced if it is what was shipped once, and stays if the user
/// changed it. What the user deleted does not come back, and what is shipped no more stays.
///
/// What is about to be done is written down before the first change; where that fails nothing is
/// done. Where only the last step fails, that writes down what was done, or the start is killed,
/// the next start does it once more: it finds its own entries and files there, and what the user
/// deleted in between comes back that once. What was begun twice counts as done.
///
/// Copies that start at once take turns. One that waits in vain for another does nothing. An older
/// version than was there before does nothing either. Where nothing shipped has changed since the
/// last time this costs a few questions to the file system.
void TakeShippedFiles(const AppFolders& folders, const CatalogRules& rules,
    std::string_view version = ProductVersion);

} // namespace vypx
