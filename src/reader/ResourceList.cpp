#include "reader/ResourceList.h"

#include "document/Document.h"

namespace vypx {

bool ResourceEntry::IsBitmap() const { return type == "Tbmp" || type == "tAIB" || type == "abmp"; }

ByteView FileByIndex() { return FileCashe; }

std::string ReadDatabaseName()
{
    return NameInField(FileByIndex().Part(DatabaseNameOffset + 1, DatabaseNameSize));
}

int ReadResourceCount()
{
    const int count = FileByIndex().U16(ResourceCountOffset + 1);
    if (count > INT16_MAX)
        throw BrokenFile("resource count beyond 16 bits with sign");
    return count;
}

ResourceEntry ReadEntry(std::int32_t entryIndex)
{
    const auto index = static_cast<std::size_t>(entryIndex);
    return {
        .type = FileByIndex().Text(index, 4),
        .id = FileByIndex().U16(index + 4),
    };
}

std::int32_t ReadDataOffset(std::int32_t entryIndex)
{
    const auto index = static_cast<std::size_t>(entryIndex);
    const std::int32_t highest = FileByIndex().U8(index + 6);
    const auto rest = static_cast<std::int32_t>(FileByIndex().U24(index + 7));
    // On purpose: 0x100000 and not 0x1000000. Below 16 MiB the highest byte is 0 and it is the
    // same.
    return highest * 0x100000 + rest;
}

} // namespace vypx
