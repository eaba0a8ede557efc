#include "support/Iconsets.h"

#include <algorithm>

namespace vypx::test {

namespace {

void PutText(Bytes& bytes, std::size_t offset, const std::string& text, std::size_t width)
{
    for (std::size_t i = 0; i < std::min(text.size(), width); ++i)
        bytes[offset + i] = static_cast<std::uint8_t>(text[i]);
}

Bytes OnePixel(std::size_t headerSize, int depth)
{
    Bytes record(headerSize + 4, 0);
    PutU16(record, 0, 1); // width
    PutU16(record, 2, 1); // height
    PutU16(record, 4, 2); // rowBytes
    record[8] = static_cast<std::uint8_t>(depth);
    return record;
}

} // namespace

void PutU16(Bytes& bytes, std::size_t offset, unsigned value)
{
    bytes[offset] = static_cast<std::uint8_t>(value >> 8);
    bytes[offset + 1] = static_cast<std::uint8_t>(value);
}

void PutU32(Bytes& bytes, std::size_t offset, unsigned value)
{
    PutU16(bytes, offset, value >> 16);
    PutU16(bytes, offset + 2, value & 0xFFFF);
}

Bytes Iconset::File() const
{
    constexpr std::size_t HeaderSize = 78, EntrySize = 10, Filler = 2;
    Bytes file(HeaderSize + EntrySize * resources.size() + Filler, 0);
    PutText(file, 0, name, 32);
    PutText(file, 60, type, 4);
    PutText(file, 64, creator, 4);
    PutU16(file, 76, static_cast<unsigned>(resources.size()));
    std::size_t entry = HeaderSize;
    for (const Resource& resource : resources) {
        PutText(file, entry, resource.type, 4);
        PutU16(file, entry + 4, static_cast<unsigned>(resource.id));
        PutU32(file, entry + 6, static_cast<unsigned>(file.size()));
        file.insert(file.end(), resource.data.begin(), resource.data.end());
        entry += EntrySize;
    }
    return file;
}

Bytes IndexRecord(const std::string& type, const std::string& creator, int largeId, int smallId)
{
    Bytes record(16, 0);
    PutText(record, 0, type, 4);
    PutText(record, 4, creator, 4);
    PutU16(record, 8, static_cast<unsigned>(largeId));
    PutU16(record, 10, static_cast<unsigned>(smallId));
    return record;
}

Bytes LowRecord(int depth, bool last)
{
    Bytes record = OnePixel(depth == 16 ? 24 : 16, depth);
    if (!last)
        PutU16(record, 10, static_cast<unsigned>(record.size() / 4));
    return record;
}

Bytes HighRecord(int depth, bool last)
{
    Bytes record = OnePixel(24, depth);
    if (!last)
        PutU32(record, 20, static_cast<unsigned>(record.size()));
    return record;
}

Bytes Separator()
{
    Bytes mark(16, 0);
    mark[8] = 0xFF;
    return mark;
}

Bytes Join(std::initializer_list<Bytes> parts)
{
    Bytes all;
    for (const Bytes& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

} // namespace vypx::test
