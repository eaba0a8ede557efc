#pragma once

#include "companion/Rgb.h"

#include <QImage>
#include <QWidget>
#include <optional>

namespace vypx {

/// A picture magnified, each of its pixels a square, on a back colour that its transparent pixels
/// show. A colour can be picked from it: under the pointer, or at a marked pixel that the arrow
/// keys move (Space or Enter picks). It is always the picture's own one.
class ZoomView : public QWidget {
    Q_OBJECT

public:
    explicit ZoomView(QWidget* parent = nullptr);

    /// The view takes the picture's size times `zoom`. A null picture leaves nothing of it.
    void SetPicture(const QImage& picture, int zoom);
    /// Pixels of exactly this colour are transparent; empty: none is.
    void SetTransparent(const std::optional<Rgb>& colour);
    void SetBackColour(const QColor& colour);
    /// Whether colours can be picked.
    void SetPicking(bool on);

signals:
    /// The pointer or the mark is at a pixel of this colour.
    void Sampled(const vypx::Rgb& colour);
    /// It is at none any more.
    void SampleLeft();
    void Picked(const vypx::Rgb& colour);
    /// The mark stands here now, in pixels of the view.
    void MarkMoved(const QRect& mark);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::optional<Rgb> ColourAt(const QPoint& pixel) const;
    QPoint PixelAt(const QMouseEvent& event) const;
    std::optional<Rgb> Sample(const QPoint& pixel);
    QRect MarkedSquare() const;
    void ShowMark(bool on);
    void MoveMark(const QPoint& by);

    QImage m_picture; // as stored
    QImage m_shown;   // its transparent pixels let through
    std::optional<Rgb> m_transparent;
    QColor m_backColour = Qt::blue;
    QPoint m_mark; // pixel of the picture
    int m_zoom = 2;
    bool m_isPicking = true;
    bool m_showsMark = false; // while the keys are used
};

} // namespace vypx

using vypx::ZoomView; // generated code names it so
