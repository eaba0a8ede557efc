#include "forms/imaging/CropBox.h"

#include "settings/Settings.h"

#include <QMouseEvent>
#include <QPainter>

namespace vypx {

namespace {

/// The rectangle itself: black around white, so that it is seen on any picture.
class RectangleFrame : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const bool hasFocus = parentWidget()->hasFocus();
        const QColor middle = hasFocus ? palette().color(QPalette::Highlight) : Qt::white;
        QRect line = rect().adjusted(0, 0, -1, -1);
        for (const QColor& colour : { QColor(Qt::black), middle, QColor(Qt::white) }) {
            if (!line.isValid())
                return;
            painter.setPen(colour);
            painter.drawRect(line);
            line.adjust(1, 1, -1, -1);
        }
    }
};

/// What transparent pixels show: squares of two greys.
void PaintSquares(QPainter& painter, const QRect& area)
{
    QPixmap squares(16, 16);
    squares.fill(QColor(236, 236, 236));
    QPainter pattern(&squares);
    pattern.fillRect(0, 0, 8, 8, QColor(200, 200, 200));
    pattern.fillRect(8, 8, 8, 8, QColor(200, 200, 200));
    pattern.end();
    painter.drawTiledPixmap(area, squares);
}

double Twips(double pixels) { return pixels * TwipsPerPixel; }

} // namespace

CropBox::CropBox(QWidget* parent)
    : QWidget(parent)
    , m_rectangle(new RectangleFrame(this))
{
    m_rectangle->setObjectName("CropRec");
    m_rectangle->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_rectangle->hide();
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu); // the right button drags
}

void CropBox::ShowPicture(const QImage& picture, const QPoint& corner, const QSize& view)
{
    m_picture = picture;
    m_corner = corner;
    setFixedSize(view);
    update();
}

void CropBox::Clear()
{
    m_picture = {};
    SetGeometryToDrag(nullptr);
    update();
}

void CropBox::SetBorderColour(const QColor& colour)
{
    m_border = colour;
    update();
}

void CropBox::SetGeometryToDrag(CropGeometry* geometry)
{
    m_geometry = geometry;
    m_rectangle->setVisible(geometry);
    setCursor(geometry ? Qt::SizeAllCursor : Qt::ArrowCursor);
    ShowRectangle();
}

void CropBox::ShowRectangle()
{
    if (!m_geometry)
        return;
    const PixelRegion region = ViewPixels(m_geometry->Rectangle());
    m_rectangle->setGeometry(region.left, region.top, region.width, region.height);
}

void CropBox::mousePressEvent(QMouseEvent* event)
{
    if (m_geometry)
        m_geometry->Press(Twips(event->position().x()), Twips(event->position().y()));
}

void CropBox::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_geometry)
        return;
    const QPointF at = event->position();
    if (event->buttons() & Qt::LeftButton)
        m_geometry->LeftDrag(Twips(at.x()), Twips(at.y()));
    else if (event->buttons() & Qt::RightButton)
        m_geometry->RightDrag(Twips(at.y()));
    else
        return;
    // A view that scrolls goes along with the mouse, not with the rectangle, which may be larger.
    ShowRectangle();
    emit RectangleChanged({ at.toPoint(), QSize(1, 1) });
}

void CropBox::keyPressEvent(QKeyEvent* event)
{
    if (!m_geometry || !TakeKey(*event)) {
        QWidget::keyPressEvent(event);
        return;
    }
    ShowRectangle();
    emit RectangleChanged(m_rectangle->geometry());
}

/// Arrows move by a pixel, with Shift by ten; plus and minus resize by one.
bool CropBox::TakeKey(const QKeyEvent& event)
{
    constexpr int FastSteps = 10;
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    const double step = Twips(event.modifiers() & Qt::ShiftModifier ? FastSteps : 1);
    switch (event.key()) {
    case Qt::Key_Left:
        m_geometry->MoveBy(-step, 0);
        return true;
    case Qt::Key_Right:
        m_geometry->MoveBy(step, 0);
        return true;
    case Qt::Key_Up:
        m_geometry->MoveBy(0, -step);
        return true;
    case Qt::Key_Down:
        m_geometry->MoveBy(0, step);
        return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without Shift on many keyboards
        m_geometry->ResizeBy(Twips(1));
        return true;
    case Qt::Key_Minus:
        m_geometry->ResizeBy(-Twips(1));
        return true;
    default:
        return false;
    }
}

void CropBox::focusInEvent(QFocusEvent*) { m_rectangle->update(); }

void CropBox::focusOutEvent(QFocusEvent*) { m_rectangle->update(); }

void CropBox::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), m_border);
    if (m_picture.isNull())
        return;
    const QRect place(m_corner, m_picture.size());
    if (m_picture.hasAlphaChannel())
        PaintSquares(painter, place);
    painter.drawImage(place.topLeft(), m_picture);
}

} // namespace vypx
