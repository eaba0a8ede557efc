#include "forms/imaging/frmPreviewOpt.h"

#include "document/Document.h"
#include "forms/common/Look.h"
#include "ui_frmPreviewOpt.h"

#include <QCloseEvent>

namespace vypx {

frmPreviewOpt::frmPreviewOpt()
    : QMdiSubWindow(nullptr,
        Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
            | Qt::WindowStaysOnTopHint)
    , m_ui(std::make_unique<Ui::frmPreviewOpt>())
{
    auto* const inside = new QWidget;
    inside->setObjectName("previewOptContents");
    m_ui->setupUi(inside);
    setObjectName("frmPreviewOpt");
    PaintChrome(*inside);
    setWidget(inside);
    setAttribute(Qt::WA_DeleteOnClose);
    setSystemMenu(nullptr); // its keys, Ctrl+W and its like, are the main form's
    m_ui->previewColour->SetColour({ R, G, B });
    m_ui->chkUseTransparent->setChecked(TransparentUse);
    inside->layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(m_ui->previewColour, &ColourBars::ColourChanged, this, [this](const Rgb& colour) {
        R = colour.red;
        G = colour.green;
        B = colour.blue;
        emit ColourChosen();
    });
    connect(m_ui->chkUseTransparent, &QCheckBox::toggled, this, [this](bool on) {
        TransparentUse = on;
        emit TransparencyChosen();
    });
}

frmPreviewOpt::~frmPreviewOpt() = default;

/// Only now its look is settled and can be measured.
void frmPreviewOpt::showEvent(QShowEvent* event)
{
    QMdiSubWindow::showEvent(event);
    setFixedSize(sizeHint());
}

void frmPreviewOpt::closeEvent(QCloseEvent* event)
{
    QMdiSubWindow::closeEvent(event);
    if (event->isAccepted())
        emit Closed();
}

} // namespace vypx
