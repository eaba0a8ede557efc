#include "forms/imaging/ZoomFrame.h"

#include <QPaintEvent>
#include <QPainter>

namespace vypx {

ZoomFrame::ZoomFrame(QWidget* parent)
    : QScrollArea(parent)
{
}

void ZoomFrame::SetBackColour(const QColor& colour)
{
    m_backColour = colour;
    viewport()->update();
}

/// By hand: a palette would be lost under the window's style sheet.
void ZoomFrame::paintEvent(QPaintEvent* event)
{
    QPainter(viewport()).fillRect(event->rect(), m_backColour);
}

} // namespace vypx
