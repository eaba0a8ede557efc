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
}

} // namespace vypx
