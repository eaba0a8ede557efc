#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

/// The catalogs in memory: what Creator IDs and resource IDs mean. Each is replaced as a whole by
/// each read of its file. Row 0 is never filled; rows 1 to n hold the file's entries in order.
namespace vypx {

/// Names of their files: of AppTable, PalmTable and VYTable.
inline constexpr std::string_view AppListName = "AppList.dat", PalmAppName = "PalmApp.dat",
                                  VYIconsName = "VY_Icons.dat";
inline constexpr std::array CatalogNames = { AppListName, PalmAppName, VYIconsName };

/// An application or a system item. A row without a name never matches anything.
struct CatalogRow {
    std::string name;    ///< as the user sees it (Latin-1)
    std::string type;    ///< Palm database type, four characters as a rule
    std::string creator; ///< Creator ID, four characters as a rule; case counts
    std::string extra;   ///< a third cell, kept and used by nothing

    friend bool operator==(const CatalogRow&, const CatalogRow&) = default;
};

/// An icon of the launcher itself, one row for each size.
struct LauncherRow {
    std::string name;  ///< with " (Large Icon)" or " (Small Icon)" at its end
    std::string id;    ///< decimal resource ID, compared as a number
    std::string extra; ///< second key of the entry, if any; used by nothing

    friend bool operator==(const LauncherRow&, const LauncherRow&) = default;
};

inline std::vector<CatalogRow> AppTable(1);  ///< the user's applications
inline std::vector<CatalogRow> PalmTable(1); ///< the system's own items
inline std::vector<LauncherRow> VYTable(1);  ///< the launcher's icons

void ResetCatalogs();

} // namespace vypx
