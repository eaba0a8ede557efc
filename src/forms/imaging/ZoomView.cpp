#include "forms/imaging/ZoomView.h"

#include "forms/imaging/Eyedropper.h"
#include "forms/imaging/PictureFile.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace vypx {

namespace {

/// What an arrow key moves by.
std::optional<QPoint> StepOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPoint(-1, 0);
    case Qt::Key_Right:
        return QPoint(1, 0);
    case Qt::Key_Up:
        return QPoint(0, -1);
    case Qt::Key_Down:
        return QPoint(0, 1);
    default:
        return std::nullopt;
    }
}

} // namespace

ZoomView::ZoomView(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    SetPicking(true);
}

void ZoomView::SetPicture(const QImage& picture, int zoom)
{
    m_picture = picture.convertToFormat(QImage::Format_RGB32);
    m_zoom = zoom;
    m_mark = { std::clamp(m_mark.x(), 0, std::max(0, picture.width() - 1)),
        std::clamp(m_mark.y(), 0, std::max(0, picture.height() - 1)) };
    resize(m_picture.size() * zoom);
    SetTransparent(m_transparent);
}

void ZoomView::SetTransparent(const std::optional<Rgb>& colour)
{
    m_transparent = colour;
    m_shown = colour ? Masked(m_picture, *colour) : m_picture;
    update();
}

void ZoomView::SetBackColour(const QColor& colour)
{
    m_backColour = colour;
    update();
}

void ZoomView::SetPicking(bool on)
{
    m_isPicking = on;
    setCursor(on ? Eyedropper() : QCursor(Qt::ArrowCursor));
    setFocusPolicy(on ? Qt::StrongFocus : Qt::NoFocus);
    if (!on)
        ShowMark(false);
}

/// Nothing outside of the picture.
std::optional<Rgb> ZoomView::ColourAt(const QPoint& pixel) const
{
    if (!m_picture.valid(pixel))
        return std::nullopt;
    const QRgb colour = m_picture.pixel(pixel);
    return Rgb{ qRed(colour), qGreen(colour), qBlue(colour) };
}

std::optional<Rgb> ZoomView::Sample(const QPoint& pixel)
{
    const std::optional<Rgb> colour = m_isPicking ? ColourAt(pixel) : std::nullopt;
    if (colour)
        emit Sampled(*colour);
    else
        emit SampleLeft();
    return colour;
}

/// Only the pixels that are asked for: a large picture is larger than its frame.
void ZoomView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), m_backColour);
    const QRect asked = event->rect();
    const QRect pixels(QPoint(asked.left() / m_zoom, asked.top() / m_zoom),
        QPoint(asked.right() / m_zoom, asked.bottom() / m_zoom));
    painter.drawImage(QRect(pixels.topLeft() * m_zoom, pixels.size() * m_zoom), m_shown, pixels);
    if (m_showsMark) {
        const QRect square = MarkedSquare();
        painter.setPen(Qt::black);
        const QRect whole = rect().adjusted(0, 0, -1, -1); // at the edges the frame lies inside
        painter.drawRect(square.adjusted(-2, -2, 1, 1).intersected(whole));
        painter.setPen(Qt::white);
        painter.drawRect(square.adjusted(-1, -1, 0, 0).intersected(whole.adjusted(1, 1, -1, -1)));
    }
}

QRect ZoomView::MarkedSquare() const { return { m_mark * m_zoom, QSize(m_zoom, m_zoom) }; }

/// The pixel of the picture under the pointer, which may lie outside.
QPoint ZoomView::PixelAt(const QMouseEvent& event) const
{
    const QPointF place = event.position() / m_zoom;
    return { static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y())) };
}

void ZoomView::mouseMoveEvent(QMouseEvent* event)
{
    ShowMark(false);
    Sample(PixelAt(*event));
}

void ZoomView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint pixel = PixelAt(*event);
    ShowMark(false);
    if (const std::optional<Rgb> colour = Sample(pixel)) {
        m_mark = pixel;
        emit Picked(*colour);
    }
}

/// The mark's sample stays.
void ZoomView::leaveEvent(QEvent*)
{
    if (!m_showsMark)
        emit SampleLeft();
}

/// Not when the window comes to the front again: who used the mouse wants no mark.
void ZoomView::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason)
        ShowMark(true);
}

void ZoomView::focusOutEvent(QFocusEvent*)
{
    ShowMark(false);
    emit SampleLeft();
}

void ZoomView::keyPressEvent(QKeyEvent* event)
{
    const std::optional<QPoint> step = StepOf(event->key());
    const bool picks = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return
        || event->key() == Qt::Key_Enter;
    const bool isCommand =
        event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (!m_isPicking || isCommand || (!step && !picks)) {
        QWidget::keyPressEvent(event);
        return;
    }
    ShowMark(true);
    if (step)
        MoveMark(*step);
    else if (const std::optional<Rgb> colour = ColourAt(m_mark); colour && !event->isAutoRepeat())
        emit Picked(*colour);
}

void ZoomView::ShowMark(bool on)
{
    if (m_showsMark == on)
        return;
    m_showsMark = on && !m_picture.isNull();
    if (m_showsMark)
        MoveMark({});
    update();
}

void ZoomView::MoveMark(const QPoint& by)
{
    if (!m_picture.valid(m_mark + by))
        return;
    m_mark += by;
    Sample(m_mark);
    emit MarkMoved(MarkedSquare());
    update();
}

} // namespace vypx
