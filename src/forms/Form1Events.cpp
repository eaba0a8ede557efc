#include "forms/Commands.h"
#include "forms/Form1.h"
#include "ui_Form1.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace vypx {

namespace {

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
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool IsEditor(const QObject& object)
{
    return qobject_cast<const QLineEdit*>(&object) || qobject_cast<const QTextEdit*>(&object)
        || qobject_cast<const QPlainTextEdit*>(&object)
        || qobject_cast<const QAbstractSpinBox*>(&object)
        || qobject_cast<const QComboBox*>(&object);
}

bool IsDrop(QEvent::Type type)
{
    return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

} // namespace

bool Form1::eventFilter(QObject* watched, QEvent* event)
{
    if (IsKeptOutByLoad(*event))
        return true;
    if (IsRemoveKey(*watched, *event)) {
        // A key that is held down must not flip the mark to and fro.
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat())
            RemoveSelected();
        return true;
    }
    if (event->type() == QEvent::Resize && (watched == m_panelLG.box || watched == m_panelSM.box))
        CentrePictures();
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (IsDrop(event->type()) && widget && (widget == this || isAncestorOf(widget))) {
        auto& drop = static_cast<QDropEvent&>(*event);
        if (!drop.mimeData()->hasUrls())
            return false;
        drop.acceptProposedAction();
        if (event->type() == QEvent::Drop)
            TakeDrop(*drop.mimeData());
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

/// While a file loads, nothing but a message that the load itself shows takes keys or clicks, and
/// nothing takes drops: a box keeps the windows behind it from keys and clicks only.
bool Form1::IsKeptOutByLoad(QEvent& event) const
{
    if (!m_loading || !IsUserInput(event.type()))
        return false;
    return IsDrop(event.type()) || !QApplication::activeModalWidget();
}

/// Plain R, with the form or something in it in focus that isn't written into.
bool Form1::IsRemoveKey(QObject& watched, QEvent& event) const
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<QKeyEvent&>(event);
    constexpr Qt::KeyboardModifiers Commands =
        Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if (key.key() != Qt::Key_R || (key.modifiers() & Commands) || IsEditor(watched))
        return false;
    const auto* const widget = qobject_cast<QWidget*>(&watched);
    const bool inForm = widget && (widget == this || isAncestorOf(widget));
    return inForm && CommandIsEnabled(m_frame, "cmdRemoveIcon");
}

void Form1::TakeDrop(const QMimeData&) { }

} // namespace vypx
