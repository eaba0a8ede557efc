#include "support/Files.h"

#include "platform/Platform.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace vypx::test {

namespace {

std::vector<std::filesystem::path> PassingFilesIn(const std::string& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(platform::NativePath(folder)))
        if (entry.path().extension() == ".vypx-new")
            files.push_back(entry.path());
    return files;
}

} // namespace

Bytes Hex(std::string_view digits)
{
    std::string text;
    for (const char digit : digits)
        if (digit != ' ' && digit != '\n')
            text += digit;
    EXPECT_EQ(text.size() % 2, 0u) << "half a byte in " << digits;
    Bytes bytes;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(text.substr(i, 2), nullptr, 16)));
    return bytes;
}

Bytes ReadBytes(const std::string& path)
{
    std::optional<Bytes> bytes = platform::ReadWholeFile(path);
    EXPECT_TRUE(bytes) << "can't read " << path;
    return bytes.value_or(Bytes());
}

std::string ReadText(const std::string& path)
{
    const Bytes bytes = ReadBytes(path);
    return { bytes.begin(), bytes.end() };
}

std::string ReadSystemText(const std::string& path)
{
    std::string text = ReadText(path);
#ifdef _WIN32
    std::erase(text, '\r');
#endif
    return text;
}

void WriteBytes(const std::string& path, const Bytes& bytes)
{
    WriteText(path, std::string(bytes.begin(), bytes.end()));
}

void WriteText(const std::string& path, std::string_view text)
{
    std::ofstream file(platform::NativePath(path), std::ios::binary);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    EXPECT_TRUE(file.flush().good()) << "can't write " << path;
}

std::size_t PassingFiles(const std::string& folder) { return PassingFilesIn(folder).size(); }

void RemovePassingFiles(const std::string& folder)
{
    for (const std::filesystem::path& file : PassingFilesIn(folder))
        std::filesystem::remove(file);
}

std::string TestData(const std::string& name) { return VYPX_TEST_DATA + std::string("/") + name; }

} // namespace vypx::test
