#include "forms/desktop/BusDesktop.h"

#include "forms/desktop/BusNames.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEventLoop>
#include <QThread>
#include <QTimer>

namespace vypx {

namespace {

// Of RequestName: not to stand in line, and the answer of who does.
constexpr uint NotInLine = 4, InLine = 0, StandsInLine = 2;
// Milliseconds.
constexpr int NameLimit = 2000;
constexpr int FinishLimit = 60000; // a copy that was given a file may hang

} // namespace

struct BusDesktop::Offered {
    QDBusConnection bus;
    BusCopies copies;
    HandOver handOver;
    DesktopCalls calls;
    BusCalls object;

    Offered(const QDBusConnection& connection, FileTaker& own)
        : bus(connection)
        , copies(bus)
        , handOver(own, copies)
        , calls(own, handOver, copies, IsStartedByBus())
        , object(own, calls)
    {
    }
};

/// A bus that hangs would hold whoever connects to it.
BusDesktop::BusDesktop(FileTaker& own)
    : m_own(own)
{
    QThread* const connecting = QThread::create([] { QDBusConnection::sessionBus(); });
    connect(connecting, &QThread::finished, this, &BusDesktop::Connected);
    connect(connecting, &QThread::finished, connecting, &QObject::deleteLater);
    connecting->start();
}

BusDesktop::~BusDesktop() = default;

void BusDesktop::Connected()
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    m_offered = std::make_unique<Offered>(bus, m_own);
    // Before the names: with the first of them calls may come.
    if (m_offered->bus.registerVirtualObject(BusPath(), &m_offered->object))
        TakeNames();
}

void BusDesktop::TakeNames()
{
    const QString own = CopyName(QCoreApplication::applicationPid());
    Ask("RequestName", own, NotInLine, [](uint) {});
    Ask("RequestName", BusName(), InLine, [this](uint answer) {
        if (answer == StandsInLine)
            m_offered->calls.ForgetStart(); // another copy hears the call
    });
}

void BusDesktop::Ask(const QString& method, const QString& name, uint flags,
    const std::function<void(uint answer)>& done)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method);
    call << name;
    if (method == "RequestName")
        call << flags;
    auto* const watcher =
        new QDBusPendingCallWatcher(m_offered->bus.asyncCall(call, NameLimit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done] {
        watcher->deleteLater();
        done(watcher->reply().arguments().value(0).toUInt());
    });
}

/// What the bus sent to a name before it was given up is here when the answer to that is.
void BusDesktop::Finish()
{
    if (!m_offered)
        return;
    QEventLoop loop;
    int released = 0;
    const auto endIfDone = [&] {
        if (released == 2 && m_offered->handOver.IsIdle())
            loop.quit();
    };
    connect(&m_offered->handOver, &HandOver::BecameIdle, &loop, endIfDone);
    for (const QString& name : { BusName(), CopyName(QCoreApplication::applicationPid()) })
        Ask("ReleaseName", name, 0, [&](uint) {
            ++released;
            endIfDone();
        });
    QTimer::singleShot(FinishLimit, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace vypx
