#include "forms/common/DisabledWindow.h"

#include <QVariant>

namespace vypx {

namespace {

constexpr const char* Holders = "vypxHolders"; // how many hold the window
constexpr const char* Focus = "vypxFocus";     // what had the focus in it before the first

int Count(QWidget& window, int more)
{
    const int count = window.property(Holders).toInt() + more;
    window.setProperty(Holders, count);
    return count;
}

} // namespace

void HoldWindow(QWidget& window, bool on)
{
    if (on || window.parentWidget()->isEnabled())
        window.setEnabled(!on);
    else
        window.setAttribute(Qt::WA_ForceDisabled, false);
}

DisabledWindow::DisabledWindow(QWidget& window)
    : m_window(&window)
{
    if (Count(window, 1) == 1)
        window.setProperty(Focus, QVariant::fromValue(QPointer<QObject>(window.focusWidget())));
    window.setEnabled(false);
}

DisabledWindow::~DisabledWindow()
{
    if (!m_window || Count(*m_window, -1) > 0)
        return;
    m_window->setEnabled(true);
    auto* const focus =
        qobject_cast<QWidget*>(m_window->property(Focus).value<QPointer<QObject>>().data());
    if (focus && focus->isVisible())
        focus->setFocus();
}

} // namespace vypx
