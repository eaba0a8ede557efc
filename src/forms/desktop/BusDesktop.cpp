#include "forms/desktop/BusDesktop.h"

#include "forms/desktop/BusNames.h"
#include "forms/desktop/BusQuestion.h"
#include "forms/desktop/BusStart.h"

#include <QCoreApplication>
#include <QDBusServiceWatcher>
#include <QEventLoop>

namespace vypx {

namespace {

// Of RequestName: not to stand in line, and the answer of who does.
constexpr uint NotInLine = 4, InLine = 0, StandsInLine = 2;
constexpr int NameLimit = 2000; // milliseconds

} // namespace

struct BusDesktop::Offered {
    bool isStartedByBus = TakeStartByBus();
    QDBusConnection bus;
    BusCopies copies;
    HandOver handOver;
    DesktopCalls calls;
    BusCalls object;

    Offered(const QDBusConnection& connection, FileTaker& own)
        : bus(connection)
        , copies(bus)
        , handOver(own, copies)
        , calls(own, handOver, copies, isStartedByBus)
        , object(own, calls)
    {
    }
};

BusDesktop::BusDesktop(FileTaker& own)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    m_offered = std::make_unique<Offered>(bus, own);
    // Before the names: with the first of them calls may come.
    if (m_offered->bus.registerVirtualObject(BusPath(), &m_offered->object))
        TakeNames();
}

BusDesktop::~BusDesktop() = default;

void BusDesktop::TakeNames()
{
    if (m_offered->isStartedByBus)
        ForgetStartAfterFirstCall();
    Ask("RequestName", { CopyName(QCoreApplication::applicationPid()), NotInLine }, [](uint) {});
    Ask("RequestName", { BusName(), InLine }, [this](uint answer) {
        if (answer == StandsInLine)
            m_offered->calls.ForgetStart(); // another copy hears the call
    });
}

/// A program that was merely started by one that the bus had started must not wait for a call for
/// ever. With the name the bus sends what it held for it, before the answer to whatever is asked
/// later. Asked only when the bus's signal of the name is here: until the event loop runs, Qt keeps
/// calls and signals back, but not answers, which would then come first.
void BusDesktop::ForgetStartAfterFirstCall()
{
    auto* const watcher = new QDBusServiceWatcher(
        BusName(), m_offered->bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this, watcher] {
        watcher->deleteLater();
        Ask("GetId", {}, [this](uint) { m_offered->calls.ForgetStart(); });
    });
}

void BusDesktop::Ask(const QString& method, const QVariantList& arguments,
    const std::function<void(uint answer)>& done)
{
    AskOnBus(m_offered->bus, CallToBus(method, arguments), NameLimit, *this,
        [done](const QDBusMessage& answer) { done(answer.arguments().value(0).toUInt()); });
}

/// What the bus sent to a name before it was given up is here when the answer to that is.
void BusDesktop::Finish()
{
    if (!m_offered)
        return;
    QEventLoop loop;
    int released = 0;
    for (const QString& name : { BusName(), CopyName(QCoreApplication::applicationPid()) })
        Ask("ReleaseName", { name }, [&](uint) {
            if (++released == 2)
                loop.quit();
        });
    loop.exec(); // each is answered within a time limit
    m_offered->handOver.Finish({});
}

} // namespace vypx
