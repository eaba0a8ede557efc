#include "companion/DatabaseLayout.h"

#include "companion/DatabaseHeader.h"
#include "companion/IconsetLimits.h"
#include "companion/PalmDatabase.h"

#include <utility>

namespace vypx {

namespace {

constexpr std::size_t ListEntrySize = 10;
// A reader that asks where the data behind the last resource begin finds a whole entry of zeros.
constexpr std::size_t Gap = ListEntrySize;

} // namespace

DatabaseLayout::DatabaseLayout(std::size_t resources, std::string path)
    : m_path(std::move(path))
    , m_offset(DatabaseHeaderSize + ListEntrySize * resources + Gap)
{
    if (resources > MaxResources)
        throw CompileFailure{ m_path, "an iconset holds 2000 resources at most" };
}

std::size_t DatabaseLayout::Begin()
{
    m_offset = (m_offset + 1) / 2 * 2;
    if (m_offset >= DataOffsetEnd)
        throw CompileFailure{ m_path, "no resource can begin behind the first 16 MiB" };
    return m_offset;
}

void DatabaseLayout::End(const std::string& key, std::size_t bytes)
{
    if (bytes + 1 > std::size_t{ MaxResourceSize }) // the last one is read 1 longer
        throw CompileFailure{ m_path, key + " would be 10000000 bytes or more" };
    m_offset += bytes;
}

} // namespace vypx
