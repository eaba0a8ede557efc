#pragma once

#include "companion/PalmDatabase.h"

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

/// Turns the open document and its working files into the database FileName. Trusts that the
/// caller has made every check. Throws SaveFailure.
void CompileIconset();

/// First step of it: `tver1000.bin`, the version text without blanks at its end and a zero.
void WriteVersionResource();

/// The resources that the open document gives, pictures in the order of IconTable.
std::vector<ResourceRow> PictureRows();
/// The transparent colours of BitmapTable, at the same row numbers.
std::vector<TransparencyRow> TransparencyRows();

} // namespace vypx
