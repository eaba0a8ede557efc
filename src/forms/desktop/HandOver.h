#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/Copies.h"

#include <QObject>
#include <deque>
#include <functional>
#include <memory>

namespace vypx {

/// Finds a copy of the program for each file that the desktop asks to have opened: this one where
/// it is free, else another one that is, else a new one. A file goes to one copy, or the user is
/// told.
class HandOver : public QObject {
    Q_OBJECT

public:
    HandOver(FileTaker& own, Copies& copies);

    /// `done` (may be empty) is told whether a copy has taken the file.
    void Place(const OutsideFile& file, std::function<void(bool)> done = {});
    /// No file is under way.
    bool IsIdle() const { return m_running == 0 && m_queue.empty(); }

signals:
    void BecameIdle();

private:
    struct Job {
        OutsideFile file;
        std::function<void(bool)> done;
        QStringList left; // copies that were not asked yet
        int starts = 0;   // how many copies were started for it
    };
    using JobPtr = std::shared_ptr<Job>;

    void RunQueue();
    void Begin(const JobPtr& job);
    void AskNext(const JobPtr& job);
    void StartCopy(const JobPtr& job);
    void End(const JobPtr& job, bool placed);

    FileTaker& m_own;
    Copies& m_copies;
    std::deque<JobPtr> m_queue;
    int m_running = 0;
};

} // namespace vypx
