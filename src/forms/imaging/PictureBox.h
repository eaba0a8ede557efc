#pragma once

#include <QImage>
#include <QWidget>

namespace vypx {

/// A box with a back colour and a picture at its top left corner, one pixel of the screen for each
/// of the picture (at a scale of 2 both grow alike). Pixels of the picture that are transparent
/// show the back colour. One that can have the keyboard's focus shows it at its edge.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    void SetBackColour(const QColor& colour);
    QColor BackColour() const { return m_backColour; }

    /// A null picture clears the box.
    void SetPicture(const QImage& picture);
    const QImage& Picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintFocus();

    QColor m_backColour = Qt::blue;
    QImage m_picture;
};

} // namespace vypx

using vypx::PictureBox; // generated code names it so
