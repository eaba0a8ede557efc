#pragma once

#include "forms/desktop/Copies.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace vypx {

/// The copies of the program on one bus.
class BusCopies : public QObject, public Copies {
    Q_OBJECT

public:
    explicit BusCopies(const QDBusConnection& bus);

    void List(std::function<void(QStringList)> done) override;
    void Ask(const QString& copy, std::function<void(bool)> done) override;
    void Give(
        const QString& copy, const OutsideFile& file, std::function<void(bool)> done) override;
    void StartFor(const OutsideFile& file, std::function<void(Started)> done) override;
    void Start(const QString& token, std::function<void(bool)> done) override;

private:
    void Send(const QDBusMessage& call, int timeLimit,
        const std::function<void(const QDBusMessage&)>& done);
    void WhenThere(const QString& copy, const std::function<void(bool)>& done);

    QDBusConnection m_bus;
};

/// Whether the bus has started this process, and so has a call for it.
bool IsStartedByBus();

} // namespace vypx
