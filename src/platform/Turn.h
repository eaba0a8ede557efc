#pragma once

#include "platform/Platform.h"

namespace vypx::platform {

/// One program's turn among those that change the same files, as long as this object lives: its
/// lock file is locked. Begins when no other has its turn, but at the latest after five seconds, as
/// a program may hang; and at once where nothing can be locked.
class Turn {
public:
    /// What becomes of the lock file at the turn's end. One that goes leaves nothing behind; only
    /// where a locked file can be deleted and made anew at once (not on every Windows).
    enum class LockFile { Stays, Goes };

    Turn(const std::string& lockFile, LockFile atEnd);
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;
    ~Turn();

private:
    std::filesystem::path m_lockFile;
    FileLock m_lock;
    bool m_goes = false;
};

} // namespace vypx::platform
