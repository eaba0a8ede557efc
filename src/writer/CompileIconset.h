#pragma once

#include "companion/PalmDatabase.h"
#include "settings/ColorDepth.h"
#include "writer/SaveFailure.h"
#include "writer/SaveReport.h"

#include <string>
#include <string_view>
#include <vector>

namespace vypx {

/// The two resources of an iconset that are no pictures.
inline constexpr std::string_view VersionKey = "tver1000", IndexKey = "iTbl1000";

/// A compile writes to a newly chosen name: no backup is made of what stands there.
inline bool SavingAs = false;
/// A compile makes a template, at TemplatePath.
inline bool ExportingTemplate = false;
inline std::string TemplatePath; ///< of the template that was exported last (UTF-8)

/// Where a compile writes. The command that begins it fills this in; nothing below reads FileName
/// and the flags.
struct CompileTarget {
    std::string path;                     ///< of the database (UTF-8)
    bool backUp = false;                  ///< the file that stands there is kept under ".bak"
    ColorDepth depth = DefaultColorDepth; ///< of the pictures
    bool asTemplate = false; ///< every icon that is kept, with pictures or without, and no picture
};

/// The target that the flags ask for: TemplatePath where ExportingTemplate is set, else FileName,
/// with a backup where CreateBackup is on and SavingAs is not.
CompileTarget TargetFromFlags();

/// Turns the open document and its working files into the database. Trusts that the caller has made
/// every check. Throws SaveFailure.
SaveReport CompileIconset(const CompileTarget& target);

/// First step of it: `tver1000.bin`, the version text without blanks at its end and a zero.
void WriteVersionResource();

/// The resources that the open document gives, pictures in the order of IconTable. For a template
/// also those without pictures; "NEW" stands in their columns.
std::vector<ResourceRow> PictureRows(bool forTemplate = false);
/// The transparent colours of BitmapTable, at the same row numbers.
std::vector<TransparencyRow> TransparencyRows();

} // namespace vypx
