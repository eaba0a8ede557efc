#pragma once

#include "document/Document.h"
#include "reader/FamilyWalk.h"
#include "reader/LoadListener.h"
#include "reader/WalkState.h"

#include <string>
#include <system_error>
#include <unordered_map>
#include <vector>

namespace vypx {

/// Decodes the bitmap family of one resource after the other. Of each family the last low-density
/// record and one high-density record become working files at the working depth; the rows of
/// IconTable that carry the resource get the files' names, and BitmapTable a row for each. A load
/// into memory hands the pictures to its sink instead, and no working file is made.
///
/// Made once for a load, when IconTable has its rows.
class BitmapDecoder {
public:
    BitmapDecoder(WalkState& load, LoadListener& listener);

    /// Decodes what stands in ResourceBytes (from index 1) under ResourceName. Throws BrokenFile
    /// for a record that runs past its bounds, a pixel size that no bitmap has and a transparent
    /// index beyond the palette; what was decoded before stays. A working file that can't be
    /// written is counted in picturesNotStored.
    void DecodeBitmapFamily();

private:
    void Pick(ByteView resource, const ShownRecord& shown);
    const BitmapEntry& NoteTransparency(const BitmapRecord& record, const std::string& file);
    void HandOver(const BitmapRecord& record, const BitmapEntry& entry);
    std::error_code WriteWorkingBmp(const BitmapRecord& record, const std::string& file);

    WalkState& m_load;
    LoadListener& m_listener;
    std::unordered_map<std::string, std::vector<std::size_t>> m_rowsByKey; // of IconTable
};

} // namespace vypx
