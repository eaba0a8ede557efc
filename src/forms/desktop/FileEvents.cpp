#include "forms/desktop/FileEvents.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileOpenEvent>
#include <QProcess>

namespace vypx {

namespace {

/// Program.app, in which the program stands as Contents/MacOS/program.
QString Bundle() { return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../.."); }

} // namespace

void BundleCopies::StartFor(const OutsideFile& file, std::function<void(Started)> done)
{
    const bool started =
        QProcess::startDetached("/usr/bin/open", { "-n", "-a", Bundle(), file.path });
    done(started ? Started::Took : Started::Failed);
}

void BundleCopies::Start(const QString&, std::function<void(bool)> done)
{
    done(QProcess::startDetached("/usr/bin/open", { "-n", "-a", Bundle() }));
}

FileEvents::FileEvents(FileTaker& own, Copies& copies)
    : m_handOver(own, copies)
    , m_calls(own, m_handOver, copies, false)
{
    qApp->installEventFilter(this);
}

bool FileEvents::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != qApp || event->type() != QEvent::FileOpen)
        return false;
    const auto& open = static_cast<const QFileOpenEvent&>(*event);
    const DesktopCalls::Answer nobodyWaits = [](const QString&) {};
    if (open.file().isEmpty())
        m_calls.Open({ open.url().toString(QUrl::FullyEncoded) }, {}, nobodyWaits);
    else
        m_calls.OpenPaths({ open.file() }, {}, nobodyWaits);
    return true;
}

} // namespace vypx
