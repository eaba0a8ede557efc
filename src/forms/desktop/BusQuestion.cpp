#include "forms/desktop/BusQuestion.h"

#include <QDBusPendingCallWatcher>

namespace vypx {

QDBusMessage CallToBus(const QString& method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method);
    call.setArguments(arguments);
    return call;
}

void AskOnBus(const QDBusConnection& bus, const QDBusMessage& call, int limit, QObject& asker,
    const std::function<void(const QDBusMessage&)>& done)
{
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, limit), &asker);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &asker, [watcher, done] {
        watcher->deleteLater();
        done(watcher->reply());
    });
}

} // namespace vypx
