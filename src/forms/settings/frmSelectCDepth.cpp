#include "forms/settings/frmSelectCDepth.h"

#include "forms/common/Look.h"
#include "forms/settings/DepthControls.h"
#include "settings/Settings.h"
#include "ui_frmSelectCDepth.h"

namespace vypx {

frmSelectCDepth::frmSelectCDepth(DepthChoices& choices, QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmSelectCDepth>())
    , m_choices(choices)
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(DialogPlace());
    ShowChoices();
    for (QRadioButton* option : { m_ui->opt4Bit, m_ui->opt8Bit, m_ui->opt16Bit })
        if (option->isChecked())
            option->setFocus();
    ConnectDepths();
    ConnectResolutions();
    connect(
        m_ui->cmdDoneCDepth, &QPushButton::clicked, this, &frmSelectCDepth::cmdDoneCDepth_Click);
}

frmSelectCDepth::~frmSelectCDepth() = default;

void frmSelectCDepth::ShowDepth()
{
    CheckDepth(*m_ui);
    ShowDepthWarning(*m_ui, !m_ui->opt16Bit->isChecked());
}

void frmSelectCDepth::ConnectDepths()
{
    const auto setsDepth = [this](QAbstractButton* option, ColorDepth depth) {
        connect(option, &QAbstractButton::clicked, this, [this, depth] {
            m_choices.ChooseDepth(depth);
            ShowDepth();
            emit DepthChosen();
        });
    };
    setsDepth(m_ui->opt4Bit, ColorDepth::Bits4);
    setsDepth(m_ui->opt8Bit, ColorDepth::Bits8);
    setsDepth(m_ui->opt16Bit, ColorDepth::Bits16);
}

void frmSelectCDepth::ConnectResolutions()
{
    for (QAbstractButton* option : { m_ui->optBothRes, m_ui->optHighResOnly, m_ui->optLowResOnly })
        connect(option, &QAbstractButton::clicked, this, &frmSelectCDepth::TakeResolution);
}

void frmSelectCDepth::TakeResolution()
{
    m_choices.ChooseResolution(m_ui->optHighResOnly->isChecked(), m_ui->optLowResOnly->isChecked());
    emit ResolutionChosen();
}

void frmSelectCDepth::ShowChoices()
{
    ShowDepth();
    CheckResolution(*m_ui);
}

void frmSelectCDepth::reject()
{
    QDialog::reject();
    emit GivenUp();
}

void frmSelectCDepth::cmdDoneCDepth_Click()
{
    hide();
    TakeResolution();
    emit Done();
    close();
}

} // namespace vypx
