#include "forms/desktop/DesktopCalls.h"

#include "forms/desktop/FileUris.h"

#include <memory>
#include <utility>

namespace vypx {

namespace {

/// What was asked for in one call: answered when the last part is, or nobody cares any more.
struct CallUnderWay {
    DesktopCalls::Answer answer;
    QString error;
    int underWay = 0;

    explicit CallUnderWay(DesktopCalls::Answer how)
        : answer(std::move(how))
    {
    }
    CallUnderWay(const CallUnderWay&) = delete;
    CallUnderWay& operator=(const CallUnderWay&) = delete;
    ~CallUnderWay() { answer(underWay > 0 ? "The program was left." : error); }
};

} // namespace

DesktopCalls::DesktopCalls(
    FileTaker& own, HandOver& handOver, Copies& copies, bool startedByDesktop)
    : m_own(own)
    , m_handOver(handOver)
    , m_copies(copies)
    , m_startedByDesktop(startedByDesktop)
{
}

void DesktopCalls::Activate(const Activation& activation, const Answer& answer)
{
    if (std::exchange(m_startedByDesktop, false)) {
        m_own.ComeUp(activation);
        answer({});
        return;
    }
    m_copies.Start(activation, [this, answer](bool started) {
        const QString error = "No further copy of VY Pixelworks could be started.";
        if (!started)
            m_own.Tell(error);
        answer(started ? QString() : error);
    });
}

void DesktopCalls::Open(const QStringList& uris, const Activation& activation, const Answer& answer)
{
    if (uris.isEmpty()) {
        Activate(activation, answer);
        return;
    }
    if (uris.size() > MostFiles) {
        const QString error =
            QString("No more than %1 files can be opened at once.").arg(MostFiles);
        m_startedByDesktop = false;
        m_own.Tell(error);
        answer(error);
        return;
    }
    QStringList paths, unreadable, others;
    for (const QString& uri : uris) {
        if (const auto path = PathOfUri(uri))
            paths << *path;
        else
            (HasUnreadableName(uri) ? unreadable : others) << uri;
    }
    QStringList errors;
    if (!others.isEmpty())
        errors << "Only files of this computer can be opened, not:\n\n" + ShownNames(others);
    if (!unreadable.isEmpty())
        errors << "Names that are not in UTF-8 can't be read:\n\n" + ShownNames(unreadable);
    for (const QString& error : errors)
        m_own.Tell(error);
    OpenPaths(paths, activation, [answer, error = errors.join("\n\n")](const QString& further) {
        answer(error.isEmpty() ? further : error);
    });
}

void DesktopCalls::OpenPaths(
    const QStringList& paths, const Activation& activation, const Answer& answer)
{
    m_startedByDesktop = false;
    const auto pending = std::make_shared<CallUnderWay>(answer);
    Activation unused = activation; // it counts once
    for (const QString& path : paths) {
        if (!HasKnownEnding(path)) {
            m_own.Tell("Incorrect file type.");
            continue;
        }
        ++pending->underWay;
        m_handOver.Place({ path, std::exchange(unused, {}) }, [pending, path](bool placed) {
            --pending->underWay;
            if (!placed)
                pending->error = path + " was not opened.";
        });
    }
}

} // namespace vypx
