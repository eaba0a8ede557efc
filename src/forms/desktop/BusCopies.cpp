#include "forms/desktop/BusCopies.h"

#include "forms/desktop/BusNames.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QPointer>
#include <QProcess>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <memory>

namespace vypx {

namespace {

// Milliseconds. A copy that does not say within the first that it is free is passed over.
constexpr int AskLimit = 2000;
constexpr int StartLimit = 20000;
constexpr int NoLimit = std::numeric_limits<int>::max();

/// D-Bus puts these into the environment of what it starts.
constexpr const char* StarterType = "DBUS_STARTER_BUS_TYPE";
constexpr const char* StarterAddress = "DBUS_STARTER_ADDRESS";

QDBusMessage CallToBus(const QString& method)
{
    return QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method);
}

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

/// The program once more, as if the user had started it. 0: it could not be started.
qint64 StartProgram(const QString& token)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(StarterType);
    environment.remove(StarterAddress);
    for (const char* const name : { "XDG_ACTIVATION_TOKEN", "DESKTOP_STARTUP_ID" }) {
        environment.remove(name);
        if (!token.isEmpty())
            environment.insert(name, token);
    }
    QProcess program;
    program.setProgram(QCoreApplication::applicationFilePath());
    program.setProcessEnvironment(environment);
    qint64 process = 0;
    return program.startDetached(&process) ? process : 0;
}

} // namespace

bool IsStartedByBus() { return qEnvironmentVariableIsSet(StarterType); }

BusCopies::BusCopies(const QDBusConnection& bus)
    : m_bus(bus)
{
}

void BusCopies::Send(
    const QDBusMessage& call, int timeLimit, const std::function<void(const QDBusMessage&)>& done)
{
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, timeLimit), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, done] {
        watcher->deleteLater();
        done(watcher->reply());
    });
}

void BusCopies::List(std::function<void(QStringList)> done)
{
    Send(CallToBus("ListNames"), AskLimit, [done](const QDBusMessage& reply) {
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
    Send(CallToCopy(copy, "IsFree"), AskLimit,
        [done](const QDBusMessage& reply) { done(IsYes(reply)); });
}

void BusCopies::Give(const QString& copy, const OutsideFile& file, std::function<void(bool)> done)
{
    QDBusMessage call = CallToCopy(copy, "Take");
    call << file.path << file.token;
    Send(call, NoLimit, [done](const QDBusMessage& reply) { done(IsYes(reply)); });
}

void BusCopies::StartFor(const OutsideFile& file, std::function<void(Started)> done)
{
    const qint64 process = m_bus.isConnected() ? StartProgram(file.token) : 0;
    if (process == 0) {
        done(Started::Failed);
        return;
    }
    const QString copy = CopyName(process);
    WhenThere(copy, [this, copy, file, done](bool isThere) {
        if (!isThere) {
            done(Started::Failed);
            return;
        }
        Give(copy, { file.path, {} },
            [done](bool taken) { done(taken ? Started::Took : Started::Refused); });
    });
}

void BusCopies::Start(const QString& token, std::function<void(bool)> done)
{
    done(StartProgram(token) != 0);
}

/// A name that comes between the two questions is not missed: the bus is told to say so before it
/// is asked.
void BusCopies::WhenThere(const QString& copy, const std::function<void(bool)>& done)
{
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
    QDBusMessage call = CallToBus("NameHasOwner");
    call << copy;
    Send(call, AskLimit, [end, alive = QPointer<QObject>(watcher)](const QDBusMessage& reply) {
        if (alive && IsYes(reply))
            end(true);
    });
}

} // namespace vypx
