#pragma once

#include "document/Document.h"
#include "reader/BitmapRecord.h"
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
    /// What the walk over a family knows. Positions and sizes in bytes of the resource.
    struct Walk {
        bool lastLowFound = false, lowDone = false, highDone = false;
        int lowDepth = 0, highDepth = 0;
        std::size_t lowPos = 0, lowSize = 0, highSize = 0;

        friend bool operator==(const Walk&, const Walk&) = default;
    };

    void OuterPass();
    void DecodeHighDensity(std::size_t position);
    void Pick(std::size_t position, std::size_t size, bool highDensity);
    const BitmapEntry& NoteTransparency(const BitmapRecord& record, const std::string& file);
    void HandOver(const BitmapRecord& record, const BitmapEntry& entry);
    std::error_code WriteWorkingBmp(const BitmapRecord& record, const std::string& file);
    ByteView Resource() const { return ByteView(m_load.ResourceBytes).Part(1, m_size); }

    WalkState& m_load;
    LoadListener& m_listener;
    std::unordered_map<std::string, std::vector<std::size_t>> m_rowsByKey; // of IconTable
    std::size_t m_size = 0;                                                // of the resource
    Walk m_walk;
};

} // namespace vypx
