#include "forms/desktop/HandOver.h"

#include "forms/desktop/FileUris.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace vypx {

namespace {

/// So many files look for a copy at a time: a hundred that are opened at once must not start a
/// hundred programs at once. What was sent counts no more, as whoever got it may hang.
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
    m_jobs.push_back(std::make_shared<Job>(Job{ .file = file, .done = std::move(done) }));
    RunQueue();
}

int HandOver::CountOf(Phase phase) const
{
    return static_cast<int>(std::count_if(
        m_jobs.begin(), m_jobs.end(), [&](const JobPtr& job) { return job->phase == phase; }));
}

void HandOver::RunQueue()
{
    while (CountOf(Phase::Looking) < MostAtATime) {
        const auto next = std::find_if(m_jobs.begin(), m_jobs.end(),
            [](const JobPtr& job) { return job->phase == Phase::Queued; });
        if (next == m_jobs.end())
            return;
        const JobPtr job = *next;
        job->phase = Phase::Looking;
        if (job->isListed)
            AskNext(job);
        else
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
        job->isListed = true;
        job->left = copies;
        AskNext(job);
    });
}

/// One after the other, so that no two have the file.
void HandOver::AskNext(const JobPtr& job)
{
    if (job->phase == Phase::Ended)
        return;
    if (job->left.isEmpty()) {
        StartCopy(job);
        return;
    }
    const QString copy = job->left.takeFirst();
    m_copies.Ask(copy, [this, job, copy](bool isFree) {
        if (!isFree || job->phase == Phase::Ended) {
            AskNext(job);
            return;
        }
        Sent(job);
        m_copies.Give(copy, job->file, [this, job](bool taken) {
            if (taken)
                End(job, true);
            else
                GoOn(job);
        });
    });
}

void HandOver::StartCopy(const JobPtr& job)
{
    ++job->starts;
    m_copies.StartFor(
        job->file, [this, job] { Sent(job); },
        [this, job](Copies::Started started) { StartEnded(job, started); });
}

void HandOver::StartEnded(const JobPtr& job, Copies::Started started)
{
    const bool refused = started == Copies::Started::Refused;
    if (refused && job->starts < MostStarts) {
        job->isListed = false; // it begins anew
        GoOn(job);
        return;
    }
    const bool placed = started == Copies::Started::Took;
    if (!placed && job->phase != Phase::Ended)
        m_own.Tell((refused ? tr("%1 was not opened: each copy of VY Pixelworks that was started "
                                 "for it got another file first.")
                            : tr("%1 was not opened: no further copy of VY Pixelworks could be "
                                 "started."))
                       .arg(job->file.path));
    End(job, placed);
}

void HandOver::Sent(const JobPtr& job)
{
    if (job->phase != Phase::Looking)
        return; // it was given up
    job->phase = Phase::Sent;
    RunQueue();
    emit Changed();
}

/// The copy that was sent the file has refused it or died.
void HandOver::GoOn(const JobPtr& job)
{
    if (job->phase == Phase::Ended)
        return;
    job->phase = Phase::Queued;
    RunQueue();
    emit Changed();
}

void HandOver::End(const JobPtr& job, bool placed)
{
    if (std::exchange(job->phase, Phase::Ended) == Phase::Ended)
        return;
    std::erase(m_jobs, job);
    if (job->done)
        job->done(placed);
    RunQueue();
    emit Changed();
}

void HandOver::Finish(const Limits& limits)
{
    QEventLoop loop;
    QTimer all, answers;
    for (QTimer* const timer : { &all, &answers }) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    }
    const auto look = [&] {
        if (IsIdle())
            loop.quit();
        else if (CountOf(Phase::Sent) < static_cast<int>(m_jobs.size()))
            answers.stop();
        else if (!answers.isActive())
            answers.start(limits.answers);
    };
    connect(this, &HandOver::Changed, &loop, look);
    all.start(limits.all);
    look();
    if (!IsIdle())
        loop.exec();
    if (!IsIdle())
        GiveUp();
}

void HandOver::GiveUp()
{
    QStringList paths;
    const std::vector<JobPtr> jobs = std::exchange(m_jobs, {});
    for (const JobPtr& job : jobs) {
        paths << job->file.path;
        job->phase = Phase::Ended;
        if (job->done)
            job->done(false);
    }
    m_own.Tell(
        tr("No copy of VY Pixelworks has answered that it opens:\n\n%1").arg(ShownNames(paths)));
}

} // namespace vypx
