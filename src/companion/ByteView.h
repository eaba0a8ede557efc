#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace vypx {

using Bytes = std::vector<std::uint8_t>;

/// The bytes of a file make no sense to a reader. The only type that readers catch, so that a
/// mistake of the program is never taken for a bad file.
class BrokenFile : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Thrown by every read outside of the bytes that are there.
class PastTheEnd : public BrokenFile {
public:
    PastTheEnd()
        : BrokenFile("read past the end of the bytes")
    {
    }
};

/// A window on bytes that somebody else owns; the only place that indexes raw bytes of a file.
/// Numbers are big-endian, as Palm databases have them. Offsets count from 0.
class ByteView {
public:
    ByteView() = default;
    ByteView(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
    {
    }
    ByteView(const Bytes& bytes)
        : m_bytes(bytes)
    {
    }

    std::size_t Size() const { return m_bytes.size(); }

    std::uint8_t U8(std::size_t offset) const
    {
        if (offset >= m_bytes.size())
            throw PastTheEnd();
        return m_bytes[offset];
    }
    std::uint16_t U16(std::size_t offset) const
    {
        const int high = U8(offset);
        return static_cast<std::uint16_t>(high * 256 + U8(offset + 1));
    }
    std::uint32_t U24(std::size_t offset) const
    {
        const std::uint32_t high = U16(offset);
        return high * 256 + U8(offset + 2);
    }
    std::uint32_t U32(std::size_t offset) const
    {
        const std::uint32_t high = U16(offset);
        return high * 65536 + U16(offset + 2);
    }

    /// `count` bytes as characters, each byte one Latin-1 character.
    std::string Text(std::size_t offset, std::size_t count) const
    {
        const ByteView part = Part(offset, count);
        return { part.m_bytes.begin(), part.m_bytes.end() };
    }

    /// The `count` bytes from `offset`. Throws PastTheEnd unless all of them are there.
    ByteView Part(std::size_t offset, std::size_t count) const
    {
        if (offset > m_bytes.size() || count > m_bytes.size() - offset)
            throw PastTheEnd();
        return ByteView(m_bytes.subspan(offset, count));
    }

    std::span<const std::uint8_t> Span() const { return m_bytes; }

private:
    std::span<const std::uint8_t> m_bytes;
};

} // namespace vypx
