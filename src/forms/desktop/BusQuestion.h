#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantList>
#include <functional>

namespace vypx {

/// A call to the bus itself.
QDBusMessage CallToBus(const QString& method, const QVariantList& arguments = {});

/// Sends the call without waiting. `done` gets the answer, or an error, at the latest after `limit`
/// milliseconds; nothing once `asker` is gone.
void AskOnBus(const QDBusConnection& bus, const QDBusMessage& call, int limit, QObject& asker,
    const std::function<void(const QDBusMessage& answer)>& done);

} // namespace vypx
