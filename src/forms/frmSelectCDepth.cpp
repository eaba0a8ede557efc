#include "forms/frmSelectCDepth.h"

#include "forms/DepthControls.h"
#include "forms/Look.h"
#include "settings/Settings.h"
#include "ui_frmSelectCDepth.h"

#include <tuple>

namespace vypx {

frmSelectCDepth::frmSelectCDepth(QWidget* parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::frmSelectCDepth>())
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    PaintChrome(*this);
    move(DialogPlace());
    ShowDepth();
    CheckResolution(*m_ui);
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
    const auto setsDepth = [this](QAbstractButton* option, const char* depth) {
        connect(option, &QAbstractButton::clicked, this, [this, depth] {
            if (!m_depthBefore)
                m_depthBefore = DefaultColorDepth;
            DefaultColorDepth = depth;
            ShowDepth();
            emit DepthChosen();
        });
    };
    setsDepth(m_ui->opt4Bit, "4-Bit");
    setsDepth(m_ui->opt8Bit, "8-Bit");
    setsDepth(m_ui->opt16Bit, "16-Bit");
}

void frmSelectCDepth::ConnectResolutions()
{
    for (QAbstractButton* option : { m_ui->optBothRes, m_ui->optHighResOnly, m_ui->optLowResOnly })
        connect(option, &QAbstractButton::clicked, this, &frmSelectCDepth::TakeResolution);
}

void frmSelectCDepth::TakeResolution()
{
    const Resolution chosen{ m_ui->optHighResOnly->isChecked(), m_ui->optLowResOnly->isChecked() };
    if (!m_resolutionBefore)
        m_resolutionBefore = { HighResOnly, LowResOnly };
    std::tie(HighResOnly, LowResOnly) = chosen;
    emit ResolutionChosen();
}

void frmSelectCDepth::TakeDepthOfOthers()
{
    m_depthBefore.reset();
    ShowDepth();
}

void frmSelectCDepth::TakeResolutionOfOthers()
{
    m_resolutionBefore.reset();
    CheckResolution(*m_ui);
}

void frmSelectCDepth::KeepChoices()
{
    m_depthBefore.reset();
    m_resolutionBefore.reset();
}

void frmSelectCDepth::reject()
{
    if (m_depthBefore) {
        DefaultColorDepth = *m_depthBefore;
        emit DepthChosen();
    }
    if (m_resolutionBefore) {
        std::tie(HighResOnly, LowResOnly) = *m_resolutionBefore;
        emit ResolutionChosen();
    }
    emit TakenBack();
    QDialog::reject();
}

void frmSelectCDepth::cmdDoneCDepth_Click()
{
    hide();
    TakeResolution();
    emit Done();
    close();
}

} // namespace vypx
