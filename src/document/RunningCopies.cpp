#include "document/RunningCopies.h"

#include "document/WorkingFolder.h"

#include <chrono>
#include <filesystem>
#include <thread>

namespace vypx {

namespace {

using platform::FileLock;

/// Places that are looked at; more copies than that are not told apart.
constexpr int MaxPlaces = 256;

} // namespace

CopiesGate::CopiesGate(const std::string& folder)
{
    constexpr int Tries = 200;
    constexpr std::chrono::milliseconds Pause(10);
    const std::string file = folder + BelowFolder("copies.lock");
    for (int i = 0; i < Tries && m_lock.TryLock(file) == FileLock::Answer::HeldByAnother; ++i)
        std::this_thread::sleep_for(Pause);
}

RunningCopies::~RunningCopies() { Leave(); }

void RunningCopies::Enter(const std::string& folder)
{
    Leave();
    m_folder = folder;
    m_place = 0;
    m_anotherRan = false;
    const CopiesGate gate(folder);
    for (int place = 0; place < MaxPlaces; ++place) {
        const bool isNew = !FileExists(LockFile(place));
        if (isNew && m_lock.Held())
            continue;
        FileLock lock;
        const FileLock::Answer answer = lock.TryLock(LockFile(place));
        if (answer == FileLock::Answer::HeldByAnother)
            m_anotherRan = true;
        if (answer == FileLock::Answer::Failed)
            return;
        if (answer == FileLock::Answer::Taken && !m_lock.Held()) {
            m_lock = std::move(lock);
            m_place = place;
        }
    }
}

void RunningCopies::Leave()
{
    if (!m_lock.Held())
        return;
    const CopiesGate gate(m_folder);
    m_lock.Unlock();
    std::error_code ignored;
    std::filesystem::remove(platform::NativePath(LockFile(m_place)), ignored);
}

std::string RunningCopies::LockFile(int place) const
{
    return m_folder + BelowFolder("copy" + std::to_string(place) + ".lock");
}

} // namespace vypx
