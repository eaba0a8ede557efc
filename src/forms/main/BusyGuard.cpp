#include "forms/main/BusyGuard.h"

#include "forms/common/HeldKeys.h"

#include <QApplication>
#include <QEvent>
#include <utility>

namespace vypx {

namespace {

bool IsDrop(QEvent::Type type)
{
    return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

bool IsUserInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
        return true;
    default:
        return IsDrop(type);
    }
}

} // namespace

void BusyGuard::Run(const std::function<void()>& work)
{
    if (m_depth++ == 0) {
        HeldKeys::OfProgram();          // no filter may be made while the filters are asked
        qApp->installEventFilter(this); // the last one is asked before all others
    }
    try {
        work();
    } catch (...) {
        End();
        throw;
    }
    End();
}

void BusyGuard::End()
{
    if (--m_depth > 0)
        return;
    qApp->removeEventFilter(this);
    emit Ended();
    if (const auto act = std::exchange(m_whenIdle, {}))
        act();
}

void BusyGuard::WhenIdle(std::function<void()> act)
{
    if (IsBusy())
        m_whenIdle = std::move(act);
    else
        act();
}

bool BusyGuard::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    HeldKeys::OfProgram().See(*event);
    return IsBusy() && IsUserInput(type) && (IsDrop(type) || !QApplication::activeModalWidget());
}

} // namespace vypx
