#include "forms/imaging/PictureBox.h"

#include <QPaintEvent>
#include <QPainter>

namespace vypx {

PictureBox::PictureBox(QWidget* parent)
    : QWidget(parent)
{
}

void PictureBox::SetBackColour(const QColor& colour)
{
    m_backColour = colour;
    update();
}

void PictureBox::SetPicture(const QImage& picture)
{
    m_picture = picture;
    update();
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), m_backColour);
    if (!m_picture.isNull())
        painter.drawImage(QPoint(0, 0), m_picture);
    if (hasFocus())
        PaintFocus();
}

/// Two lines, one of which is seen on any colour.
void PictureBox::PaintFocus()
{
    QPainter painter(this);
    painter.setPen(Qt::black);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(Qt::white);
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

} // namespace vypx
