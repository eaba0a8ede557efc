#pragma once

#include "companion/PalmDatabase.h"
#include "writer/SaveReport.h"

#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace vypx {

/// A save did not complete; the old file stands as it was.
class SaveFailure : public std::runtime_error {
public:
    /// `file` (UTF-8) can't be read or written, and why.
    SaveFailure(const std::string& file, const std::string& reason);
    /// The same for a failed ReplaceFile; names the folder where it is the folder that refuses.
    SaveFailure(const std::string& file, std::error_code error);
    explicit SaveFailure(const CompileFailure& failure);
};

/// A compile writes to a newly chosen name: no backup is made of what stands there.
inline bool SavingAs = false;

/// Where a compile writes. The command that begins it fills this in; nothing below reads FileName
/// and SavingAs.
struct CompileTarget {
    std::string path;    ///< of the database (UTF-8)
    bool backUp = false; ///< the file that stands there is kept under ".bak"
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
