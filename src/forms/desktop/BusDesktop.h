#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/BusCalls.h"
#include "forms/desktop/BusCopies.h"
#include "forms/desktop/DesktopCalls.h"
#include "forms/desktop/HandOver.h"

#include <QDBusConnection>
#include <QObject>
#include <memory>

namespace vypx {

/// Offers the program on the session's bus. Without a bus, or with one that does not answer,
/// nothing happens.
class BusDesktop : public QObject {
    Q_OBJECT

public:
    explicit BusDesktop(FileTaker& own);
    ~BusDesktop() override;

    /// The program has been left: gives the names up, then runs events until all that reached this
    /// copy has been handed over.
    void Finish();

private:
    struct Offered;

    void Connected();
    void TakeNames();
    void Ask(const QString& method, const QString& name, uint flags,
        const std::function<void(uint answer)>& done);

    FileTaker& m_own;
    std::unique_ptr<Offered> m_offered; // null: no bus, or not yet
};

} // namespace vypx
