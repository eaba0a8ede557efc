#pragma once

#include "companion/ByteView.h"

#include <QIODevice>
#include <array>
#include <cstdint>

namespace vypx {

/// The bytes of an open file, read as they are asked for, so that a look at the header of a large
/// picture costs no memory. Offsets count from 0. A read outside throws PastTheEnd. The place where
/// the device reads next is not kept.
class FileBytes {
public:
    explicit FileBytes(QIODevice& file)
        : m_file(file)
        , m_size(file.size())
    {
    }

    std::int64_t Size() const { return m_size; }

    std::uint8_t U8(std::int64_t offset)
    {
        if (offset < m_begin || offset >= m_end)
            Fetch(offset);
        return m_part[static_cast<std::size_t>(offset - m_begin)];
    }
    /// A number of 1 to 8 bytes.
    std::uint64_t Big(std::int64_t offset, int width)
    {
        std::uint64_t value = 0;
        for (int i = 0; i < width; ++i)
            value = value << 8 | U8(offset + i);
        return value;
    }
    std::uint64_t Little(std::int64_t offset, int width)
    {
        std::uint64_t value = 0;
        for (int i = width; i-- > 0;)
            value = value << 8 | U8(offset + i);
        return value;
    }
    /// A little-endian number of 4 bytes with a sign.
    std::int64_t LittleSigned(std::int64_t offset)
    {
        return static_cast<std::int32_t>(Little(offset, 4));
    }

private:
    void Fetch(std::int64_t offset)
    {
        m_begin = m_end = 0;
        if (offset < 0 || offset >= m_size || !m_file.seek(offset))
            throw PastTheEnd();
        const std::int64_t got =
            m_file.read(reinterpret_cast<char*>(m_part.data()), static_cast<qint64>(m_part.size()));
        if (got < 1)
            throw PastTheEnd();
        m_begin = offset;
        m_end = offset + got;
    }

    QIODevice& m_file;
    const std::int64_t m_size; // kept: to ask the system for each byte would take ten times as long
    std::int64_t m_begin = 0, m_end = 0; // of the part that is here
    std::array<std::uint8_t, 16384> m_part{};
};

} // namespace vypx
