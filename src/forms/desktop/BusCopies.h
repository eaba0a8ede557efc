#pragma once

#include "forms/desktop/Copies.h"

#include <QDBusConnection>
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
    void StartFor(const OutsideFile& file, std::function<void()> sent,
        std::function<void(Started)> done) override;
    void Start(const Activation& activation, std::function<void(bool)> done) override;

private:
    void WhenThere(qint64 process, const std::function<void(bool)>& done);

    QDBusConnection m_bus;
};

} // namespace vypx
