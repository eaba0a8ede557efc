#include "document/RunningCopies.h"

#include "document/RunCount.h"
#include "document/WorkingFolder.h"

#include <filesystem>

namespace vypx {

namespace {

namespace fs = std::filesystem;
using platform::FileLock;
using platform::NativePath;

/// Never deleted while others may look at it: who locks a deleted file locks nobody out.
std::string LockFile(const std::string& workingFolder)
{
    return workingFolder + BelowFolder("in-use.lock");
}

bool IsHeld(const std::string& workingFolder)
{
    const std::string file = LockFile(workingFolder);
    FileLock lock;
    return FileExists(file) && lock.TryLock(file) == FileLock::Answer::HeldByAnother;
}

bool AnyCopyRuns(const std::string& folder)
{
    std::error_code error;
    for (fs::directory_iterator entry(NativePath(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        const bool isOne = platform::Utf8Path(entry->path().filename()).starts_with("temp");
        if (isOne && IsHeld(platform::Utf8Path(entry->path())))
            return true;
    }
    return false;
}

} // namespace

CopiesGate::CopiesGate(const std::string& folder)
{
    constexpr std::chrono::seconds Patience(2);
    m_answer = m_lock.Lock(folder + BelowFolder("copies.lock"), Patience);
}

RunningCopies::~RunningCopies() { Leave(); }

bool RunningCopies::Enter(const std::string& folder)
{
    Leave();
    m_folder = folder;
    const CopiesGate gate(folder);
    m_anotherRan = AnyCopyRuns(folder);
    m_number = m_anotherRan ? ReadRunCount(folder) + 1 : 0;
    FileLock::Answer answer = Take(TempName(m_number));
    while (answer == FileLock::Answer::HeldByAnother) {
        // Without the gate another start may have come between.
        m_number = m_anotherRan ? m_number + 1 : ReadRunCount(folder) + 1;
        m_anotherRan = true;
        answer = Take(TempName(m_number));
    }
    if (answer == FileLock::Answer::Failed)
        TakeFolderOfProcess();
    return WriteRunCount(m_number, folder);
}

FileLock::Answer RunningCopies::Take(const std::string& name)
{
    m_name = name;
    const std::string workingFolder = m_folder + BelowFolder(name);
    std::error_code ignored; // the lock fails then
    fs::create_directory(NativePath(workingFolder), ignored);
    return m_lock.TryLock(LockFile(workingFolder));
}

void RunningCopies::TakeFolderOfProcess()
{
    m_isOfProcess = true;
    std::error_code error;
    for (int i = 1;; ++i) {
        m_name = "temp-" + std::to_string(platform::ProcessNumber()) + "-" + std::to_string(i);
        // Who makes it has it alone, also where nothing can be locked.
        if (fs::create_directory(NativePath(m_folder + BelowFolder(m_name)), error) || error)
            break;
    }
    m_lock.TryLock(LockFile(m_folder + BelowFolder(m_name))); // others see that a copy runs
}

void RunningCopies::Leave()
{
    m_lock.Unlock();
    if (!m_isOfProcess)
        return;
    m_isOfProcess = false;
    const std::string workingFolder = m_folder + BelowFolder(m_name);
    std::error_code ignored;
    fs::remove(NativePath(LockFile(workingFolder)), ignored);
    fs::remove(NativePath(workingFolder), ignored);
}

} // namespace vypx
