#pragma once

#include "companion/ByteView.h"

#include <initializer_list>
#include <string>
#include <vector>

/// Iconset files made byte by byte, for tests and benchmarks.
namespace vypx::test {

struct Resource {
    std::string type; ///< four characters
    int id = 0;
    Bytes data;
};

struct Iconset {
    std::string name = "Icons";
    std::string type = "ICON", creator = "VNTR";
    std::vector<Resource> resources;

    /// The database: header, resource list, two bytes of filler, data in the list's order.
    Bytes File() const;
};

/// One record of the icon index; reserved bytes 0.
Bytes IndexRecord(const std::string& type, const std::string& creator, int largeId, int smallId);

/// Bitmap records of one white pixel, padded to 4 bytes. Unless it is the last, a record leads to
/// the one behind it.
Bytes LowRecord(int depth, bool last = true);
Bytes HighRecord(int depth, bool last = true);
/// The 16-byte mark before high-density records.
Bytes Separator();

Bytes Join(std::initializer_list<Bytes> parts);

void PutU16(Bytes& bytes, std::size_t offset, unsigned value);
void PutU32(Bytes& bytes, std::size_t offset, unsigned value);

} // namespace vypx::test
