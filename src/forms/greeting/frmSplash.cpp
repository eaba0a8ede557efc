#include "forms/greeting/frmSplash.h"

#include "forms/common/HeldKeys.h"
#include "forms/common/ProgramName.h"
#include "settings/Settings.h"
#include "ui_frmSplash.h"

#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>

namespace vypx {

namespace {

bool IsModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Mode_switch:
        return true;
    default:
        return false;
    }
}

void SetsVariable(QCheckBox& box, bool& variable)
{
    QObject::connect(&box, &QCheckBox::toggled, &box, [&variable](bool on) { variable = on; });
}

} // namespace

frmSplash::frmSplash(QWidget& form)
    : FrontForm(form)
    , m_ui(std::make_unique<Ui::frmSplash>())
{
    constexpr QSize Picture(480, 300);
    m_ui->setupUi(this);
    setWindowFlag(Qt::FramelessWindowHint);
    TakeControls();
    m_ui->imgSplash->setPixmap(QIcon(":/art/splash.png").pixmap(Picture, devicePixelRatioF()));
    m_ui->lblVersion->setText("Version " + VersionNumber());
    QFont large = m_ui->lblCompanyProduct->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    m_ui->lblCompanyProduct->setFont(large);
    m_ui->chkDoSearch->setChecked(StartupSearch);
    m_ui->chkShowSplash->setChecked(true);
    SetsVariable(*m_ui->chkDoSearch, StartupSearch);
    SetsVariable(*m_ui->chkShowSplash, ShowSplash);
}

frmSplash::~frmSplash() = default;

void frmSplash::showEvent(QShowEvent* event)
{
    FrontForm::showEvent(event);
    m_ui->picDummy->setFocus(); // so that any key reaches the form
}

/// One that is held from before the window came is not meant for it.
void frmSplash::keyPressEvent(QKeyEvent* event)
{
    if (IsModifier(event->key()) || HeldKeys::OfProgram().IsRepeat(*event))
        return;
    m_asksForHelp = event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier;
    close();
}

/// Taken, so that the release comes here too.
void frmSplash::mousePressEvent(QMouseEvent* event) { event->accept(); }

void frmSplash::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(mapFromGlobal(event->globalPosition().toPoint())))
        close();
}

} // namespace vypx
