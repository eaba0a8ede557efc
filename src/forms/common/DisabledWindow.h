#pragma once

#include <QPointer>
#include <QWidget>

namespace vypx {

/// A window that takes no input as long as this stands, and with it all that it holds, windows
/// whose parent it is among them. What is to be used meanwhile is enabled by itself, also when it
/// is made afterwards. Several may hold one window: it is enabled when the last of them has gone.
/// The focus goes back to where it was.
class DisabledWindow {
public:
    explicit DisabledWindow(QWidget& window);
    ~DisabledWindow();
    DisabledWindow(const DisabledWindow&) = delete;
    DisabledWindow& operator=(const DisabledWindow&) = delete;

private:
    QPointer<QWidget> m_window;
};

/// Keeps a window that belongs to another one from taking input, or lets it go; as long as the
/// other one is disabled it follows that one.
void HoldWindow(QWidget& window, bool on);

} // namespace vypx
