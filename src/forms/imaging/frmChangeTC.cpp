#include "forms/imaging/frmChangeTC.h"

#include "document/PictureState.h"
#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "ui_frmChangeTC.h"

#include <QCloseEvent>
#include <QKeyEvent>

namespace vypx {

namespace {

/// 300 twips from the left and the top.
QPoint EditorPlace() { return { PixelsFromTwips(300), PixelsFromTwips(300) }; }

/// No option of the group is chosen, which its own use can't bring about.
void Clear(QRadioButton& option)
{
    option.setAutoExclusive(false);
    option.setChecked(false);
    option.setAutoExclusive(true);
}

} // namespace

frmChangeTC::frmChangeTC(ColorDepth depth, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmChangeTC>())
    , m_edit(EditingLG ? SlotLG : SlotSM)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(EditorPlace());
    m_components = { Component{ m_ui->lblTC_Red, m_ui->txtTC_Red, m_ui->lblSampRed, &Rgb::red },
        Component{ m_ui->lblTC_Grn, m_ui->txtTC_Grn, m_ui->lblSampGrn, &Rgb::green },
        Component{ m_ui->lblTC_Blue, m_ui->txtTC_Blue, m_ui->lblSampBlue, &Rgb::blue } };
    KeepPlaces();
    const bool isReduced = depth == ColorDepth::Bits8 || depth == ColorDepth::Bits4;
    m_ui->optManualColor->setEnabled(!isReduced);
    Connect();
    const Rgb preview = TCPreviewSet ? Rgb{ TCPreviewR, TCPreviewG, TCPreviewB } : Blue;
    m_ui->previewColour->SetRedChange(ColourBars::RedChange::WritesAllTexts);
    m_ui->previewColour->SetColour(preview);
    PaintPreview(preview);
    ShowEntry();
    ReloadView();
    m_isLoading = false;
}

frmChangeTC::~frmChangeTC() = default;

void frmChangeTC::Connect()
{
    const auto whenChosen = [this](QRadioButton* option, void (frmChangeTC::*act)()) {
        connect(option, &QRadioButton::toggled, this, [this, act](bool on) {
            if (on && !m_isLoading)
                (this->*act)();
        });
    };
    whenChosen(m_ui->optUseTransparent, &frmChangeTC::optUseTransparent_Click);
    // It may be chosen already, by a typed colour that is not used yet.
    connect(m_ui->optUseTransparent, &QRadioButton::clicked, this,
        &frmChangeTC::optUseTransparent_Click);
    whenChosen(m_ui->optNoTransparent, &frmChangeTC::optNoTransparent_Click);
    whenChosen(m_ui->optUsePicker, &frmChangeTC::optUsePicker_Click);
    whenChosen(m_ui->optManualColor, &frmChangeTC::optManualColor_Click);
    for (const Component& component : m_components)
        connect(component.text, &ColourText::Entered, this,
            [this, &component] { ApplyManualColor(component); });
    for (const auto& [button, zoom] :
        { std::pair{ m_ui->cmdZoom2X, 2 }, std::pair{ m_ui->cmdZoom4X, 4 } })
        connect(button, &QPushButton::clicked, this, [this, zoom = zoom] {
            m_zoom = zoom;
            ReloadView();
        });
    connect(m_ui->chkViewTransparent, &QCheckBox::toggled, this, &frmChangeTC::DrawPreview);
    connect(m_ui->previewColour, &ColourBars::ColourChanged, this, &frmChangeTC::PaintPreview);
    const ZoomView* const view = m_ui->picMain;
    connect(view, &ZoomView::Sampled, this, &frmChangeTC::ShowSample);
    connect(view, &ZoomView::SampleLeft, m_ui->frmSampColors, &QWidget::hide);
    connect(view, &ZoomView::Picked, this, &frmChangeTC::picMain_MouseDown);
    connect(view, &ZoomView::MarkMoved, this, [this](const QRect& mark) {
        m_ui->picFrame->ensureVisible(mark.center().x(), mark.center().y(), 20, 20);
    });
    connect(m_ui->cmdApplyTC, &QPushButton::clicked, this, &frmChangeTC::cmdApplyTC_Click);
    connect(m_ui->cmdCancelTC, &QPushButton::clicked, this, &frmChangeTC::cmdCancelTC_Click);
}

void frmChangeTC::KeepPlaces()
{
    KeepRoom({ m_ui->frmSampColors, m_ui->picTCswatch });
    for (const Component& component : m_components) {
        KeepRoom({ component.title, component.text });
        component.text->setEnabled(false); // the picker is chosen at first
        component.sample->setMinimumWidth(component.text->width());
    }
    constexpr int AroundTitle = 34; // pixels, which a group box leaves out of its own hint
    m_ui->Frame3->setMinimumWidth(
        m_ui->Frame3->fontMetrics().horizontalAdvance(m_ui->Frame3->title()) + AroundTitle);
    m_ui->frmSampColors->hide();
}

void frmChangeTC::ShowEntry()
{
    const bool had = m_edit.HadColour();
    (had ? m_ui->optUseTransparent : m_ui->optNoTransparent)->setChecked(true);
    m_ui->optUseTransparent->setEnabled(had);
    ShowColourControls(had);
    (had ? m_ui->optUseTransparent : m_ui->optNoTransparent)->setFocus();
}

/// On purpose: an option that was chosen without a colour on hand is taken back here.
void frmChangeTC::ReloadView()
{
    m_ui->picMain->SetPicture(QImage(PathText(m_edit.Path())), m_zoom);
    if (!m_edit.IsUsed()) {
        Clear(*m_ui->optUseTransparent);
        m_ui->chkViewTransparent->setEnabled(false);
    }
    DrawPreview();
}

void frmChangeTC::DrawPreview()
{
    const bool masks = m_ui->chkViewTransparent->isChecked() && m_edit.IsUsed()
        && !m_ui->optNoTransparent->isChecked();
    m_ui->picMain->SetTransparent(masks ? std::optional(m_edit.Colour()) : std::nullopt);
    ShowTransparentColour();
}

/// Without one on hand the texts stay empty: the slot's mask may be that of another picture.
void frmChangeTC::ShowTransparentColour()
{
    m_ui->picTCswatch->SetBackColour(ScreenColour(m_edit.Colour()));
    if (!m_edit.HasColour())
        return;
    for (const Component& component : m_components)
        component.text->SetValue(m_edit.Colour().*component.value);
}

void frmChangeTC::ShowColourControls(bool on)
{
    m_ui->picTCswatch->setVisible(on);
    for (const Component& component : m_components) {
        component.title->setVisible(on);
        component.text->setVisible(on);
    }
}

void frmChangeTC::PaintPreview(const Rgb& colour)
{
    m_ui->picMain->SetBackColour(ScreenColour(colour));
    m_ui->picFrame->SetBackColour(ScreenColour(colour));
}

void frmChangeTC::ShowSample(const Rgb& colour)
{
    m_ui->picSampSwatch->SetBackColour(ScreenColour(colour));
    for (const Component& component : m_components)
        component.sample->setNum(colour.*component.value);
    m_ui->frmSampColors->show();
}

/// A click is at once in the document; Cancel is what takes it back.
void frmChangeTC::picMain_MouseDown(const Rgb& colour)
{
    m_edit.Pick(colour);
    m_ui->optUseTransparent->setEnabled(true);
    m_ui->optUseTransparent->setChecked(true);
    m_ui->chkViewTransparent->setEnabled(true);
    ShowColourControls(true);
    emit ColourChanged(colour);
    DrawPreview();
}

void frmChangeTC::optUseTransparent_Click()
{
    m_ui->chkViewTransparent->setEnabled(true);
    m_edit.Use();
    DrawPreview();
}

void frmChangeTC::optNoTransparent_Click()
{
    m_ui->chkViewTransparent->setEnabled(false);
    m_ui->chkViewTransparent->setChecked(false);
    m_edit.UseNone();
    DrawPreview();
}

void frmChangeTC::optUsePicker_Click()
{
    for (const Component& component : m_components)
        component.text->setEnabled(false);
    m_ui->picMain->SetPicking(true);
}

void frmChangeTC::optManualColor_Click()
{
    m_ui->picMain->SetPicking(false);
    m_ui->frmSampColors->hide();
    ShowColourControls(true);
    m_ui->optUseTransparent->setEnabled(true);
    m_ui->optUseTransparent->setChecked(true);
    for (const Component& component : m_components) {
        component.text->setEnabled(true);
        if (component.text->text().isEmpty())
            component.text->SetValue(0);
    }
}

/// Takes over a typed number. On purpose: a colour that was not used before is used from
/// cmdApplyTC on, or when the option is chosen once more.
void frmChangeTC::ApplyManualColor(const Component& component)
{
    if (m_hasEnded)
        return;
    const int value = component.text->Value().value_or(0);
    component.text->SetValue(value);
    m_edit.Type(component.value, value);
    m_ui->optUseTransparent->setEnabled(true);
    emit ColourChanged(m_edit.Colour());
    DrawPreview();
}

void frmChangeTC::KeepPreviewColour()
{
    const Rgb colour = m_ui->previewColour->Colour();
    TCPreviewR = colour.red;
    TCPreviewG = colour.green;
    TCPreviewB = colour.blue;
    TCPreviewSet = true;
}

void frmChangeTC::cmdApplyTC_Click()
{
    if (m_hasEnded)
        return;
    for (const Component& component : m_components)
        if (component.text == focusWidget()) // where a click does not take the focus
            ApplyManualColor(component);
    KeepPreviewColour();
    if (m_ui->optUseTransparent->isChecked())
        m_edit.Use();
    else if (m_ui->optNoTransparent->isChecked())
        m_edit.UseNone();
    End();
}

void frmChangeTC::cmdCancelTC_Click()
{
    if (m_hasEnded)
        return;
    m_edit.Cancel();
    emit ColourChanged(m_edit.Colour());
    End();
}

void frmChangeTC::End()
{
    m_hasEnded = true;
    emit Done();
    close();
}

void frmChangeTC::reject() { cmdCancelTC_Click(); }

/// Enter uses the button that has the focus; there is no other that it stands for, since in a text
/// it only takes that over.
void frmChangeTC::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    auto* const button = qobject_cast<QPushButton*>(focusWidget());
    if (HeldKeys::OfProgram().IsHeldEnd(*event))
        return;
    if (isEnter && button)
        button->click();
    else
        QDialog::keyPressEvent(event);
}

/// The frame, or the program's end: what was written stays. A dialog of Qt's would take it for a
/// Cancel.
void frmChangeTC::closeEvent(QCloseEvent* event)
{
    event->accept();
    if (m_hasEnded)
        return;
    KeepPreviewColour();
    m_hasEnded = true;
    emit Done();
}

} // namespace vypx
