#pragma once

#include <QScrollArea>

namespace vypx {

/// The box around a ZoomView, in its back colour, which scrolls a view that is larger.
class ZoomFrame : public QScrollArea {
    Q_OBJECT

public:
    explicit ZoomFrame(QWidget* parent = nullptr);

    void SetBackColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_backColour = Qt::blue;
};

} // namespace vypx

using vypx::ZoomFrame; // generated code names it so
