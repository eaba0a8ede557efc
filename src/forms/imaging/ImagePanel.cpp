#include "forms/imaging/ImagePanel.h"

#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "forms/imaging/PictureFile.h"
#include "ui_ImagePanel.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>

namespace vypx {

ImagePanel::ImagePanel(const vypx::Slot& slot, PictureBox& imageBuffer, QWidget* parent)
    : QGroupBox(parent)
    , m_ui(std::make_unique<Ui::ImagePanel>())
    , m_slot(slot)
    , m_imageBuffer(imageBuffer)
{
    m_ui->setupUi(this);
    NameBySlot();
    for (QWidget* box : { m_ui->picXXfrm, m_ui->picXX })
        box->installEventFilter(this);
}

ImagePanel::~ImagePanel() = default;

/// The slot's letters stand for "XX" in names, its resolution for "%1" and "%2" in texts.
void ImagePanel::NameBySlot()
{
    const QString letters = FromLatin1(m_slot.letters), words = FromLatin1(m_slot.resolution);
    const QString adjective = words.toLower().replace(' ', '-'); // "high-res"
    const auto named = [&](const QString& text) {
        return QString(text).replace("%1", words).replace("%2", adjective);
    };
    const auto& commands = m_slot.ofPicture;
    if (std::find(commands.begin(), commands.end(), Command::CreateLowRes) == commands.end()) {
        // The two panels stand level, though one has a row of commands more.
        QGridLayout& grid = *m_ui->commandsXXLayout;
        grid.setRowMinimumHeight(
            3, m_ui->cmdCreateLowRes->sizeHint().height() + grid.verticalSpacing());
        delete m_ui->cmdCreateLowRes;
    }
    setObjectName("frame" + letters);
    setTitle(words);
    for (QObject* part : findChildren<QObject*>())
        part->setObjectName(part->objectName().replace("XX", letters));
    for (QWidget* control : findChildren<QWidget*>()) {
        control->setToolTip(named(control->toolTip()));
        control->setAccessibleName(named(control->accessibleName()));
    }
}

void ImagePanel::TakeMenu(QMenu& menu)
{
    menu.setParent(this, menu.windowFlags());
    m_menu = &menu;
}

void ImagePanel::Draw()
{
    m_slot.hasTransparent = false;
    m_ui->lbl_XXsize->clear();
    if (!m_slot.loaded || m_slot.path.empty() || !FileExists(m_slot.path))
        return;
    m_ui->lbl_XXsize->setText(SizeText(m_slot.path));
    const BitmapEntry* const bitmap = BitmapAt(m_slot.path);
    m_slot.hasTransparent = bitmap && *bitmap->hasTransparent == 1;
    ClearPicture();

    const QImage picture(PathText(m_slot.path));
    m_imageBuffer.SetPicture(picture);
    m_ui->picXX->resize(picture.size());
    CentrePicture();
    ShowColour(m_slot.hasTransparent);
    const bool masks = TransparentUse && m_slot.hasTransparent;
    m_ui->picXX->SetPicture(masks ? Masked(picture, m_slot.Mask()) : picture);
}

void ImagePanel::Show(const SlotEffects& effects)
{
    ClearPicture();
    m_ui->lbl_XXsize->clear();
    m_ui->lblXX_Size->setText(FromLatin1(effects.sizeLimit));
    if (effects.colourText)
        m_ui->lblC_RGB_XX->setText(FromLatin1(*effects.colourText));
    if (effects.swatch)
        m_ui->picColSwatchXX->SetBackColour(ScreenColour(*effects.swatch));
    if (effects.showsColour)
        ShowColour(*effects.showsColour);
    if (effects.draw)
        Draw();
    if (effects.hidesColour)
        HideColour();
}

void ImagePanel::ShowMask(Rgb colour)
{
    SetMaskColour(colour);
    ShowColour(true);
}

void ImagePanel::SetMaskColour(Rgb colour)
{
    m_ui->picColSwatchXX->SetBackColour(ScreenColour(colour));
    m_ui->lblC_RGB_XX->setText(
        QString("%1, %2, %3").arg(colour.red).arg(colour.green).arg(colour.blue));
}

void ImagePanel::ClearImage()
{
    ClearPicture();
    ClearTexts();
    HideColour();
}

void ImagePanel::ClearPicture()
{
    m_ui->picXX->SetPicture({});
    m_ui->picXX->resize(0, 0);
    m_ui->picXXfrm->SetPicture({});
}

void ImagePanel::ClearSizeLimit() { m_ui->lblXX_Size->clear(); }

void ImagePanel::ClearTexts()
{
    m_ui->lbl_XXsize->clear();
    m_ui->lblC_RGB_XX->clear();
    m_ui->picColSwatchXX->setVisible(false);
}

void ImagePanel::Clear()
{
    ClearImage();
    ClearSizeLimit();
}

void ImagePanel::PaintBackground(const QColor& colour)
{
    SetBackColour(colour);
    m_ui->picColSwatchXX->SetBackColour(ScreenColour(ChromeColour));
    ReserveColourWidth();
}

void ImagePanel::SetBackColour(const QColor& colour)
{
    m_ui->picXXfrm->SetBackColour(colour);
    m_ui->picXX->SetBackColour(colour);
}

/// The colour's swatch and text, or the words that there is none.
void ImagePanel::ShowColour(bool hasTransparent)
{
    m_ui->picColSwatchXX->setVisible(hasTransparent);
    m_ui->lblC_RGB_XX->setVisible(hasTransparent);
    m_ui->lblNoTransparentXX->setVisible(!hasTransparent);
}

void ImagePanel::HideColour()
{
    m_ui->picColSwatchXX->setVisible(false);
    m_ui->lblC_RGB_XX->setVisible(false);
    m_ui->lblNoTransparentXX->setVisible(false);
}

/// Keeps room for the longest text of a colour, so that no selection moves the panels.
void ImagePanel::ReserveColourWidth()
{
    const QFontMetrics metrics = m_ui->lblC_RGB_XX->fontMetrics();
    m_ui->lblC_RGB_XX->setMinimumWidth(metrics.horizontalAdvance("255, 255, 255"));
    ShowColour(true);
    m_ui->frameTC_XX->setMinimumWidth(m_ui->frameTC_XX->minimumSizeHint().width());
    HideColour();
}

/// On purpose: two separate halvings, which may put the picture one pixel off the middle.
void ImagePanel::CentrePicture()
{
    const PictureBox &box = *m_ui->picXXfrm, &picture = *m_ui->picXX;
    m_ui->picXX->move(
        box.width() / 2 - picture.width() / 2, box.height() / 2 - picture.height() / 2);
}

/// By a key: in the middle of the picture.
void ImagePanel::AskForMenu()
{
    emit MenuAsked(m_ui->picXXfrm->mapToGlobal(m_ui->picXXfrm->rect().center()));
}

void ImagePanel::keyPressEvent(QKeyEvent* event)
{
    const bool isShiftF10 = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    if (event->key() == Qt::Key_Menu || isShiftF10)
        AskForMenu();
    else
        QGroupBox::keyPressEvent(event);
}

/// As some desktops say it themselves. The mouse has a place and a moment of its own.
void ImagePanel::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        AskForMenu();
    else
        QGroupBox::contextMenuEvent(event);
}

bool ImagePanel::TakesRelease(const QMouseEvent& release)
{
    const QPoint place = release.globalPosition().toPoint();
    const QWidget& box = *m_ui->picXXfrm;
    if (release.button() != Qt::RightButton || !box.rect().contains(box.mapFromGlobal(place)))
        return false;
    emit MenuAsked(place);
    return true;
}

/// The box grows with the window; its picture stays in the middle.
bool ImagePanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == m_ui->picXXfrm)
        CentrePicture();
    if (event->type() == QEvent::MouseButtonRelease)
        return TakesRelease(static_cast<const QMouseEvent&>(*event));
    return QGroupBox::eventFilter(watched, event);
}

} // namespace vypx
