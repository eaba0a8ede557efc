#include "forms/common/HeldKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPointer>

namespace vypx {

bool IsEnter(const QKeyEvent& press)
{
    return press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
}

void HeldKey::Released(const QKeyEvent& release)
{
    m_key = release.key();
    m_released = release.timestamp();
}

bool HeldKey::IsRepeat(const QKeyEvent& press) const
{
    constexpr quint64 SameMoment = 2; // milliseconds
    const bool isKnown = m_released != 0 && press.key() == m_key;
    return press.isAutoRepeat() || (isKnown && press.timestamp() - m_released <= SameMoment);
}

HeldKeys& HeldKeys::OfProgram()
{
    static QPointer<HeldKeys> ofProgram;
    if (!ofProgram)
        ofProgram = new HeldKeys;
    return *ofProgram;
}

HeldKeys::HeldKeys()
    : QObject(qApp)
{
    qApp->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject*, QEvent* event)
{
    See(*event);
    return false;
}

void HeldKeys::See(const QEvent& event)
{
    if (event.type() == QEvent::KeyRelease)
        m_held.Released(static_cast<const QKeyEvent&>(event));
    if (event.type() == QEvent::ShortcutOverride) // comes before every press
        m_isLastRepeat = IsRepeat(static_cast<const QKeyEvent&>(event));
}

bool HeldKeys::IsHeldEnd(const QKeyEvent& press) const
{
    const int key = press.key();
    return (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape)
        && IsRepeat(press);
}

} // namespace vypx
