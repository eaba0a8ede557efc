#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/Copies.h"

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

namespace vypx {

/// Finds a copy of the program for each file that the desktop asks to have opened: this one where
/// it is free, else another one that is, else a new one. A file goes to one copy, or the user is
/// told.
class HandOver : public QObject {
    Q_OBJECT

public:
    /// How long Finish waits, in milliseconds.
    struct Limits {
        int all = 60000;
        int answers = 10000; ///< where all files are sent: copies that hang may never answer
    };

    HandOver(FileTaker& own, Copies& copies);

    /// `done` (may be empty) is told whether a copy has taken the file.
    void Place(const OutsideFile& file, std::function<void(bool)> done = {});
    /// No file is under way.
    bool IsIdle() const { return m_jobs.empty(); }
    /// Runs events until all files are placed. What is not within the limits is told.
    void Finish(const Limits& limits);

signals:
    /// A file was sent, or placed, or could not be.
    void Changed();

private:
    enum class Phase {
        Queued,
        Looking, ///< holds one of a few places
        Sent,
        Ended,
    };
    struct Job {
        OutsideFile file;
        std::function<void(bool)> done;
        Phase phase = Phase::Queued;
        bool isListed = false;
        QStringList left; // copies that were not asked yet
        int starts = 0;   // how many copies were started for it
    };
    using JobPtr = std::shared_ptr<Job>;

    int CountOf(Phase phase) const;
    void RunQueue();
    void Begin(const JobPtr& job);
    void AskNext(const JobPtr& job);
    void StartCopy(const JobPtr& job);
    void StartEnded(const JobPtr& job, Copies::Started started);
    void Sent(const JobPtr& job);
    void GoOn(const JobPtr& job);
    void End(const JobPtr& job, bool placed);
    void GiveUp();

    FileTaker& m_own;
    Copies& m_copies;
    std::vector<JobPtr> m_jobs; // in the order in which they came
};

} // namespace vypx
