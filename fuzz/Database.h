#pragma once

#include "document/Catalogs.h"
#include "document/Document.h"
#include "reader/ExtractBitmaps.h"
#include "reader/ResourceList.h"
#include "reader/WalkResources.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

/// What the targets share that are given a whole database.
namespace vypx::fuzz {

class Silent : public LoadListener {
    void Message(std::string_view) override { }
};

inline void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// Catalogs, so that rows of every kind can come up.
inline void UseCatalogs()
{
    AppTable = { {}, { "Alpha", "appl", "ALPH", "" }, { "Beta", "appl", "ALPH", "" } };
    PalmTable = { {}, { "Palm Clock", "appl", "CLCK", "" } };
    VYTable = { {}, { "Launcher", "2000", "" }, { "Launcher", "2001", "" } };
}

/// Makes the bytes the open file and walks them. False when there is no resource count.
inline bool WalkDatabase(const std::uint8_t* data, std::size_t size, WalkState& walk)
{
    ResetDocument();
    UseCatalogs();
    FileCashe.assign(size + 2, 0);
    std::copy(data, data + size, FileCashe.begin() + 1);
    IconFileSize = static_cast<std::int32_t>(size + 1);
    Silent listener;
    try {
        const int count = ReadResourceCount();
        Parent = ReadDatabaseName();
        Tree.SetRoot(Parent);
        IconTable.assign(static_cast<std::size_t>(2 * count + 1), {});
    } catch (const BrokenFile&) {
        return false;
    }
    WalkResources(walk, listener);
    return true;
}

/// Decodes the pictures of what was walked.
inline void DecodePictures(WalkState& walk)
{
    Silent listener;
    try {
        BitmapTable.assign(static_cast<std::size_t>(std::max(walk.BmpTotalNum, 0)) + 1, {});
        ExtractBitmaps(walk, listener);
    } catch (const BrokenFile&) {
    }
}

} // namespace vypx::fuzz
