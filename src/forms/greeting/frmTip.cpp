#include "forms/greeting/frmTip.h"

#include "document/Tips.h"
#include "document/WorkingFolder.h"
#include "forms/common/Text.h"
#include "forms/common/UserStore.h"
#include "ui_frmTip.h"

#include <random>
#include <utility>

namespace vypx {

namespace {

QString NotFoundText()
{
    const QString name = FromLatin1(TipFileName);
    return "That the " + name + " file was not found? \n" + "Create a text file named " + name
        + " using NotePad with 1 tip per line. "
        + "Then place it in the same directory as the application. ";
}

} // namespace

frmTip::Random SeededRandom()
{
    return [engine = std::mt19937(std::random_device{}())]() mutable {
        return std::uniform_real_distribution<double>(0, 1)(engine);
    };
}

frmTip::frmTip(const std::string& folder, Random random, QWidget& form)
    : FrontForm(form)
    , m_ui(std::make_unique<Ui::frmTip>())
    , m_random(std::move(random))
{
    m_ui->setupUi(this);
    TakeControls();
    m_ui->lblTipText->setBackgroundRole(QPalette::Base);
    m_ui->imgTip->setPixmap(form.window()->windowIcon().pixmap(48));
    // On purpose: also when a tip is shown on demand and none at a start.
    m_ui->chkLoadTipsAtStartup->setChecked(true);
    connect(
        m_ui->chkLoadTipsAtStartup, &QCheckBox::toggled, this, &frmTip::chkLoadTipsAtStartup_Click);
    connect(m_ui->cmdNextTip, &QPushButton::clicked, this, &frmTip::cmdNextTip_Click);
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmTip::accept);
    if (!LoadTips(folder + BelowFolder(std::string(TipFileName))))
        m_ui->lblTipText->setText(NotFoundText());
    m_ui->cmdOK->setFocus();
}

frmTip::~frmTip() = default;

void frmTip::done(int result)
{
    TipOnDemand = false;
    FrontForm::done(result);
}

bool frmTip::LoadTips(const std::string& sFile)
{
    std::optional<std::vector<std::string>> tips = ReadTips(sFile);
    if (!tips)
        return false;
    m_tips = std::move(*tips);
    PickAnother();
    return true;
}

/// On purpose: it may be the same one again.
void frmTip::PickAnother()
{
    m_current = PickTip(m_tips.size(), m_random());
    DisplayCurrentTip();
}

void frmTip::DisplayCurrentTip()
{
    if (m_current == 0)
        return;
    m_ui->lblTipText->setText(QString::fromStdString(m_tips[m_current - 1]));
    m_ui->tipScroll->ensureVisible(0, 0);
}

void frmTip::cmdNextTip_Click() { PickAnother(); }

void frmTip::chkLoadTipsAtStartup_Click(bool on)
{
    SaveShowTipsAtStartup(on);
    emit ShowTipsChosen();
}

} // namespace vypx
