#include "forms/desktop/FileEvents.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileOpenEvent>
#include <QProcess>

namespace vypx {

namespace {

/// Program.app, in which the program stands as Contents/MacOS/program.
QString Bundle() { return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../.."); }

/// `done` gets whether the system has opened the bundle, once it says so.
void OpenBundle(const QStringList& files, const std::function<void(bool)>& done)
{
    auto* const open = new QProcess(qApp);
    QObject::connect(
        open, &QProcess::finished, open, [open, done](int code, QProcess::ExitStatus status) {
            open->deleteLater();
            done(status == QProcess::NormalExit && code == 0);
        });
    QObject::connect(
        open, &QProcess::errorOccurred, open, [open, done](QProcess::ProcessError why) {
            if (why != QProcess::FailedToStart)
                return; // it finishes as well
            open->deleteLater();
            done(false);
        });
    open->start("/usr/bin/open", QStringList{ "-n", "-a", Bundle() } + files);
}

} // namespace

void BundleCopies::StartFor(
    const OutsideFile& file, std::function<void()>, std::function<void(Started)> done)
{
    OpenBundle(
        { file.path }, [done](bool opened) { done(opened ? Started::Took : Started::Failed); });
}

void BundleCopies::Start(const Activation&, std::function<void(bool)> done)
{
    OpenBundle({}, done);
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
