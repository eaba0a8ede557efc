#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmSystemInfo;
}

namespace vypx {

/// "System Information": a text to read and to copy into a report.
class frmSystemInfo : public QDialog {
    Q_OBJECT

public:
    explicit frmSystemInfo(QWidget* parent);
    ~frmSystemInfo() override;

    void ShowText(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void cmdCopy_Click();

    std::unique_ptr<Ui::frmSystemInfo> m_ui;
};

} // namespace vypx
