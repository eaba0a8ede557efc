#include "forms/imaging/frmCrop.h"

#include "document/PictureState.h"
#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "forms/common/Text.h"
#include "forms/imaging/PictureFile.h"
#include "forms/imaging/frmChangeBackColor.h"
#include "ui_frmCrop.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <algorithm>
#include <utility>

namespace vypx {

namespace {

int Twips(int pixels) { return pixels * TwipsPerPixel; }

} // namespace

frmCrop::frmCrop(const vypx::Slot& slot, ColorDepth depth, Ask& ask, Doors doors, QWidget& form)
    : QDialog(&form)
    , m_ui(std::make_unique<Ui::frmCrop>())
    , m_ask(ask)
    , m_doors(std::move(doors))
    , m_task(slot, depth)
    , m_disabled(std::make_unique<DisabledWindow>(*form.window()))
{
    m_ui->setupUi(this);
    setEnabled(true); // though what it belongs to is not
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this, CropColour);
    m_ui->viewScroll->viewport()->setAutoFillBackground(false);
    KeepRoom({ m_ui->lblWorking, m_ui->lblRegion, m_ui->picBackColor, m_ui->cmdChangeBackColor });
    m_ui->lblWorking->hide();
    m_ui->lblStretch->hide();
    move(DialogPlace());
    Connect();
    m_ui->picResize->setFocus();
}

frmCrop::~frmCrop() = default;

void frmCrop::Connect()
{
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmCrop::cmdOK_Click);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmCrop::reject);
    connect(
        m_ui->cmdChangeBackColor, &QPushButton::clicked, this, &frmCrop::cmdChangeBackColor_Click);
    connect(m_ui->optAspectSquare, &QRadioButton::toggled, this, [this] { optAspect_Click(); });
    connect(m_ui->optStretch, &QRadioButton::toggled, this, &frmCrop::optStretch_Click);
    connect(m_ui->picResize, &CropBox::RectangleChanged, this, [this](const QRect& reached) {
        const QPoint middle = reached.center();
        m_ui->viewScroll->ensureVisible(
            middle.x(), middle.y(), reached.width() / 2, reached.height() / 2);
        ShowSizes();
    });
}

/// It is shown in its size: what is resized at once, before the desktop has framed it, may end with
/// its title above the screen.
void frmCrop::Open()
{
    std::string_view message;
    try {
        message = CropFrmLoad();
    } catch (...) {
        show();
        throw;
    }
    show();
    Tell(message);
}

std::string_view frmCrop::CropFrmLoad()
{
    {
        const QSignalBlocker quiet(m_ui->optStretch);
        m_ui->optMaintainAspect->setChecked(true);
    }
    ShowMode(false);
    const std::string_view message = m_task.CropFrmLoad();
    ShowView();
    const QPoint place = ViewPlace();
    FitForm(CropFormSize(m_task.Geometry().View(), Twips(place.x()), Twips(place.y())));
    return message;
}

void frmCrop::PicFit()
{
    RunAlone([this] { return m_task.PicFit(); });
    ShowView();
    const QPoint place = ViewPlace();
    FitForm(PicFitFormSize(m_task.Geometry().View(), Twips(place.x()), Twips(place.y())));
}

void frmCrop::StretchMode()
{
    ShowMode(true);
    StretchPreview();
}

void frmCrop::StretchPreview()
{
    RunAlone([this] { return m_task.StretchPreview(); });
    ShowView();
    const QPoint place = ViewPlace();
    FitForm(StretchFormSize({ TargetWidth, TargetHeight }, Twips(place.x()), Twips(place.y())));
}

void frmCrop::optStretch_Click(bool stretches)
{
    if (stretches) {
        StretchMode();
        return;
    }
    ShowMode(false);
    PicFit();
}

void frmCrop::optAspect_Click()
{
    m_task.ChooseAspect(m_ui->optAspectSquare->isChecked());
    if (m_ui->optStretch->isChecked()) {
        StretchMode();
        return;
    }
    m_task.Geometry().RebuildRectangle();
    m_ui->picResize->ShowRectangle();
    ShowSizes();
}

void frmCrop::cmdChangeBackColor_Click()
{
    if (!m_borderWindow || !m_borderWindow->isVisible()) {
        m_borderWindow = new frmChangeBackColor(this);
        connect(m_borderWindow, &frmChangeBackColor::Chosen, this, [this] {
            m_task.Geometry().SaveRectangle();
            RunAlone([this] { return CropFrmLoad(); });
        });
    }
    m_borderWindow->show();
    m_borderWindow->raise();
    m_borderWindow->activateWindow();
}

/// What is seen is what is cut, so a border colour that was not accepted goes first.
void frmCrop::cmdOK_Click()
{
    if (m_borderWindow)
        m_borderWindow->close();
    const bool isDone = RunAlone([this] {
        const std::string_view message =
            m_ui->optStretch->isChecked() ? m_task.Stretch() : m_task.Crop();
        if (message.empty())
            m_doors.import(m_task);
        return message;
    });
    if (isDone)
        accept();
}

/// Not while it works: it would be gone before the work is.
void frmCrop::reject()
{
    if (!m_isWorking)
        QDialog::reject();
}

/// Every way out: what it belongs to is enabled before this one goes, so that it gets the focus.
void frmCrop::done(int result)
{
    if (m_borderWindow)
        m_borderWindow->close();
    m_disabled.reset();
    QDialog::done(result);
}

/// An Enter that is still held from the file dialog must not cut a picture that nobody has seen.
void frmCrop::keyPressEvent(QKeyEvent* event)
{
    if (!HeldKeys::OfProgram().IsHeldEnd(*event))
        QDialog::keyPressEvent(event);
}

/// True: it was done without a word. An exit that was put off until then may close this window.
bool frmCrop::RunAlone(const std::function<std::string_view()>& work)
{
    bool isDone = false;
    m_doors.run([&] {
        const QScopedValueRollback working(m_isWorking, true);
        m_ui->lblWorking->show();
        QCoreApplication::processEvents();
        std::string_view message;
        try {
            message = work();
        } catch (...) {
            m_ui->lblWorking->hide();
            throw;
        }
        m_ui->lblWorking->hide();
        Tell(message);
        isDone = message.empty();
    });
    return isDone;
}

void frmCrop::Tell(std::string_view message)
{
    if (!message.empty())
        m_ask.Show(this, { .text = FromLatin1(message) });
}

void frmCrop::ShowMode(bool stretches)
{
    if (stretches && m_borderWindow)
        m_borderWindow->close();
    const bool hasBorder = !stretches && m_task.Geometry().HasBorder();
    for (QWidget* control : std::initializer_list<QWidget*>{ m_ui->Label1, m_ui->Label2 })
        control->setVisible(!stretches);
    for (QWidget* control :
        std::initializer_list<QWidget*>{ m_ui->cmdChangeBackColor, m_ui->picBackColor })
        control->setVisible(hasBorder);
    m_ui->lblStretch->setVisible(stretches);
}

/// The picture as the task shows it, with or without a rectangle over it.
void frmCrop::ShowView()
{
    const bool stretches = m_ui->optStretch->isChecked();
    ShowMode(stretches);
    const QColor border(CropBackR, CropBackG, CropBackB);
    m_ui->picBackColor->SetBackColour(border);
    m_ui->picResize->SetBorderColour(border);
    const QImage picture = ImageOf(m_task.Shown());
    CropGeometry& geometry = m_task.Geometry();
    if (picture.isNull()) {
        m_ui->picResize->Clear();
    } else if (stretches) {
        m_ui->picResize->ShowPicture(picture, {}, picture.size());
        m_ui->picResize->SetGeometryToDrag(nullptr);
    } else {
        const CropView& view = geometry.View();
        const int side = view.side / TwipsPerPixel;
        m_ui->picResize->ShowPicture(
            picture, { view.PictureLeft(), view.PictureTop() }, { side, side });
        m_ui->picResize->SetGeometryToDrag(&geometry);
    }
    ShowSizes();
}

void frmCrop::ShowSizes()
{
    const vypx::Picture& shown = m_task.Shown().pixels;
    m_ui->lblRegion->setVisible(!shown.IsNull());
    PixelSize from = m_task.SourceSize();
    if (!m_ui->optStretch->isChecked()) {
        const PixelRegion region = m_task.Geometry().Region();
        from = { region.width, region.height };
    }
    m_ui->lblRegion->setText(tr("%1 x %2 to %3 x %4 pixels")
                                 .arg(from.width)
                                 .arg(from.height)
                                 .arg(TargetWidth)
                                 .arg(TargetHeight));
}

/// The place of the view in the window, pixels.
QPoint frmCrop::ViewPlace() const
{
    layout()->activate();
    return m_ui->viewScroll->mapTo(this, QPoint(0, 0));
}

/// As large as told, at least what all controls and the view need, and at most what the screen has;
/// then the view scrolls. Where there is no room for it to the right or below, it moves.
void frmCrop::FitForm(FormSize told)
{
    const QSize around = size() - m_ui->viewScroll->size();
    const QSize needed = (around + m_ui->picResize->size()).expandedTo(minimumSizeHint());
    const QSize wanted(PixelsFromTwips(told.width), PixelsFromTwips(told.height));
    const QRect room = screen()->availableGeometry();
    const QSize usualFrame(12, 40); // not known before the window is shown
    const QSize frame = isVisible() ? frameGeometry().size() - size() : usualFrame;
    const QSize most = (room.size() - frame).expandedTo(minimumSizeHint());
    resize(wanted.expandedTo(needed).boundedTo(most));
    const QSize whole = size() + frame;
    const QPoint farthest(room.right() + 1 - whole.width(), room.bottom() + 1 - whole.height());
    const QPoint place(std::max(room.left(), std::min(pos().x(), farthest.x())),
        std::max(room.top(), std::min(pos().y(), farthest.y())));
    if (place != pos())
        move(place);
    layout()->activate();
    if (m_task.Geometry().HasView()) {
        const PixelRegion at = ViewPixels(m_task.Geometry().Rectangle());
        m_ui->viewScroll->ensureVisible(
            at.left + at.width / 2, at.top + at.height / 2, at.width / 2, at.height / 2);
    }
}

} // namespace vypx
