#include "forms/main/SideWindows.h"

#include "forms/common/SideForm.h"
#include "settings/Settings.h"

#include <QMdiArea>
#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace vypx {

/// A window: its entry of the View menu, its settings (places in twips), how it is made, and what
/// the entry does besides showing it.
struct SideWindows::Row {
    Command entry;
    const bool& visible;
    const int &left, &top;
    std::optional<SideWindow> WindowsToSave::*place;
    std::optional<int> SideWidths::*width;
    SideForm* (SideContents::*make)();
    void (SideContents::*prepare)();
};

/// In the order in which they are shown at the start.
const std::vector<SideWindows::Row>& SideWindows::Rows()
{
    static const std::vector<Row> rows{
        { Command::ShowShared, ShareWinVisible, ShareWinX, ShareWinY, &WindowsToSave::shares,
            &SideWidths::shares, &SideContents::MakeShares, &SideContents::CountAnew },
        { Command::ShowPreviewOptions, PreviewWinVisible, PreviewWinX, PreviewWinY,
            &WindowsToSave::preview, &SideWidths::preview, &SideContents::MakePreview,
            &SideContents::TakeSavedColour },
        { Command::ShowIconStats, StatWinVisible, StatWinX, StatWinY, &WindowsToSave::stats,
            &SideWidths::stats, &SideContents::MakeStats, &SideContents::CountAnew },
    };
    return rows;
}

namespace {

/// How far the area is scrolled; places are kept without it.
QPoint Scrolled(const QMdiArea& area)
{
    return { area.horizontalScrollBar()->value(), area.verticalScrollBar()->value() };
}

/// The nearest place at which a window's title can be reached with the mouse.
QPoint InReach(const QPoint& place, const QSize& window, const QSize& area)
{
    constexpr int Title = 24; // pixels
    return { std::clamp(place.x(), Title - window.width(), std::max(0, area.width() - Title)),
        std::clamp(place.y(), 0, std::max(0, area.height() - Title)) };
}

QPoint PlaceOf(const SideForm& window) { return window.pos() + Scrolled(*window.mdiArea()); }

} // namespace

SideWindows::SideWindows(QWidget& form, Commands& commands, SideContents& contents)
    : m_form(form)
    , m_commands(commands)
    , m_contents(contents)
{
    for (const Row& row : Rows())
        m_sides.push_back({ .row = row });
    for (Side& side : m_sides)
        commands.Connect(side.row.entry, this, [this, &side] { Toggle(side); });
}

void SideWindows::ShowByOption()
{
    for (Side& side : m_sides)
        if (side.row.visible)
            Show(side);
}

void SideWindows::Toggle(Side& side)
{
    if (side.window) {
        side.window->close();
        return;
    }
    (m_contents.*side.row.prepare)();
    Show(side);
}

/// Where it was closed, else where the settings say.
void SideWindows::Show(Side& side)
{
    auto& child = *static_cast<QMdiSubWindow*>(m_form.parentWidget());
    QMdiArea& area = *child.mdiArea();
    SideForm& window = *(m_contents.*side.row.make)();
    side.window = &window;
    connect(&window, &SideForm::Closed, this, [this, &side] { WasClosed(side); });
    connect(&window, &SideForm::ArrangeAsked, this, &SideWindows::ArrangeAsked);
    window.setWindowIcon(child.windowIcon());
    area.addSubWindow(&window);
    window.show();
    QPoint place(PixelsFromTwips(side.row.left), PixelsFromTwips(side.row.top));
    if (side.stood) {
        place = side.stood->topLeft();
        window.resize(side.stood->size());
    }
    window.move(InReach(place, window.size(), area.viewport()->size()) - Scrolled(area));
    m_commands.Entry(side.row.entry)->setChecked(true);
}

void SideWindows::WasClosed(Side& side)
{
    const SideForm& window = *std::exchange(side.window, nullptr);
    side.stood = QRect(PlaceOf(window), window.size());
    m_commands.Entry(side.row.entry)->setChecked(false);
}

const SideWindows::Side& SideWindows::Of(Command entry) const
{
    return *std::find_if(m_sides.begin(), m_sides.end(),
        [entry](const Side& side) { return side.row.entry == entry; });
}

std::vector<SideForm*> SideWindows::Column() const
{
    std::vector<SideForm*> column;
    for (const Command entry :
        { Command::ShowPreviewOptions, Command::ShowIconStats, Command::ShowShared })
        if (SideForm* const window = Of(entry).window)
            column.push_back(window);
    return column;
}

SideWidths SideWindows::Widths() const
{
    SideWidths widths;
    for (const Side& side : m_sides)
        if (side.window)
            widths.*side.row.width = side.window->width() * TwipsPerPixel;
    return widths;
}

void SideWindows::TellPlaces(WindowsToSave& windows) const
{
    for (const Side& side : m_sides) {
        SideWindow place;
        if (side.window) {
            const QPoint corner = PlaceOf(*side.window);
            place = { .isLoaded = true,
                .left = corner.x() * TwipsPerPixel,
                .top = corner.y() * TwipsPerPixel };
        }
        windows.*side.row.place = place;
    }
}

} // namespace vypx
