#pragma once

#include <QMdiSubWindow>

class QMenu;

namespace vypx {

/// A small window beside the main form, above it in the frame's area. Goes when it is closed. The
/// right button on its ground and the menu key show its menu.
class SideForm : public QMdiSubWindow {
    Q_OBJECT

public:
    /// Whether the user can change its size. One that is fixed is as large as its contents.
    enum class Size { Fixed, Free };

signals:
    void Closed();
    /// The entry of the window's menu.
    void ArrangeAsked();

protected:
    explicit SideForm(Size size);

    /// Takes what the window shows, laid out and with its title. Once, in the constructor.
    void Hold(QWidget* contents, const QString& name);

    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QMenu* MakeMenu();

    Size m_size;
    QMenu* m_menu; // of the window's ground
};

} // namespace vypx
