#include "forms/frmSelectCDepth.h"

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
    (DefaultColorDepth == "4-Bit"          ? m_ui->opt4Bit
            : DefaultColorDepth == "8-Bit" ? m_ui->opt8Bit
                                           : m_ui->opt16Bit)
        ->setChecked(true);
    (HighResOnly         ? m_ui->optHighResOnly
            : LowResOnly ? m_ui->optLowResOnly
                         : m_ui->optBothRes)
        ->setChecked(true);
    ShowDepthWarning();
    ConnectDepths();
    ConnectResolutions();
    connect(
        m_ui->cmdDoneCDepth, &QPushButton::clicked, this, &frmSelectCDepth::cmdDoneCDepth_Click);
}

frmSelectCDepth::~frmSelectCDepth() = default;

void frmSelectCDepth::ShowDepthWarning()
{
    for (QWidget* line : { m_ui->lblCDwarn1, m_ui->lblCDwarn2, m_ui->lblCDwarn3, m_ui->lblCDwarn4 })
        line->setVisible(!m_ui->opt16Bit->isChecked());
}

template <typename Value>
void frmSelectCDepth::Note(
    std::optional<Choice<Value>>& choice, const Value& now, const Value& chosen)
{
    const bool isMine = choice && choice->chosen == now;
    choice = Choice<Value>{ isMine ? choice->before : now, chosen };
}

void frmSelectCDepth::ConnectDepths()
{
    const auto setsDepth = [this](QAbstractButton* option, const char* depth) {
        connect(option, &QAbstractButton::clicked, this, [this, depth] {
            Note<std::string>(m_depth, DefaultColorDepth, depth);
            DefaultColorDepth = depth;
            ShowDepthWarning();
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
    Note<Resolution>(m_resolution, { HighResOnly, LowResOnly }, chosen);
    std::tie(HighResOnly, LowResOnly) = chosen;
    emit ResolutionChosen();
}

void frmSelectCDepth::reject()
{
    // What was chosen elsewhere meanwhile stays.
    if (m_depth && DefaultColorDepth == m_depth->chosen) {
        DefaultColorDepth = m_depth->before;
        emit DepthChosen();
    }
    if (m_resolution && Resolution(HighResOnly, LowResOnly) == m_resolution->chosen) {
        std::tie(HighResOnly, LowResOnly) = m_resolution->before;
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
