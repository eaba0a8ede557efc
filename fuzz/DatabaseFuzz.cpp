// A database of any bytes through walk and decoder. The working folder is nowhere, so pictures are
// made in memory and never reach a file. The first byte picks the working depth.

#include "Database.h"
#include "document/WorkingFolder.h"
#include "settings/Settings.h"

using namespace vypx;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 70 || size > 1u << 16)
        return 0;
    constexpr ColorDepth Depths[] = { ColorDepth::Bits16, ColorDepth::Bits8, ColorDepth::Bits4 };
    DefaultColorDepth = Depths[data[0] % 3];
    AppFolder = "/nowhere";
    SetTempSuffix(0);
    WalkState walk;
    if (!fuzz::WalkDatabase(data + 1, size - 1, walk))
        return 0;
    fuzz::DecodePictures(walk);
    for (int row = 0; row < BitmapRow; ++row)
        fuzz::Require(BitmapTable.at(static_cast<std::size_t>(row)).hasTransparent.has_value());
    return 0;
}
