#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/Form1.h"
#include "forms/Text.h"
#include "platform/Platform.h"
#include "ui_Form1.h"

namespace vypx {

namespace {

/// Width and height fields of a BMP file as a text; empty for a file that is too short for them.
QString SizeText(const std::string& path)
{
    constexpr std::size_t WidthOffset = 18, HeightOffset = 22;
    const auto file = platform::ReadWholeFile(path);
    if (!file || file->size() < HeightOffset + 4)
        return {};
    const auto number = [&](std::size_t offset) {
        const std::uint8_t* const byte = file->data() + offset;
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(byte[0])
            | static_cast<std::uint32_t>(byte[1]) << 8 | static_cast<std::uint32_t>(byte[2]) << 16
            | static_cast<std::uint32_t>(byte[3]) << 24);
    };
    return QString("%1 x %2 pixels").arg(number(WidthOffset)).arg(number(HeightOffset));
}

/// The picture with every pixel of exactly the mask's colour let through.
QImage Masked(const QImage& picture, Rgb mask)
{
    QImage masked = picture.convertToFormat(QImage::Format_ARGB32);
    const QRgb hole = ScreenColour(mask).rgb();
    for (int y = 0; y < masked.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(masked.scanLine(y));
        for (int x = 0; x < masked.width(); ++x)
            if ((row[x] | 0xFF000000u) == hole)
                row[x] = 0;
    }
    return masked;
}

/// Of the bitmaps with that path the last one says whether it declares a transparent colour.
bool DeclaresTransparent(const std::string& path)
{
    bool declares = false;
    for (const BitmapEntry& bitmap : BitmapTable)
        if (!bitmap.file.empty() && bitmap.hasTransparent && WorkPath(bitmap.file) == path)
            declares = *bitmap.hasTransparent == 1;
    return declares;
}

} // namespace

void Form1::DrawLG() { DrawSlot(m_panelLG); }

void Form1::DrawSM() { DrawSlot(m_panelSM); }

void Form1::DrawSlot(Panel& panel)
{
    const Slot& slot = *panel.slot;
    slot.hasTransparent = false;
    panel.size->clear();
    if (!slot.loaded || slot.path.empty() || !FileExists(slot.path))
        return;
    panel.size->setText(SizeText(slot.path));
    slot.hasTransparent = DeclaresTransparent(slot.path);
    ClearPicture(panel);

    const QImage picture(ShownPath(slot.path));
    m_ui->ImageBUF->SetPicture(picture);
    panel.picture->resize(picture.size());
    // On purpose: two separate halvings, which may put the picture one pixel off the middle.
    panel.picture->move(panel.box->width() / 2 - panel.picture->width() / 2,
        panel.box->height() / 2 - panel.picture->height() / 2);
    ShowColour(panel, slot.hasTransparent);
    const bool masks = TransparentUse && slot.hasTransparent;
    panel.picture->SetPicture(masks ? Masked(picture, slot.Mask()) : picture);
}

/// The colour's swatch and text, or the words that there is none.
void Form1::ShowColour(Panel& panel, bool hasTransparent)
{
    panel.swatch->setVisible(hasTransparent);
    panel.colour->setVisible(hasTransparent);
    panel.noColour->setVisible(!hasTransparent);
}

void Form1::HideColour(Panel& panel)
{
    panel.swatch->setVisible(false);
    panel.colour->setVisible(false);
    panel.noColour->setVisible(false);
}

/// Keeps room for the longest text of a colour, so that no selection moves the panels.
void Form1::ReserveColourWidth(Panel& panel)
{
    const int longest = panel.colour->fontMetrics().horizontalAdvance("255, 255, 255");
    panel.colour->setMinimumWidth(longest);
    ShowColour(panel, true);
    panel.colourFrame->setMinimumWidth(panel.colourFrame->minimumSizeHint().width());
    HideColour(panel);
}

/// The panels' boxes grow with the window; their pictures stay in the middle.
void Form1::CentrePictures()
{
    for (Panel* panel : Panels())
        panel->picture->move(panel->box->width() / 2 - panel->picture->width() / 2,
            panel->box->height() / 2 - panel->picture->height() / 2);
}

} // namespace vypx
