#include "platform/Turn.h"

namespace vypx::platform {

namespace fs = std::filesystem;

Turn::Turn(const std::string& lockFile, LockFile atEnd)
    : m_lockFile(NativePath(lockFile))
{
    constexpr std::chrono::seconds Patience(5);
    std::error_code ignored;
    const bool isNew = fs::symlink_status(m_lockFile, ignored).type() == fs::file_type::not_found;
    const FileLock::Answer answer = m_lock.Lock(lockFile, Patience);
    // One that was made but could not be locked is ours too; one that stood there may not be.
    const bool isOurs = m_lock.Held() || (answer == FileLock::Answer::Failed && isNew);
    m_goes = isOurs && atEnd == LockFile::Goes;
}

Turn::~Turn()
{
    // While it is still held: whoever gets hold of it then sees that it was deleted.
    std::error_code ignored;
    if (m_goes)
        fs::remove(m_lockFile, ignored);
}

} // namespace vypx::platform
