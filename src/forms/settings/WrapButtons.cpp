#include "forms/settings/WrapButtons.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <type_traits>

namespace vypx {

namespace {

constexpr int WidestHint = 330, NarrowestHint = 160; // pixels
constexpr int Endless = 10000;                       // no caption is wider
constexpr int Margin = 2;
constexpr int Flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

template <typename Button>
constexpr bool IsOption = std::is_base_of_v<QRadioButton, Button>;

} // namespace

template <typename Button>
Wrapping<Button>::Wrapping(QWidget* parent)
    : Button(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    this->setSizePolicy(policy);
}

template <typename Button>
QSize Wrapping<Button>::IndicatorSize() const
{
    const QStyle& style = *this->style();
    constexpr bool Option = IsOption<Button>;
    return {
        style.pixelMetric(
            Option ? QStyle::PM_ExclusiveIndicatorWidth : QStyle::PM_IndicatorWidth, nullptr, this),
        style.pixelMetric(Option ? QStyle::PM_ExclusiveIndicatorHeight : QStyle::PM_IndicatorHeight,
            nullptr, this),
    };
}

template <typename Button>
int Wrapping<Button>::TextLeft() const
{
    return IndicatorSize().width()
        + this->style()->pixelMetric(
            IsOption<Button> ? QStyle::PM_RadioButtonLabelSpacing : QStyle::PM_CheckBoxLabelSpacing,
            nullptr, this);
}

template <typename Button>
QSize Wrapping<Button>::TextSize(int width) const
{
    const QRect room(0, 0, std::max(width, 1), Endless);
    return this->fontMetrics().boundingRect(room, Flags, this->text()).size();
}

template <typename Button>
int Wrapping<Button>::heightForWidth(int width) const
{
    const int text = TextSize(width - TextLeft() - Margin).height();
    return std::max(text, IndicatorSize().height()) + 2 * Margin;
}

template <typename Button>
QSize Wrapping<Button>::sizeHint() const
{
    const int whole = TextLeft() + TextSize(Endless).width() + 2 * Margin;
    const int width = std::min(whole, WidestHint);
    return { width, heightForWidth(width) };
}

template <typename Button>
QSize Wrapping<Button>::minimumSizeHint() const
{
    return { std::min(sizeHint().width(), NarrowestHint), heightForWidth(Endless) };
}

/// The mark and all lines of the caption.
template <typename Button>
bool Wrapping<Button>::hitButton(const QPoint& point) const
{
    const int text = TextSize(this->width() - TextLeft() - Margin).width();
    const QRect hit(0, 0, TextLeft() + text + Margin, this->height());
    return QStyle::visualRect(this->layoutDirection(), this->rect(), hit).contains(point);
}

template <typename Button>
void Wrapping<Button>::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    const QSize indicator = IndicatorSize();
    const QRect whole = this->rect();
    const int line = this->fontMetrics().height();
    const QRect text = whole.adjusted(TextLeft(), Margin, -Margin, -Margin);
    const bool isOneLine = text.height() < 2 * line;
    // Beside the first line, or in the middle where there is but one.
    const int top = isOneLine ? (whole.height() - indicator.height()) / 2
                              : text.top() + std::max((line - indicator.height()) / 2, 0);

    QStyleOptionButton mark = option;
    mark.rect = QStyle::visualRect(option.direction, whole, QRect(QPoint(0, top), indicator));
    this->style()->drawPrimitive(
        IsOption<Button> ? QStyle::PE_IndicatorRadioButton : QStyle::PE_IndicatorCheckBox, &mark,
        &painter, this);
    const QRect textRect = QStyle::visualRect(option.direction, whole, text);
    this->style()->drawItemText(&painter, textRect, Flags, option.palette,
        option.state & QStyle::State_Enabled, option.text, QPalette::WindowText);
    if (!(option.state & QStyle::State_HasFocus))
        return;
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(option);
    focus.rect = textRect;
    this->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

template class Wrapping<QCheckBox>;
template class Wrapping<QRadioButton>;

} // namespace vypx
