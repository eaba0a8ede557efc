#pragma once

#include <span>
#include <string>
#include <string_view>

/// Catalogs for commands that have no program folder and change nothing there.
namespace vypx {

/// A catalog file as it is shipped, part of the program.
struct BuiltInCatalog {
    std::string_view name; ///< bare name of its file
    std::string_view text;
};

/// Those of data/, as they stood when the program was built.
std::span<const BuiltInCatalog> ShippedCatalogs();

/// Makes AppFolder a folder whose catalogs are in memory: those of `folder` (UTF-8) as they stand
/// now or, where it is empty, the shipped ones. What is repaired or changed there from now on
/// reaches no file.
void HoldCatalogs(const std::string& folder);

} // namespace vypx
