#include "reader/IconTableResource.h"

#include "document/Document.h"
#include "reader/ResourceList.h"

namespace vypx {

namespace {

/// Size from the own and the next offset; the rest of the file where that gives none.
std::int32_t SizeOfIndex(const WalkState& walk)
{
    const std::int32_t restOfFile = IconFileSize - 1 - walk.ResourceOffset;
    const std::int32_t size =
        walk.NextOffset == 0 ? restOfFile : walk.NextOffset - walk.ResourceOffset;
    return size < 0 ? restOfFile : size;
}

ItblRow ReadRecord(std::size_t index)
{
    const ByteView file = FileByIndex();
    return {
        .type = file.Text(index, 4),
        .creator = file.Text(index + 4, 4),
        .largeId = file.U16(index + 8),
        .smallId = file.U16(index + 10),
    };
}

} // namespace

void ReadIconTableResource(WalkState& walk, LoadListener& listener)
{
    walk.ResourceOffset = ReadDataOffset(walk.FCin);
    walk.NextOffset = ReadDataOffset(walk.FCin + EntrySize);
    if (walk.NextOffset > IconFileSize)
        walk.NextOffset = 0;
    walk.ResourceSize = SizeOfIndex(walk);
    if (walk.ResourceSize % IndexRecordSize != 0) {
        listener.Message("Error reading iTbl");
        return;
    }

    const std::int32_t count = walk.ResourceSize / IndexRecordSize;
    if (count < 0)
        throw PastTheEnd();
    if (count > MaxIndexRecords)
        throw BrokenFile("record count beyond 16 bits with sign");
    Itbl.assign(static_cast<std::size_t>(count) + 1, {});
    std::size_t index = static_cast<std::size_t>(walk.ResourceOffset) + 1;
    for (std::size_t row = 1; row < Itbl.size(); ++row, index += IndexRecordSize)
        Itbl[row] = ReadRecord(index);
}

} // namespace vypx
