#pragma once

#include "document/Catalogs.h"
#include "settings/IniText.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// Entries of `AppList.dat` and `PalmApp.dat` as their editor and the scanner see and write them.
namespace vypx {

/// What is written of an application or a system item.
struct CatalogEntry {
    std::string name, type, creator;

    friend bool operator==(const CatalogEntry&, const CatalogEntry&) = default;
};

/// Whether a row's name counts where names are compared: one without a Creator may be half a name.
bool HasFullName(const CatalogRow& row);

/// Whether both would be one section of a file: A to Z in any case, blanks around them don't count.
bool AreOneName(std::string_view first, std::string_view second);

/// Whether the row's name stands anywhere in `name`, A to Z in any case.
bool OccursIn(const CatalogRow& row, std::string_view name);

/// The row whose full name is the same as `name`; null: there is none.
const CatalogRow* FindName(const std::vector<CatalogRow>& table, std::string_view name);
/// The first row with that Creator.
const CatalogRow* FindCreator(const std::vector<CatalogRow>& table, std::string_view creator);

/// Whether the file has an entry of that name that no full name of the table, read from it, tells:
/// one that readers do not see, or see without a Creator.
bool IsUntold(const std::string& file, const std::vector<CatalogRow>& table, std::string_view name);

/// The Creator that a stored value stands for. On purpose: only the length is looked at, and one of
/// 5 or beyond 6 silently gives nothing.
std::string CreatorOfValue(std::string_view value);

/// The four characters behind the first one of the entry's stored Creator.
/// On purpose: without its brace one stored as "ABCD" gives "BCD".
std::string StoredCreator(const IniText& file, const std::string& name);

/// Takes entries out of a file and puts `added` in, all in one replacement of the file or nothing:
/// then false. An entry of the name of `added` keeps its place and its other keys, which stand
/// behind Type and Creator then. Before more than one entry goes, the file is copied to one with
/// ".bak" behind its name.
bool ChangeEntries(const std::string& file, std::span<const std::string> removed,
    const std::optional<CatalogEntry>& added);

/// What became of an entry that was to be added.
enum class EntryFate { Added, KnownName, KnownCreator };

/// Adds entries at the file's end, in one replacement, and says of each what became of it: one
/// whose name (up to case) or Creator the file has already is not added, be it from another program
/// just now. Empty: the file can't be written, and is as it was.
std::optional<std::vector<EntryFate>> AddNewEntries(
    const std::string& file, std::span<const CatalogEntry> entries);

} // namespace vypx
