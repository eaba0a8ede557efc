#pragma once

#include "companion/ByteView.h"
#include "companion/DatabaseHeader.h"
#include "companion/IconsetLimits.h"

#include <cstdint>
#include <string>

namespace vypx {

/// Palm resource database (.prc), as far as it is read. Big-endian; offsets from the file's first
/// byte, one less than the index into FileCashe.
///
///   offset width field
///        0    32 database name   ends at the first byte outside of 32 to 126
///       60     4 database type   "ICON"
///       64     4 creator         "VNTR"
///       76     2 resource count  at most 2000 are walked
///       78  10*n resource list
///
/// Entry of the resource list:
///
///   offset width field
///        0     4 type
///        4     2 resource ID     0 to 65535
///        6     4 data offset     see ReadDataOffset
///
/// Attributes, version, dates, application info and sort info are ignored. A resource's size is
/// not stored: it reaches to the next entry's data, the last one's to IconFileSize.
inline constexpr std::size_t DatabaseNameOffset = 0;
inline constexpr std::size_t DatabaseTypeOffset = 60, DatabaseCreatorOffset = 64;
inline constexpr std::size_t ResourceCountOffset = 76;
inline constexpr std::int32_t FirstEntryIndex = 79; ///< into FileCashe
inline constexpr std::int32_t EntrySize = 10;

/// One entry of the list, without its data offset.
struct ResourceEntry {
    std::string type; ///< four characters
    int id = 0;

    /// Type and decimal ID, such as `tAIB1005`.
    std::string Name() const { return type + std::to_string(id); }
    /// One of the three types that hold icons: "Tbmp", "tAIB", "abmp".
    bool IsBitmap() const;
};

/// The open file by index into FileCashe: index 1 is its first byte.
ByteView FileByIndex();

/// All of these read FileCashe and throw BrokenFile where it ends.
std::string ReadDatabaseName();
/// Throws BrokenFile at 32768 and more, which a signed 16-bit count can't hold.
int ReadResourceCount();
ResourceEntry ReadEntry(std::int32_t entryIndex);
/// Data offset of the entry at that index.
std::int32_t ReadDataOffset(std::int32_t entryIndex);

} // namespace vypx
