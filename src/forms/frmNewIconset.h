#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmNewIconset;
}

namespace vypx {

/// Asks for the Palm database name of a new iconset, 31 characters of Latin-1 at most. It does not
/// block the main form.
class frmNewIconset : public QDialog {
    Q_OBJECT

public:
    explicit frmNewIconset(QWidget* parent);
    ~frmNewIconset() override;

signals:
    /// The name was given; it may be empty.
    void Done(const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void cmdDoneName_Click();

    std::unique_ptr<Ui::frmNewIconset> m_ui;
};

} // namespace vypx
