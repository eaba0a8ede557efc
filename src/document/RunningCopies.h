#pragma once

#include "platform/Platform.h"

#include <string>

namespace vypx {

/// Held while a copy that starts looks at what all copies share in a folder, and changes it, so
/// that two copies that start together do it one after the other. It only orders them: a copy that
/// hangs there keeps others out for two seconds, and where it can't be made nobody waits.
class CopiesGate {
public:
    explicit CopiesGate(const std::string& folder);

    /// Whether it was waited for in vain.
    bool IsAnothers() const { return m_answer == platform::FileLock::Answer::HeldByAnother; }

private:
    platform::FileLock m_lock; // of "copies.lock"
    platform::FileLock::Answer m_answer;
};

/// The copies of this program that run over one program folder, and the working folder there that
/// this one has for itself: "temp" for the first copy, "temp1" and so on for further ones. A copy
/// holds a lock within its folder ("in-use.lock") as long as it lives. The lock alone decides whose
/// a folder is; the system frees it when the copy ends in whatever way, so a crash leaves nothing
/// behind that a later start would believe.
class RunningCopies {
public:
    RunningCopies() = default;
    ~RunningCopies();
    RunningCopies(const RunningCopies&) = delete;
    RunningCopies& operator=(const RunningCopies&) = delete;

    /// Counts this copy in, and makes and takes its working folder. Its number is 0 where no other
    /// copy runs, else one above the `Run Count` that the folder's settings file holds, or the next
    /// one whose folder no copy holds; it is written to `Run Count`. Where the folder can't be made
    /// or locked, one that is named by the process serves. False when the count can't be written;
    /// this copy is in all the same.
    bool Enter(const std::string& folder);

    /// Whether another copy ran when this one entered.
    bool AnotherRan() const { return m_anotherRan; }
    int Number() const { return m_number; }
    /// Name of the working folder. No other copy works there until this one leaves or ends.
    const std::string& FolderName() const { return m_name; }

    /// Counts this copy out. Its folder stays, unless it was named by the process and is empty.
    void Leave();

private:
    platform::FileLock::Answer Take(const std::string& name);
    void TakeFolderOfProcess();

    std::string m_folder;
    std::string m_name;
    platform::FileLock m_lock;
    int m_number = 0;
    bool m_anotherRan = false;
    bool m_isOfProcess = false;
};

} // namespace vypx
