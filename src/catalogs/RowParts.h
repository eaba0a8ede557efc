#pragma once

#include "catalogs/IconRows.h"
#include "document/Catalogs.h"
#include "document/Document.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What the routines for new rows and new labels share.
namespace vypx {

inline constexpr std::string_view NotAddedText = "Error adding icon.";
inline constexpr std::string_view NotInTreeText = "Error assigning icon to tree!";
inline constexpr std::string_view NotAssignedText = "Error assigning VY icon.";
inline constexpr std::string_view NoIdLeftText =
    "Error, maximum resource ID number exceeded.\nCan't add new icon.";

/// A name and one of the two suffixes: no label is shorter.
inline constexpr std::size_t ShortestLabel = 14;

/// A label in quotes, UTF-8.
std::string Quoted(std::string_view label);

RowsOutcome Stopped(std::string_view message);
/// Nothing is done, as the tree has the label.
RowsOutcome PassedOver(const std::string& label);

/// Whether a row or a node of the tree, the root included, has that label.
bool IsTaken(const std::string& label);

/// The first row with a label, other than `except`, that has that resource; null: none has.
const IconRow* RowWithResource(
    std::string_view resourceKey, std::optional<std::size_t> except = std::nullopt);

/// An icon of the launcher can't have the resource that `holder` has.
RowsOutcome StoppedBy(const IconRow& holder);

/// The first entry of AppTable or PalmTable with that name; null for another catalog.
const CatalogRow* FindEntry(Catalog catalog, std::string_view name);

/// The icon that the launcher lists under exactly that label; null: none.
const LauncherRow* FindLauncherRow(std::string_view label);

/// Owner of the icons of that entry; unknown for the launcher's and where there is no entry.
Owner OwnerOfEntry(Catalog catalog, std::string_view name);

/// The resource ID that the text of a launcher's entry says; empty for one that no resource has.
std::optional<int> LauncherId(std::string_view text);

/// Puts a row at the table's end and its node into the tree; sets IconsetChanged.
void AppendRow(IconRow row);

/// What is to be told of a row with an owner that no save can tie to it; empty: all is well.
std::string NoteOfOwner(const IconRow& row);

} // namespace vypx
