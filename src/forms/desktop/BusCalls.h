#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/DesktopCalls.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace vypx {

/// The program's object on D-Bus: what the desktop calls and what copies say to each other.
/// Whatever else is sent to it is answered by an error.
class BusCalls : public QDBusVirtualObject {
    Q_OBJECT

public:
    BusCalls(FileTaker& own, DesktopCalls& calls);

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

private:
    struct Method;
    using Sender = std::function<void(const QDBusMessage&)>;

    static const std::vector<Method>& Methods();
    void Activate(const QDBusMessage& call, const Sender& reply);
    void Open(const QDBusMessage& call, const Sender& reply);
    void ActivateAction(const QDBusMessage& call, const Sender& reply);
    void IsFree(const QDBusMessage& call, const Sender& reply);
    void Take(const QDBusMessage& call, const Sender& reply);

    FileTaker& m_own;
    DesktopCalls& m_calls;
};

} // namespace vypx
