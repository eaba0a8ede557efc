#include "forms/imaging/ColourText.h"

#include <QFocusEvent>
#include <QRegularExpressionValidator>

namespace vypx {

ColourText::ColourText(QWidget* parent)
    : QLineEdit(parent)
{
    setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), this));
    setFixedWidth(fontMetrics().horizontalAdvance("8888") + 10);
    connect(this, &QLineEdit::returnPressed, this, &ColourText::Entered);
}

std::optional<int> ColourText::Value() const
{
    constexpr int LargestValue = 255;
    bool isNumber = false;
    const int value = text().toInt(&isNumber);
    if (!isNumber || value < 0 || value > LargestValue)
        return std::nullopt;
    return value;
}

void ColourText::SetValue(int value)
{
    const QString number = QString::number(value);
    if (text() != number)
        setText(number);
}

/// A menu or another window takes the focus only for a while.
void ColourText::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        emit Entered();
}

} // namespace vypx
