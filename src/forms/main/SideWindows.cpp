#include "forms/main/SideWindows.h"

#include "document/Document.h"
#include "forms/imaging/frmPreviewOpt.h"
#include "settings/Settings.h"

#include <QMdiArea>
#include <QScrollBar>
#include <algorithm>

namespace vypx {

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

} // namespace

SideWindows::SideWindows(QWidget& form, const Panels& panels, Commands& commands)
    : m_form(form)
    , m_panels(panels)
    , m_commands(commands)
{
    commands.Connect(Command::ShowPreviewOptions, this, [this] { mnuShowPrevOpt_Click(); });
}

void SideWindows::ShowByOption()
{
    if (PreviewWinVisible)
        ShowPreview({ PixelsFromTwips(PreviewWinX), PixelsFromTwips(PreviewWinY) });
}

void SideWindows::mnuShowPrevOpt_Click()
{
    if (m_preview) {
        m_preview->close();
        return;
    }
    // On purpose: a colour that is not to be remembered goes with its window, and one that is goes
    // back to what the program began with.
    ChoosePreviewColour();
    ShowPreview(m_previewPlace.value_or(
        QPoint(PixelsFromTwips(PreviewWinX), PixelsFromTwips(PreviewWinY))));
    PaintPanels();
}

void SideWindows::ShowPreview(const QPoint& place)
{
    QMdiArea& area = *static_cast<QMdiSubWindow*>(m_form.parentWidget())->mdiArea();
    m_preview = new frmPreviewOpt;
    connect(m_preview, &frmPreviewOpt::ColourChosen, this, [this] { PaintPanels(); });
    connect(m_preview, &frmPreviewOpt::TransparencyChosen, this, [this] { DrawPanels(); });
    connect(m_preview, &frmPreviewOpt::Closed, this, [this] { PreviewClosed(); });
    m_preview->setWindowIcon(m_form.parentWidget()->windowIcon());
    area.addSubWindow(m_preview);
    m_preview->show();
    m_preview->move(InReach(place, m_preview->size(), area.viewport()->size()) - Scrolled(area));
    m_commands.Entry(Command::ShowPreviewOptions)->setChecked(true);
}

void SideWindows::PreviewClosed()
{
    const SideWindow stood = Preview();
    m_previewPlace = QPoint(PixelsFromTwips(stood.left), PixelsFromTwips(stood.top));
    m_preview = nullptr;
    m_commands.Entry(Command::ShowPreviewOptions)->setChecked(false);
}

SideWindow SideWindows::Preview() const
{
    if (!m_preview)
        return {};
    const QPoint place = m_preview->pos() + Scrolled(*m_preview->mdiArea());
    return {
        .isLoaded = true, .left = place.x() * TwipsPerPixel, .top = place.y() * TwipsPerPixel
    };
}

void SideWindows::PaintPanels()
{
    for (ImagePanel* panel : m_panels)
        panel->SetBackColour(QColor(R, G, B));
    DrawPanels();
}

void SideWindows::DrawPanels()
{
    for (ImagePanel* panel : m_panels)
        panel->Draw();
}

void ChoosePreviewColour()
{
    R = RememberPreviewColor ? Rsave : 0;
    G = RememberPreviewColor ? Gsave : 0;
    B = RememberPreviewColor ? Bsave : 255;
}

} // namespace vypx
