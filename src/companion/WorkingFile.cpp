#include "companion/WorkingFile.h"

#include "platform/Platform.h"

#include <cerrno>
#include <filesystem>

namespace vypx {

namespace {

/// Why the last operation on a stream failed.
std::error_code LastError()
{
    return errno != 0 ? std::error_code(errno, std::generic_category())
                      : std::make_error_code(std::errc::io_error);
}

void RemoveFile(const std::string& path)
{
    std::error_code ignored;
    std::filesystem::remove(platform::NativePath(path), ignored);
}

} // namespace

NewWorkingFile::NewWorkingFile(const std::string& path)
    : m_path(path)
{
    errno = 0;
    m_file.rdbuf()->pubsetbuf(nullptr, 0); // or pieces would be cut
    m_file.open(platform::NativePath(path), std::ios::binary | std::ios::trunc);
    if (!m_file)
        m_error = LastError();
}

NewWorkingFile::~NewWorkingFile()
{
    if (!m_file.is_open())
        return;
    m_file.close();
    RemoveFile(m_path);
}

bool NewWorkingFile::Write(std::span<const std::uint8_t> bytes)
{
    if (m_error)
        return false;
    errno = 0;
    if (!m_file.write(reinterpret_cast<const char*>(bytes.data()),
            static_cast<std::streamsize>(bytes.size())))
        m_error = LastError();
    return !m_error;
}

std::error_code NewWorkingFile::Close()
{
    if (!m_file.is_open())
        return m_error;
    errno = 0;
    m_file.close();
    if (!m_file && !m_error)
        m_error = LastError();
    if (m_error)
        RemoveFile(m_path); // half of it is no picture
    return m_error;
}

std::error_code WriteWorkingFile(const std::string& path, const Bytes& bytes)
{
    NewWorkingFile file(path);
    file.Write(bytes);
    return file.Close();
}

} // namespace vypx
