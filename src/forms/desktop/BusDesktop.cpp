#include "forms/desktop/BusDesktop.h"

#include "forms/desktop/BusNames.h"
#include "forms/desktop/BusQuestion.h"
#include "forms/desktop/BusStart.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace vypx {

namespace {

// Of RequestName: not to stand in line, and the answer of who does.
constexpr uint NotInLine = 4, InLine = 0, StandsInLine = 2;
// Milliseconds.
constexpr int NameLimit = 2000;
constexpr int JustStarted = 3000; // since the name was taken: the call for a start comes at once

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
        , calls(own, handOver, copies, TakeStartByBus())
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

/// A program that was merely started by one that the bus had started must not wait for a call for
/// ever. Nor is it enough to wait for what the bus held until the name was taken: clients that ask
/// what the object knows, or have it started first, call only then.
void BusDesktop::TakeNames()
{
    Ask("RequestName", { CopyName(QCoreApplication::applicationPid()), NotInLine }, [](uint) {});
    Ask("RequestName", { BusName(), InLine }, [this](uint answer) {
        const bool anotherHears = answer == StandsInLine;
        QTimer::singleShot(
            anotherHears ? 0 : JustStarted, this, [this] { m_offered->calls.ForgetStart(); });
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
