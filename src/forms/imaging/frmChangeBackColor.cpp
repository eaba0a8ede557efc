#include "forms/imaging/frmChangeBackColor.h"

#include "document/PictureState.h"
#include "forms/common/HeldKeys.h"
#include "forms/common/Look.h"
#include "ui_frmChangeBackColor.h"

namespace vypx {

frmChangeBackColor::frmChangeBackColor(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmChangeBackColor>())
    , m_before{ CropBackR, CropBackG, CropBackB }
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(DialogPlace());
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    m_ui->borderColour->SetColour(m_before);
    Take(m_before);
    connect(m_ui->borderColour, &ColourBars::ColourChanged, this, &frmChangeBackColor::Take);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmChangeBackColor::accept);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmChangeBackColor::reject);
}

frmChangeBackColor::~frmChangeBackColor() = default;

void frmChangeBackColor::Take(const Rgb& colour)
{
    CropBackR = colour.red;
    CropBackG = colour.green;
    CropBackB = colour.blue;
    m_ui->picBackCol->SetBackColour(ScreenColour(colour));
}

void frmChangeBackColor::keyPressEvent(QKeyEvent* event)
{
    if (!HeldKeys::OfProgram().IsHeldEnd(*event))
        QDialog::keyPressEvent(event);
}

/// What has closed it once counts.
void frmChangeBackColor::accept()
{
    if (!isVisible())
        return;
    QDialog::accept();
    emit Chosen();
}

void frmChangeBackColor::reject()
{
    if (!isVisible())
        return;
    CropBackR = m_before.red;
    CropBackG = m_before.green;
    CropBackB = m_before.blue;
    QDialog::reject();
}

} // namespace vypx
