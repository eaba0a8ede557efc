#include "forms/common/DisabledWindow.h"

#include <QVariant>

namespace vypx {

namespace {

constexpr const char* Holders = "vypxHolders"; // how many hold the window

int Count(QWidget& window, int more)
{
    const int count = window.property(Holders).toInt() + more;
    window.setProperty(Holders, count);
    return count;
}

} // namespace

DisabledWindow::DisabledWindow(QWidget& window)
    : m_window(&window)
    , m_focus(window.focusWidget())
{
    Count(window, 1);
    window.setEnabled(false);
}

DisabledWindow::~DisabledWindow()
{
    if (!m_window || Count(*m_window, -1) > 0)
        return;
    m_window->setEnabled(true);
    if (m_focus && m_focus->isVisible())
        m_focus->setFocus();
}

} // namespace vypx
