#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The words of labels. They are the only record of an icon's size class and orphan state, so
/// they are made and read here and nowhere else. Case counts; texts are Latin-1.
namespace vypx {

enum class SizeClass { Large, Small };

/// Of a row that a catalog names: "Name (Large Icon)", "Name (Small Icon)".
std::string LabelOf(std::string_view name, SizeClass size);
/// The name in such a label: all but the 13 characters at its end.
std::string_view NameInLabel(std::string_view label);

/// What stands between the brackets of a row that no catalog names.
inline constexpr std::string_view OrphanNote = "Orphan";
std::string OwnerNote(std::string_view creator, SizeClass size); ///< "ABCD - Large"
/// The label of such a row: "tAIB3500 (Orphan) ", with a blank at its end.
std::string UnmatchedLabel(std::string_view resourceKey, std::string_view note);

/// Whether the label is an orphan's: it holds "Orphan".
bool IsOrphanLabel(std::string_view label);
/// Whether the label names the resource instead of an application: it holds "tAIB".
bool NamesItsResource(std::string_view label);

/// The size class by which pictures are measured: the label holds "Large" or "Small". One that
/// holds both is small. Empty: the icon takes no pictures.
std::optional<SizeClass> SizeToImport(std::string_view label);
/// Whether the label holds "Large Icon" or "Small Icon".
bool SaysIconOf(SizeClass size, std::string_view label);
/// The size class that the label says so. One that says both is small. Empty: a label of the
/// launcher or of an unknown icon, which takes pictures of a size that was kept.
std::optional<SizeClass> SizeOfIconInLabel(std::string_view label);
/// Whether the label counts as an icon of that size: it holds "(Large Icon" or "(Small Icon".
bool CountsAs(SizeClass size, std::string_view label);
/// Whether the label holds "(Large Icon)" or "(Small Icon)", as catalogs of the launcher have it.
bool SaysWholeIconOf(SizeClass size, std::string_view label);
/// Whether pictures under the label count: it holds "(Large Icon)" or "(Small Icon)".
bool SaysItsSize(std::string_view label);
/// The size class in the icon index: large by "(Large Icon)" and, where unknown icons are kept,
/// by "Large)"; small otherwise.
SizeClass SizeInIndex(std::string_view label, bool keepUnknown);

} // namespace vypx
