#pragma once

#include "companion/PalmDatabase.h"
#include "settings/ColorDepth.h"
#include "writer/SaveFailure.h"
#include "writer/SaveReport.h"

#include <string>
#include <vector>

namespace vypx {

/// A compile writes to a newly chosen name: no backup is made of what stands there.
inline bool SavingAs = false;

/// Where a compile writes. The command that begins it fills this in; nothing below reads FileName
/// and SavingAs.
struct CompileTarget {
    std::string path;                     ///< of the database (UTF-8)
    bool backUp = false;                  ///< the file that stands there is kept under ".bak"
    ColorDepth depth = DefaultColorDepth; ///< of the pictures
};

/// The target that the flags ask for: FileName, with a backup where CreateBackup is on and SavingAs
/// is not.
CompileTarget TargetFromFlags();

/// Turns the open document and its working files into the database. Trusts that the caller has made
/// every check. Throws SaveFailure.
SaveReport CompileIconset(const CompileTarget& target);

/// First step of it: `tver1000.bin`, the version text without blanks at its end and a zero.
void WriteVersionResource();

/// The resources that the open document gives, pictures in the order of IconTable.
std::vector<ResourceRow> PictureRows();
/// The transparent colours of BitmapTable, at the same row numbers.
std::vector<TransparencyRow> TransparencyRows();

} // namespace vypx
