#include "forms/desktop/BusCopies.h"

#include "forms/desktop/BusNames.h"
#include "forms/desktop/BusQuestion.h"
#include "forms/desktop/BusStart.h"

#include <QCoreApplication>
#include <QDBusServiceWatcher>
#include <QTimer>
#include <algorithm>
#include <limits>

namespace vypx {

namespace {

// Milliseconds. A copy that does not say within the first that it is free is passed over.
constexpr int AskLimit = 2000;
constexpr int StartLimit = 20000;
constexpr int LookAtProcessAfter = 250; // and again: one that dies is not waited for
constexpr int NoLimit = std::numeric_limits<int>::max();

QDBusMessage CallToCopy(const QString& copy, const QString& method)
{
    QDBusMessage call = QDBusMessage::createMethodCall(copy, BusPath(), CopyInterface(), method);
    call.setAutoStartService(false);
    return call;
}

bool IsYes(const QDBusMessage& reply)
{
    return reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toBool();
}

} // namespace

BusCopies::BusCopies(const QDBusConnection& bus)
    : m_bus(bus)
{
}

void BusCopies::List(std::function<void(QStringList)> done)
{
    AskOnBus(m_bus, CallToBus("ListNames"), AskLimit, *this, [done](const QDBusMessage& reply) {
        const QString own = CopyName(QCoreApplication::applicationPid());
        QStringList copies;
        for (const QString& name : reply.arguments().value(0).toStringList())
            if (name.startsWith(CopyPrefix()) && name != own)
                copies << name;
        std::sort(copies.begin(), copies.end());
        done(copies);
    });
}

void BusCopies::Ask(const QString& copy, std::function<void(bool)> done)
{
    AskOnBus(m_bus, CallToCopy(copy, "IsFree"), AskLimit, *this,
        [done](const QDBusMessage& reply) { done(IsYes(reply)); });
}

void BusCopies::Give(const QString& copy, const OutsideFile& file, std::function<void(bool)> done)
{
    QDBusMessage call = CallToCopy(copy, "Take");
    call << file.path << file.activation.token << file.activation.startupId;
    AskOnBus(
        m_bus, call, NoLimit, *this, [done](const QDBusMessage& reply) { done(IsYes(reply)); });
}

void BusCopies::StartFor(
    const OutsideFile& file, std::function<void()> sent, std::function<void(Started)> done)
{
    const qint64 process = m_bus.isConnected() ? StartProgram(file.activation) : 0;
    if (process == 0) {
        done(Started::Failed);
        return;
    }
    WhenThere(process, [this, process, path = file.path, sent, done](bool isThere) {
        if (!isThere) {
            done(Started::Failed);
            return;
        }
        sent();
        Give(CopyName(process), { .path = path },
            [done](bool taken) { done(taken ? Started::Took : Started::Refused); });
    });
}

void BusCopies::Start(const Activation& activation, std::function<void(bool)> done)
{
    done(StartProgram(activation) != 0);
}

/// A name that comes between the two questions is not missed: the bus is told to say so before it
/// is asked.
void BusCopies::WhenThere(qint64 process, const std::function<void(bool)>& done)
{
    const QString copy = CopyName(process);
    auto* const watcher =
        new QDBusServiceWatcher(copy, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    auto* const limit = new QTimer(watcher);
    const auto end = [watcher, limit, done](bool isThere) {
        if (!limit->isActive())
            return; // it has ended already
        limit->stop();
        watcher->deleteLater();
        done(isThere);
    };
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [end] { end(true); });
    connect(limit, &QTimer::timeout, this, [end] { end(false); });
    limit->start(StartLimit);
    auto* const look = new QTimer(watcher);
    connect(look, &QTimer::timeout, this, [end, process] {
        if (!IsAlive(process))
            end(false);
    });
    look->start(LookAtProcessAfter);
    AskOnBus(m_bus, CallToBus("NameHasOwner", { copy }), AskLimit, *watcher,
        [end](const QDBusMessage& answer) {
            if (IsYes(answer))
                end(true);
        });
}

} // namespace vypx
