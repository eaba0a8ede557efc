#pragma once

#include "companion/Palettes.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <system_error>

/// The database half of the module: plain operations without state. Paths are UTF-8.
namespace vypx {

/// Whether a database name can hold the character: a reader ends the name at any other.
constexpr bool CanStandInName(char32_t character) { return character >= 32 && character <= 126; }
inline constexpr std::size_t LongestName = 31; ///< characters

/// One application's record of the icon index, as the compile collects it. IDs are 0 to 65535; 0:
/// there is no such icon.
struct ItblValue {
    std::uint32_t type = 0, creator = 0; ///< four characters, the first in the highest byte
    std::uint16_t smallId = 0, largeId = 0;
};

/// What the records are sorted by: ascending by the sum.
struct ItblKey {
    double entryClass = 0;
    double creator = 0;
};

/// Writes the body of the icon index: 16 bytes for each record (type, creator, large ID, small ID,
/// four bytes of 0). Both tables have as many rows.
std::error_code WriteItbl(
    std::span<const ItblValue> values, std::span<const ItblKey> keys, const std::string& path);

/// One resource of the output.
struct ResourceRow {
    std::string lowFile,
        highFile;    ///< bare names in the working folder, or empty; NoImage in a template
    std::string key; ///< four-letter type and decimal ID
    /// In all three columns a name without ".bin": the resource is that file of the working folder.
    bool IsPlainFile() const { return lowFile == key && highFile == key; }
};

/// The transparent colour of one working file, as texts. A row without a file name has no meaning.
struct TransparencyRow {
    std::string file, flag; ///< flag "1": there is a transparent colour
    std::string red, green, blue;
};

/// Why a database could not be written.
struct CompileFailure {
    std::string file; ///< what can't be read, written or stored: a file, or a folder that refuses
    std::string reason;
};

/// Makes the database in memory and replaces the file at `outputPath` by it in one step; on any
/// failure the old file stands. `depth` is 16, 8 or 4.
///
///   offset width field
///        0    32 name, 31 characters and a zero at most
///       32     2 attributes: 0x0001, a resource database
///       34     2 version: 1
///       36     8 creation and modification date, seconds since 1904
///       44     4 backup date: 0
///       48     4 modification number: 1
///       52     8 0
///       60     8 "ICON", "VNTR"
///       68     8 0
///       76     2 resource count
///       78  10*n type, ID, data offset of each
///             10 0, then the data, each resource at an even offset
///
/// What is beyond the limits of companion/IconsetLimits.h is a failure.
///
/// Source: Palm OS Programmer's Companion, resource databases.
std::optional<CompileFailure> CompilePRC(std::span<const ResourceRow> resources,
    std::span<const TransparencyRow> transparency, Palette palette8, Palette palette4, int depth,
    bool pack, const std::string& outputPath, const std::string& databaseName,
    const std::string& workFolder);

/// Makes a template: the same, but no picture is read. Each slot that a row names, be it by a file
/// or by NoImage, holds one white pixel of 4 bits, not packed, whatever the depth and the pack
/// flag.
std::optional<CompileFailure> ExpTemplate(std::span<const ResourceRow> resources,
    std::span<const TransparencyRow> transparency, Palette palette8, Palette palette4, int depth,
    bool pack, const std::string& templatePath, const std::string& databaseName,
    const std::string& workFolder);

} // namespace vypx
