#pragma once

#include "platform/Platform.h"

#include <string>

namespace vypx {

/// Held while a copy that starts or ends looks at what all copies share in a folder, and changes
/// it, so that two copies that start together don't see each other's half. A copy that hangs there
/// keeps others out for two seconds only.
class CopiesGate {
public:
    explicit CopiesGate(const std::string& folder);

private:
    platform::FileLock m_lock; // of "copies.lock"
};

/// The copies of this program that run over one program folder. Each holds a lock of its own there
/// ("copy0.lock", "copy1.lock" and so on), which the system frees when the copy ends in whatever
/// way, so a crash leaves nothing behind that a later start would believe.
class RunningCopies {
public:
    RunningCopies() = default;
    ~RunningCopies();
    RunningCopies(const RunningCopies&) = delete;
    RunningCopies& operator=(const RunningCopies&) = delete;

    /// Counts this copy in. Where no lock can be made, it believes to be alone.
    void Enter(const std::string& folder);

    /// Whether another copy ran when this one entered.
    bool AnotherRan() const { return m_anotherRan; }

    /// Lowest number that no other copy held; 0 for the first.
    int Place() const { return m_place; }

    /// Counts this copy out and takes its lock file away.
    void Leave();

private:
    std::string LockFile(int place) const;

    std::string m_folder;
    platform::FileLock m_lock;
    int m_place = 0;
    bool m_anotherRan = false;
};

} // namespace vypx
