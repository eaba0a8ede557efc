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
    setText(fontMetrics().elidedText(text, Qt::ElideMiddle, width()));
}

void CutLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    Show(m_whole);
}

} // namespace vypx
