#pragma once

#include "companion/ByteView.h"
#include "companion/IconsetLimits.h"
#include "reader/LoadFile.h"
#include "reader/PictureSink.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// What the commands share that only look at an iconset: no folder of the program's is needed, no
/// working file is made, and nothing is written but what the command is there for. Any bytes will
/// do as a file; what is looked at and kept of them is bounded by the limits below.
namespace vypx {

/// What the command line says about the file to look at. UTF-8.
struct ReadOptions {
    std::string file;      ///< iconset or template
    std::string appFolder; ///< folder with the catalogs; empty: the shipped ones
};

/// The longest file that is looked at, in bytes: a resource of the greatest size at the last place
/// where one can begin. Pipes and devices are no files.
inline constexpr std::uintmax_t LargestIconset = DataOffsetEnd + MaxResourceSize;

/// The largest picture that is decoded: 2048 x 2048 pixels, or one as large in another shape.
inline constexpr std::int64_t MostPixels = 2048 * 2048;
/// Whether a picture claims no more than MostPixels, its rows' padding counted.
bool IsWithinLimits(std::int64_t width, std::int64_t height, std::int64_t rowBytes);
inline bool IsWithinLimits(const PictureHeader& header)
{
    return IsWithinLimits(header.width, header.height, header.rowBytes);
}

/// How a look at an iconset ended. The document is open if `report` says so.
struct ReadEnd {
    LoadReport report;
    std::vector<std::string> messages; ///< texts that the windows would show in boxes (Latin-1)
    /// Resources whose icon would have had a label that was taken; of each such message one.
    std::vector<std::string> duplicates;
    Bytes file; ///< that was read; empty where that was none of the right type, or not wanted

    bool IsOpened() const { return report.result == LoadResult::Opened; }
};

/// Whether the file is read as a template: its name ends in ".vpt", in any letter case.
bool IsTemplate(const ReadOptions& options);

/// Opens the file with the settings of a first run, its pictures going to `pictures`. What is to be
/// said of the catalogs goes to standard error. `keepBytes`: the file's own are given back as well.
///
/// A picture whose pixel size no bitmap has breaks the file, whether `pictures` wants it or not.
ReadEnd ReadIconset(const ReadOptions& options, PictureSink& pictures, bool keepBytes = false);

/// Tells on standard error what a look came to, as far as a user has to know: each text once, with
/// how often it came.
void TellEnd(const ReadEnd& end);

/// Latin-1 bytes as UTF-8, control characters as `\x1B`, so that no file speaks to a terminal.
std::string Printable(std::string_view latin1);

} // namespace vypx
