#pragma once

#include "forms/common/DisabledWindow.h"

#include <QDialog>
#include <memory>

namespace vypx {

/// A window that the main one waits for: that one is disabled from its beginning until it closes,
/// whatever way. It goes when it is closed. An Enter, Escape or space bar that was held down before
/// does nothing in it.
class FrontForm : public QDialog {
    Q_OBJECT

public:
    void done(int result) override;

protected:
    /// `form` belongs to the window that is disabled.
    explicit FrontForm(QWidget& form);

    /// Once, in the constructor, as soon as the controls are there.
    void TakeControls();

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<DisabledWindow> m_disabled;
};

} // namespace vypx
