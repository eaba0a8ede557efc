#include "cli/FileChecks.h"
#include "companion/PalmDatabase.h"
#include "reader/ResourceList.h"
#include "writer/CompileIconset.h"

#include <algorithm>
#include <set>

namespace vypx {

namespace {

/// Fields of the header that only `validate` looks at, big-endian.
///
///   offset width field
///       32     2 attributes         0x0001: a resource database
///       34     2 version            as its maker counts
///       52     4 application info   offset of a block of its own; 0: none
///       56     4 sort info          the same
///       72     4 next list          offset of a further resource list; 0: none
constexpr std::size_t AttributesOffset = 32, DatabaseVersionOffset = 34, AppInfoOffset = 52,
                      SortInfoOffset = 56, NextListOffset = 72;
constexpr unsigned ResourceDatabase = 0x0001;

/// A resource is one chunk of a handheld's memory, which is smaller than 64 KB.
constexpr std::uint32_t LargestChunk = 65505;

void CheckName(ByteView file, Findings& findings)
{
    const std::string field = file.Text(DatabaseNameOffset, DatabaseNameSize);
    const std::string name = field.substr(0, field.find('\0'));
    const std::string read = NameInField(file.Part(DatabaseNameOffset, DatabaseNameSize));
    if (name.size() > LongestName)
        findings.Add("header", "the name has no zero at its end: it is one character too long");
    if (read != name)
        findings.Add("header",
            "the name is read as \"" + read
                + "\": it ends before a character outside of 32 to 126");
}

/// What stands at that place of the list.
void CheckPlace(
    ByteView file, const ListedResource& resource, std::size_t listEnd, Findings& findings)
{
    const std::string name = resource.Name();
    if (resource.offset > file.Size())
        findings.Add(name,
            "its data begin at " + std::to_string(resource.offset) + ", behind the file's end at "
                + std::to_string(file.Size()));
    else if (resource.offset >= DataOffsetEnd)
        findings.Add(name, "its data begin behind 16 MiB, where other bytes are read for them");
    else if (resource.offset < listEnd)
        findings.Add(name, "its data begin within the header and the resource list");
    if (resource.end < resource.offset)
        findings.Add(
            name, "its data begin behind those of the next resource, so their size can't be told");
    const std::uint32_t size = resource.end - resource.offset;
    if (resource.end >= resource.offset && size == 0)
        findings.Add(name, "it is empty");
    if (resource.end >= resource.offset && size > LargestChunk)
        findings.Add(name,
            "it has " + std::to_string(size) + " bytes: a handheld takes no resource above "
                + std::to_string(LargestChunk));
}

/// Whether anything stands behind the zero that ends the text.
bool HasMoreThanText(ByteView data)
{
    const std::string text = data.Text(0, data.Size());
    const std::size_t end = text.find('\0');
    return end != std::string::npos && text.find_first_not_of('\0', end) != std::string::npos;
}

/// What a save does with a resource that is no icon's.
void CheckKept(ByteView file, const ListedResource& resource, Findings& findings)
{
    const std::string name = resource.Name();
    if (resource.type == "abmp")
        findings.Add(name, "its pictures are of a kind that is not read: a save leaves it out");
    else if (name == VersionKey) {
        if (HasMoreThanText(resource.Data(file)))
            findings.Add(name, "a save leaves out what stands behind the zero of its text");
    } else if (resource.type == "iTbl" && name != IndexKey)
        findings.Add(name, "a save gives it the ID 1000");
    else if (!resource.HasPictures() && resource.type != "iTbl")
        findings.Add(name, "a save leaves out what is no icon");
}

} // namespace

void CheckHeader(ByteView file, Findings& findings)
{
    CheckName(file, findings);
    const unsigned attributes = file.U16(AttributesOffset);
    if ((attributes & ResourceDatabase) == 0)
        findings.Add("header",
            "the attributes don't say that it is a resource database: a handheld takes the list "
            "for another one");
    if ((attributes & ~ResourceDatabase) != 0)
        findings.Add("header", "a save keeps no attribute but that of a resource database");
    if (file.U16(DatabaseVersionOffset) != 1)
        findings.Add("header", "a save makes its version 1");
    if (file.U32(AppInfoOffset) != 0)
        findings.Add("header", "a save leaves the application info out");
    if (file.U32(SortInfoOffset) != 0)
        findings.Add("header", "a save leaves the sort info out");
    if (file.U32(NextListOffset) != 0)
        findings.Add("header", "a further resource list is not read");
    const std::size_t count = file.U16(ResourceCountOffset);
    if (count == 0)
        findings.Add("list", "there are no resources");
    if (count > std::size_t{ MaxResources })
        findings.Add("list",
            "there are " + std::to_string(count) + " resources, of which none is opened above "
                + std::to_string(MaxResources));
    if (DatabaseHeaderSize + count * EntrySize > file.Size())
        findings.Add(
            "list", "the file ends within the list of " + std::to_string(count) + " resources");
}

void CheckList(ByteView file, std::span<const ListedResource> resources, Findings& findings)
{
    const std::size_t listEnd = DatabaseHeaderSize + resources.size() * EntrySize;
    std::set<std::string> names;
    int indexes = 0;
    for (const ListedResource& resource : resources) {
        CheckPlace(file, resource, listEnd, findings);
        CheckKept(file, resource, findings);
        if (!names.insert(resource.Name()).second)
            findings.Add(resource.Name(), "it stands in the list more than once: a save keeps one");
        if (resource.type == "iTbl" && ++indexes == 2)
            findings.Add(resource.Name(), "only the first index of the list is read");
    }
    if (indexes == 0 && !resources.empty())
        findings.Add("list", "there is no iTbl resource: no icon belongs to an application");
}

} // namespace vypx
