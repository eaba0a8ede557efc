#pragma once

#include "imaging/CropGeometry.h"

#include <QImage>
#include <QWidget>

namespace vypx {

/// The view of the crop window: a picture on the border's colour, and over it the rectangle, which
/// mouse and keys move and resize.
class CropBox : public QWidget {
    Q_OBJECT

public:
    explicit CropBox(QWidget* parent = nullptr);

    /// Shows the picture with its top left corner there in a view of that size, pixels.
    void ShowPicture(const QImage& picture, const QPoint& corner, const QSize& view);
    /// Nothing is shown, and there is no rectangle.
    void Clear();
    void SetBorderColour(const QColor& colour);
    /// What the mouse moves; null: there is no rectangle. It outlives the box or is taken away.
    void SetGeometryToDrag(CropGeometry* geometry);
    /// The rectangle has another place or size.
    void ShowRectangle();

    QSize sizeHint() const override { return size(); }

signals:
    /// The user moved or resized the rectangle; `reached` is to be kept in sight.
    void RectangleChanged(const QRect& reached);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool TakeKey(const QKeyEvent& event);

    QImage m_picture;
    QPoint m_corner;
    QColor m_border = Qt::white;
    CropGeometry* m_geometry = nullptr;
    QWidget* m_rectangle; // CropRec
};

} // namespace vypx

using vypx::CropBox; // generated code names it so
