#pragma once

#include <QMdiSubWindow>

namespace vypx {

/// A small window beside the main form, above it in the frame's area. Goes when it is closed.
class SideForm : public QMdiSubWindow {
    Q_OBJECT

public:
    /// Whether the user can change its size. One that is fixed is as large as its contents.
    enum class Size { Fixed, Free };

signals:
    void Closed();

protected:
    explicit SideForm(Size size);

    /// Takes what the window shows, laid out and with its title. Once, in the constructor.
    void Hold(QWidget* contents, const QString& name);

    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    Size m_size;
};

} // namespace vypx
