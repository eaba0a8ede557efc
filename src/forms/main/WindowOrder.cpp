#include "forms/main/WindowOrder.h"

#include "forms/common/SideForm.h"
#include "settings/Settings.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

namespace vypx {

namespace {

/// The nearest place at which a window lies within an area, or begins there if it is larger.
QPoint Within(const QRect& area, const QRect& window)
{
    const auto nearest = [](int at, int size, int from, int room) {
        return std::clamp(at, from, from + std::max(0, room - size));
    };
    return { nearest(window.x(), window.width(), area.x(), area.width()),
        nearest(window.y(), window.height(), area.y(), area.height()) };
}

constexpr int TitleBar = 40; // pixels, at most as a rule

/// Where a window is moved: nowhere, unless less than half of it would be in view either way.
QPoint IntoView(const QRect& area, const QRect& window)
{
    const QRect seen = area & window;
    const bool isInView =
        2 * seen.width() >= window.width() && 2 * seen.height() >= window.height();
    return isInView ? window.topLeft() : Within(area, window);
}

} // namespace

WindowOrder::WindowOrder(QWidget& frame, QWidget& form, Commands& commands, SideWindows& sides)
    : m_frame(frame)
    , m_form(form)
    , m_sides(sides)
{
    commands.Connect(Command::ArrangeWindows, this, [this] { ArrangeWindows(); });
    connect(&sides, &SideWindows::ArrangeAsked, this, &WindowOrder::ArrangeWindows);
}

void WindowOrder::ArrangeWindows()
{
    auto& child = *static_cast<QMdiSubWindow*>(m_form.parentWidget());
    QMdiArea& area = *child.mdiArea();
    for (QScrollBar* bar : { area.horizontalScrollBar(), area.verticalScrollBar() })
        bar->setValue(0);
    child.move(0, 0);
    if (!m_frame.isMaximized() && !m_frame.isFullScreen())
        FitFrame();
    // Without scroll bars, which come and go while windows are moved.
    const QRect view(QPoint(), area.maximumViewportSize());
    QPoint place(child.width(), 0);
    for (SideForm* side : m_sides.Column()) {
        if (side->windowState() & (Qt::WindowMinimized | Qt::WindowMaximized))
            side->showNormal();
        side->move(IntoView(view, QRect(place, side->size())));
        place.ry() += side->height();
    }
}

/// By what the main form's contents need: its own height is the frame's.
void WindowOrder::FitFrame()
{
    const auto& child = *static_cast<QMdiSubWindow*>(m_form.parentWidget());
    const ArrangedFrame twips = ArrangeFrame(
        child.width() * TwipsPerPixel, child.sizeHint().height() * TwipsPerPixel, m_sides.Widths());
    const QRect screen = m_frame.screen()->availableGeometry();
    // Some window managers put borders on a window only after it was shown: then room is left for
    // them.
    const QSize borders = (m_frame.frameSize() - m_frame.size()).expandedTo({ 0, TitleBar });
    const QSize size = QSize(PixelsFromTwips(twips.width), PixelsFromTwips(twips.height))
                           .boundedTo(screen.size() - borders);
    m_frame.resize(size);
    const QPoint place = Within(screen, { m_frame.pos(), size + borders });
    if (place != m_frame.pos())
        m_frame.move(place);
}

} // namespace vypx
