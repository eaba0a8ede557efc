#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmNewIconset;
}

namespace vypx {

/// Asks for the Palm database name of a new iconset, 31 of the characters 32 to 126 at most. It
/// does not block the main form.
class frmNewIconset : public QDialog {
    Q_OBJECT

public:
    explicit frmNewIconset(QWidget* parent);
    ~frmNewIconset() override;

    void reject() override;

signals:
    /// The name was given; it may be empty.
    void Done(const QString& name);
    /// The window was left without a name.
    void GivenUp();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void cmdDoneName_Click();

    std::unique_ptr<Ui::frmNewIconset> m_ui;
    bool m_isDone = false;
};

} // namespace vypx
