#pragma once

#include <QCheckBox>
#include <QRadioButton>

namespace vypx {

/// A check box or an option button whose caption takes as many lines as its width asks for.
template <typename Button>
class Wrapping : public Button {
public:
    explicit Wrapping(QWidget* parent = nullptr);

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& point) const override;

private:
    QSize IndicatorSize() const;
    int TextLeft() const;
    QSize TextSize(int width) const;
};

class WrapCheckBox : public Wrapping<QCheckBox> {
public:
    using Wrapping::Wrapping;
};

class WrapRadioButton : public Wrapping<QRadioButton> {
public:
    using Wrapping::Wrapping;
};

} // namespace vypx

using vypx::WrapCheckBox; // generated code names them so
using vypx::WrapRadioButton;
