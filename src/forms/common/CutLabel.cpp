#include "forms/common/CutLabel.h"

namespace vypx {

CutLabel::CutLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void CutLabel::Show(const QString& text)
{
    m_whole = text;
    for (QChar& letter : m_whole)
        if (letter < QChar(' ')) // a line break in a file's name would make a second line
            letter = ' ';
    setText(fontMetrics().elidedText(m_whole, Qt::ElideMiddle, width()));
}

void CutLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    Show(m_whole);
}

} // namespace vypx
