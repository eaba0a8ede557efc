#include "support/Netpbm.h"

#include "support/Files.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

/// Reads the header's numbers and then bytes.
class PnmReader {
public:
    explicit PnmReader(const Bytes& bytes)
        : m_bytes(bytes)
    {
    }

    int Number()
    {
        while (m_next < m_bytes.size() && (IsBlank() || m_bytes[m_next] == '#')) {
            if (m_bytes[m_next] == '#')
                while (m_next < m_bytes.size() && m_bytes[m_next] != '\n')
                    ++m_next;
            ++m_next;
        }
        int number = 0;
        while (m_next < m_bytes.size() && m_bytes[m_next] >= '0' && m_bytes[m_next] <= '9')
            number = number * 10 + m_bytes[m_next++] - '0';
        return number;
    }
    void Skip(std::size_t count) { m_next += count; }
    int Byte() { return m_next < m_bytes.size() ? m_bytes[m_next++] : 0; }

private:
    bool IsBlank() const
    {
        const std::uint8_t byte = m_bytes[m_next];
        return byte == ' ' || byte == '\n' || byte == '\t' || byte == '\r';
    }

    const Bytes& m_bytes;
    std::size_t m_next = 0;
};

Picture ReadPnm(const Bytes& bytes)
{
    PnmReader reader(bytes);
    reader.Skip(2);
    const int kind = bytes[1] - '0', width = reader.Number(), height = reader.Number();
    const int highest = kind == 4 ? 1 : reader.Number();
    reader.Skip(1);
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        int bits = 0;
        for (int x = 0; x < width; ++x) {
            if (kind == 4) {
                bits = x % 8 == 0 ? reader.Byte() : bits << 1;
                const int grey = bits & 0x80 ? 0 : 255;
                picture.Set(x, y, { grey, grey, grey });
                continue;
            }
            const auto component = [&] { return reader.Byte() * 255 / highest; };
            if (kind == 5) {
                const int grey = component();
                picture.Set(x, y, { grey, grey, grey });
            } else {
                const int red = component(), green = component(), blue = component();
                picture.Set(x, y, { red, green, blue });
            }
        }
    }
    return picture;
}

} // namespace

bool HasNetpbm()
{
    static const bool found =
        std::system("command -v palmtopnm pnmtopalm pngtopnm >/dev/null") == 0;
    return found;
}

Bytes OutputOf(const std::string& command)
{
    FILE* const pipe = popen(command.c_str(), "r");
    EXPECT_NE(pipe, nullptr);
    Bytes output;
    if (!pipe)
        return output;
    std::array<std::uint8_t, 4096> part{};
    for (std::size_t got = 0; (got = fread(part.data(), 1, part.size(), pipe)) > 0;)
        output.insert(output.end(), part.begin(), part.begin() + static_cast<std::ptrdiff_t>(got));
    EXPECT_EQ(pclose(pipe), 0) << command;
    return output;
}

Picture PictureFrom(const std::string& command)
{
    const Bytes output = OutputOf(command);
    const bool isPnm =
        output.size() > 8 && output[0] == 'P' && output[1] >= '4' && output[1] <= '6';
    EXPECT_TRUE(isPnm) << "no picture from " << command;
    return isPnm ? ReadPnm(output) : Picture();
}

void WritePpm(const std::string& path, const Picture& picture)
{
    std::string text = "P6\n" + std::to_string(picture.Width()) + " "
        + std::to_string(picture.Height()) + "\n255\n";
    for (int y = 0; y < picture.Height(); ++y)
        text.append(reinterpret_cast<const char*>(picture.Row(y)),
            static_cast<std::size_t>(picture.Width()) * 3);
    WriteText(path, text);
}

} // namespace vypx::test
