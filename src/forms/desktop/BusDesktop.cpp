#include "forms/desktop/BusDesktop.h"

#include "forms/desktop/BusNames.h"
#include "forms/desktop/BusQuestion.h"
#include "forms/desktop/BusStart.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace vypx {

namespace {

// Of RequestName: not to stand in line, and the answer of who does.
constexpr uint NotInLine = 4, InLine = 0, OwnsIt = 1;
constexpr int NameLimit = 2000; // milliseconds

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

void BusDesktop::TakeNames()
{
    Ask("RequestName", { CopyName(QCoreApplication::applicationPid()), NotInLine }, [](uint) {});
    Ask("RequestName", { BusName(), InLine }, [this](uint answer) {
        if (answer == OwnsIt)
            ForgetStartAfterFirstCall();
        else
            m_offered->calls.ForgetStart(); // another copy hears the call
    });
}

/// What the bus held for the one that it started comes before its answer to any later question. So
/// a program that was merely started by such a one does not wait for a call for ever.
void BusDesktop::ForgetStartAfterFirstCall()
{
    Ask("GetId", {}, [this](uint) { m_offered->calls.ForgetStart(); });
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
