#include "catalogs/PalmHeader.h"

#include "companion/DatabaseHeader.h"
#include "platform/Folders.h"
#include "settings/Blanks.h"

#include <algorithm>

namespace vypx {

namespace {

constexpr std::size_t TypeOffset = 60, CreatorOffset = 64, IdLength = 4;

/// Brackets would end the name of a section.
char WithoutBracket(char letter) { return letter == '[' ? '{' : letter == ']' ? '}' : letter; }

std::string NameOf(ByteView field)
{
    std::string name = NameInField(field);
    std::transform(name.begin(), name.end(), name.begin(), WithoutBracket);
    // An ini file keeps no blanks at a name's beginning either.
    return std::string(WithoutBlanks(name));
}

} // namespace

bool PalmHeader::IsOfPalmOS() const
{
    return std::all_of(
        creator.begin(), creator.end(), [](char letter) { return letter >= 'a' && letter <= 'z'; });
}

bool PalmHeader::HasUnwritableCreator() const
{
    return std::any_of(creator.begin(), creator.end(),
        [](char letter) { return static_cast<unsigned char>(letter) < 32; });
}

PalmHeader ReadPalmHeader(ByteView file)
{
    return {
        .name = NameOf(file.Part(0, DatabaseNameSize)),
        .type = file.Text(TypeOffset, IdLength),
        .creator = file.Text(CreatorOffset, IdLength),
    };
}

std::optional<PalmHeader> ReadPalmHeader(const std::string& path, bool* isShort)
{
    const auto bytes = platform::ReadFileHead(path, PalmHeader::Length);
    if (isShort)
        *isShort = bytes && bytes->size() < PalmHeader::Length;
    if (!bytes || bytes->size() < PalmHeader::Length)
        return std::nullopt;
    return ReadPalmHeader(ByteView(*bytes));
}

std::string CutAtStar(std::string_view name)
{
    return std::string(WithoutBlanks(name.substr(0, name.find('*'))));
}

std::string EntryName(std::string name, bool isPanel)
{
    if (isPanel)
        name += " Panel";
    return name;
}

} // namespace vypx
