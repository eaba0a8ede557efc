#pragma once

#include "forms/common/FileTaker.h"
#include "forms/desktop/BusCalls.h"
#include "forms/desktop/BusCopies.h"
#include "forms/desktop/DesktopCalls.h"
#include "forms/desktop/HandOver.h"

#include <QObject>
#include <QVariantList>
#include <functional>
#include <memory>

namespace vypx {

/// Offers the program on the session's bus. Without a bus nothing happens. Connecting waits for the
/// bus; one that hangs has held Qt's own menu bar by then.
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

    void TakeNames();
    void Ask(const QString& method, const QVariantList& arguments,
        const std::function<void(uint answer)>& done);

    std::unique_ptr<Offered> m_offered; // null: no bus
};

} // namespace vypx
