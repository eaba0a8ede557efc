#include "forms/desktop/BusCalls.h"

#include "forms/desktop/BusNames.h"
#include "forms/desktop/FileUris.h"

#include <QDBusArgument>
#include <QDBusVariant>

namespace vypx {

namespace {

/// Bytes of a token, of which some ten times less is usual: it goes into environments.
constexpr qsizetype LongestToken = 4096;

QString Bounded(const QString& token)
{
    return token.toUtf8().size() <= LongestToken ? token : QString();
}

Activation ActivationOf(const QVariant& token, const QVariant& startupId)
{
    return { .token = Bounded(token.toString()), .startupId = Bounded(startupId.toString()) };
}

/// Of what the desktop sends with each call.
Activation ActivationOf(const QVariant& platformData)
{
    const QVariantMap data = qdbus_cast<QVariantMap>(platformData);
    return ActivationOf(data.value("activation-token"), data.value("desktop-startup-id"));
}

DesktopCalls::Answer AnswerTo(
    const QDBusMessage& call, const std::function<void(const QDBusMessage&)>& reply)
{
    return [call, reply](const QString& error) {
        reply(error.isEmpty() ? call.createReply()
                              : call.createErrorReply(QDBusError::Failed, error));
    };
}

} // namespace

struct BusCalls::Method {
    QString interface;
    const char* name;
    const char* takes; // signature
    const char* gives;
    void (BusCalls::*run)(const QDBusMessage&, const Sender&);
};

const std::vector<BusCalls::Method>& BusCalls::Methods()
{
    static const std::vector<Method> all{
        { ApplicationInterface, "Activate", "a{sv}", "", &BusCalls::Activate },
        { ApplicationInterface, "Open", "asa{sv}", "", &BusCalls::Open },
        { ApplicationInterface, "ActivateAction", "sava{sv}", "", &BusCalls::ActivateAction },
        { CopyInterface(), "IsFree", "", "b", &BusCalls::IsFree },
        { CopyInterface(), "Take", "sss", "b", &BusCalls::Take },
    };
    return all;
}

BusCalls::BusCalls(FileTaker& own, DesktopCalls& calls)
    : m_own(own)
    , m_calls(calls)
{
}

QString BusCalls::introspect(const QString&) const
{
    return "<interface name=\"" + ApplicationInterface
        + "\">"
          "<method name=\"Activate\"><arg name=\"platform_data\" type=\"a{sv}\" direction=\"in\"/>"
          "</method>"
          "<method name=\"Open\"><arg name=\"uris\" type=\"as\" direction=\"in\"/>"
          "<arg name=\"platform_data\" type=\"a{sv}\" direction=\"in\"/></method>"
          "<method name=\"ActivateAction\"><arg name=\"action_name\" type=\"s\" direction=\"in\"/>"
          "<arg name=\"parameter\" type=\"av\" direction=\"in\"/>"
          "<arg name=\"platform_data\" type=\"a{sv}\" direction=\"in\"/></method></interface>";
}

bool BusCalls::handleMessage(const QDBusMessage& message, const QDBusConnection& bus)
{
    if (message.type() != QDBusMessage::MethodCallMessage)
        return false;
    const Sender reply = [bus, isWanted = message.isReplyRequired()](const QDBusMessage& answer) {
        if (isWanted)
            bus.send(answer);
    };
    for (const Method& method : Methods()) {
        const bool isMeant =
            message.interface().isEmpty() || message.interface() == method.interface;
        if (isMeant && message.member() == method.name && message.signature() == method.takes) {
            (this->*method.run)(message, reply);
            return true;
        }
    }
    return false; // the bus answers that there is no such method
}

void BusCalls::Activate(const QDBusMessage& call, const Sender& reply)
{
    m_calls.Activate(ActivationOf(call.arguments().at(0)), AnswerTo(call, reply));
}

void BusCalls::Open(const QDBusMessage& call, const Sender& reply)
{
    m_calls.Open(call.arguments().at(0).toStringList(), ActivationOf(call.arguments().at(1)),
        AnswerTo(call, reply));
}

void BusCalls::ActivateAction(const QDBusMessage& call, const Sender& reply)
{
    reply(call.createErrorReply(QDBusError::InvalidArgs, "VY Pixelworks has no actions."));
}

void BusCalls::IsFree(const QDBusMessage& call, const Sender& reply)
{
    reply(call.createReply(m_own.IsFree()));
}

void BusCalls::Take(const QDBusMessage& call, const Sender& reply)
{
    const QVariantList arguments = call.arguments();
    const QString path = arguments.at(0).toString();
    if (!path.startsWith('/') || !HasKnownEnding(path)) {
        reply(call.createErrorReply(
            QDBusError::InvalidArgs, "The path must be absolute and that of an iconset."));
        return;
    }
    const Activation activation = ActivationOf(arguments.at(1), arguments.at(2));
    reply(call.createReply(m_own.Take({ path, activation })));
}

} // namespace vypx
