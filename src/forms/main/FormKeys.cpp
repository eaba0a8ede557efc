#include "forms/main/FormKeys.h"

#include "forms/common/Editors.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace vypx {

namespace {

constexpr Qt::KeyboardModifiers CommandModifiers =
    Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

} // namespace

FormKeys::FormKeys(QWidget& form, QWidget& tree, std::function<void()> remove)
    : m_form(form)
    , m_tree(tree)
    , m_remove(std::move(remove))
{
    qApp->installEventFilter(this);
}

bool FormKeys::IsInUsableForm(const QObject& object) const
{
    const auto* const widget = qobject_cast<const QWidget*>(&object);
    return widget && m_form.isEnabled() && (widget == &m_form || m_form.isAncestorOf(widget));
}

bool FormKeys::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // comes before every press
        m_isRepeat = m_held.IsRepeat(static_cast<QKeyEvent&>(*event));
        return false;
    case QEvent::Shortcut:
        return !static_cast<QShortcutEvent*>(event)->isAmbiguous() && TakesMnemonic(*watched);
    case QEvent::KeyPress:
        return IsInUsableForm(*watched) && !IsEditor(*watched)
            && TakesRemoveKey(*watched, static_cast<QKeyEvent&>(*event));
    default:
        return false;
    }
}

/// By itself a button would wait for a tenth of a second, and meanwhile another icon could be
/// selected.
bool FormKeys::TakesMnemonic(QObject& watched)
{
    auto* const button = qobject_cast<QAbstractButton*>(&watched);
    if (!button || !IsInUsableForm(watched))
        return false;
    if (!std::exchange(m_isRepeat, false))
        button->click();
    return true;
}

bool FormKeys::TakesRemoveKey(QObject& watched, const QKeyEvent& press)
{
    if (press.modifiers() & CommandModifiers)
        return false;
    const bool isTyped = !press.text().isEmpty() && press.text()[0].isPrint();
    const bool isR = press.key() == Qt::Key_R;
    if (&watched == &m_tree && isTyped) {
        const bool searches = m_sinceLetter.isValid()
            && !m_sinceLetter.hasExpired(QApplication::keyboardInputInterval());
        if (!isR || searches) {
            m_sinceLetter.start();
            return false;
        }
    }
    if (isR && !m_held.IsRepeat(press))
        m_remove();
    return isR;
}

} // namespace vypx
