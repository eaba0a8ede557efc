#include "forms/desktop/HandOver.h"

#include <utility>

namespace vypx {

namespace {

/// So many files look for a copy at a time: a hundred that are opened at once must not start a
/// hundred programs at once.
constexpr int MostAtATime = 4;
/// A copy that was started for a file may get another one first, from somebody who was faster.
constexpr int MostStarts = 3;

} // namespace

HandOver::HandOver(FileTaker& own, Copies& copies)
    : m_own(own)
    , m_copies(copies)
{
    connect(&own, &FileTaker::GivenBack, this, [this](const OutsideFile& file) { Place(file); });
}

void HandOver::Place(const OutsideFile& file, std::function<void(bool)> done)
{
    m_queue.push_back(std::make_shared<Job>(Job{ .file = file, .done = std::move(done) }));
    RunQueue();
}

void HandOver::RunQueue()
{
    while (m_running < MostAtATime && !m_queue.empty()) {
        ++m_running;
        const JobPtr job = m_queue.front();
        m_queue.pop_front();
        Begin(job);
    }
}

void HandOver::Begin(const JobPtr& job)
{
    if (m_own.Take(job->file)) {
        End(job, true);
        return;
    }
    m_copies.List([this, job](const QStringList& copies) {
        job->left = copies;
        AskNext(job);
    });
}

/// One after the other, so that no two have the file.
void HandOver::AskNext(const JobPtr& job)
{
    if (job->left.isEmpty()) {
        StartCopy(job);
        return;
    }
    const QString copy = job->left.takeFirst();
    m_copies.Ask(copy, [this, job, copy](bool isFree) {
        if (!isFree) {
            AskNext(job);
            return;
        }
        m_copies.Give(copy, job->file, [this, job](bool taken) {
            if (taken)
                End(job, true);
            else
                AskNext(job);
        });
    });
}

void HandOver::StartCopy(const JobPtr& job)
{
    ++job->starts;
    m_copies.StartFor(job->file, [this, job](Copies::Started started) {
        if (started == Copies::Started::Refused && job->starts < MostStarts) {
            Begin(job);
            return;
        }
        const bool placed = started == Copies::Started::Took;
        if (!placed)
            m_own.Tell(tr("%1 was not opened: no further copy of VY Pixelworks could be started.")
                           .arg(job->file.path));
        End(job, placed);
    });
}

void HandOver::End(const JobPtr& job, bool placed)
{
    --m_running;
    if (job->done)
        job->done(placed);
    RunQueue();
    if (IsIdle())
        emit BecameIdle();
}

} // namespace vypx
