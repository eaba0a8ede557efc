#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The catalog files in AppFolder, in ini form, one section for each entry.
///
///   AppList.dat    [application]          Type=appl or panl   Creator={four characters}
///   PalmApp.dat    [system item]          the same
///   VY_Icons.dat   [item (Large Icon)]    ID=resource ID; one section more with (Small Icon)
///
/// The section's name is the entry's name. The braces keep blanks at either end of a Creator from
/// being trimmed. Names of all sections of a file together, with one character more for each, must
/// fit 8192 characters; what is beyond is not seen.
namespace vypx {

/// Their paths in AppFolder. The third is never written.
std::string AppListFile();
std::string PalmAppFile();
std::string VYIconsFile();

/// Shows a text (Latin-1) in a box.
using ShowMessage = std::function<void(std::string_view)>;

/// A catalog file with more names than its readers see.
struct CutCatalog {
    std::string file; ///< bare name
    int known = 0;    ///< names that are seen whole
    int total = 0;    ///< names in the file

    friend bool operator==(const CutCatalog&, const CutCatalog&) = default;
};

/// A sentence that tells it, in plain words (ASCII).
std::string NoteOf(const CutCatalog& catalog);

/// Replace AppTable, PalmTable, VYTable by what stands in the file. A value goes to the column of
/// its key's position in the section, so the order of keys counts. A Creator that is empty, short
/// or without braces is repaired in the file as well. No file: a message and an empty table; a
/// value beyond the last column: a message, and the rows read so far stay. Give back what can't be
/// seen of a file, if anything.
std::optional<CutCatalog> ReadAppIni(const ShowMessage& show);
std::optional<CutCatalog> ReadPalmAppIni(const ShowMessage& show);
std::optional<CutCatalog> ReadVYIconsIni(const ShowMessage& show);

/// What a read came to.
struct CatalogRead {
    std::optional<CutCatalog> cut;
    bool couldRepair = true; ///< false: a Creator's repair could not be written
};
/// ReadAppIni and ReadPalmAppIni, and whether they could write their repairs.
CatalogRead ReadAndRepairApps(const ShowMessage& show);
CatalogRead ReadAndRepairPalm(const ShowMessage& show);

/// Tells entries that have one Creator, within AppTable, within PalmTable and across the two.
void ChkDupCreators(const ShowMessage& show);

/// All of the above, in the order of a start. Gives back every file with names that can't be seen.
std::vector<CutCatalog> ReadCatalogs(const ShowMessage& show);

} // namespace vypx
