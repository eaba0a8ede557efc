#pragma once

#include "forms/greeting/FrontForm.h"

namespace Ui {
class frmSplash;
}

namespace vypx {

/// What a start shows first. Any key but a modifier ends it, and so does a click anywhere but on a
/// check box. Its boxes set StartupSearch and ShowSplash at once.
class frmSplash : public FrontForm {
    Q_OBJECT

public:
    explicit frmSplash(QWidget& form);
    ~frmSplash() override;

    /// F1 ended it.
    bool AsksForHelp() const { return m_asksForHelp; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab is a key like any other
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::frmSplash> m_ui;
    bool m_asksForHelp = false;
};

} // namespace vypx
