#pragma once

#include "forms/common/Ask.h"

#include <QDialog>
#include <memory>

namespace Ui {
class frmAddAppManual;
}

namespace vypx {

/// The window in which an application is typed in. It does not block the others.
class frmAddAppManual : public QDialog {
    Q_OBJECT

public:
    frmAddAppManual(Ask& ask, QWidget& form);
    ~frmAddAppManual() override;

    /// Amid a search nothing is added here.
    void ShowSearching(bool on);

signals:
    /// The catalog's file may have one more entry: it is to be read.
    void Added();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void cmdAppApply_Click();

    std::unique_ptr<Ui::frmAddAppManual> m_ui;
    Ask& m_ask;
};

} // namespace vypx
