#include "forms/imaging/frmPreviewOpt.h"

#include "document/Document.h"
#include "ui_frmPreviewOpt.h"

namespace vypx {

frmPreviewOpt::frmPreviewOpt()
    : SideForm(Size::Fixed)
    , m_ui(std::make_unique<Ui::frmPreviewOpt>())
{
    auto* const inside = new QWidget;
    inside->setObjectName("previewOptContents");
    m_ui->setupUi(inside);
    Hold(inside, "frmPreviewOpt");
    m_ui->previewColour->SetColour({ R, G, B });
    m_ui->chkUseTransparent->setChecked(TransparentUse);
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

} // namespace vypx
