#include "forms/greeting/frmAbout.h"

#include "forms/common/ProgramName.h"
#include "forms/common/Text.h"
#include "forms/greeting/SystemInformation.h"
#include "forms/greeting/frmSystemInfo.h"
#include "platform/SystemTool.h"
#include "ui_frmAbout.h"

#include <QFileInfo>
#include <QProcess>
#include <utility>

namespace vypx {

namespace {

constexpr const char* Unavailable = "System Information Is Unavailable At This Time";

} // namespace

frmAbout::System frmAbout::SystemOfPlatform()
{
    System system;
    system.tool = [] {
        return platform::FindSystemTool({
            .exists = [](const std::string& file) { return QFileInfo::exists(PathText(file)); },
        });
    };
    // No shell: a path of any letters is one program.
    system.run = [](const QString& program) { return QProcess::startDetached(program, {}); };
#ifndef Q_OS_WIN
    system.information = SystemInformation;
#endif
    return system;
}

frmAbout::frmAbout(System system, Ask& ask, QWidget& form)
    : FrontForm(form)
    , m_ui(std::make_unique<Ui::frmAbout>())
    , m_system(std::move(system))
    , m_ask(ask)
{
    m_ui->setupUi(this);
    TakeControls();
    setWindowTitle(QString("About ") + ProgramTitle);
    m_ui->imgProgram->setPixmap(form.window()->windowIcon().pixmap(64));
    m_ui->lblTitle->setText(ProgramTitle);
    m_ui->lblVersion->setText("Version " + VersionNumber());
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &frmAbout::accept);
    connect(m_ui->cmdSysInfo, &QPushButton::clicked, this, &frmAbout::StartSysInfo);
    m_ui->cmdOK->setFocus();
}

frmAbout::~frmAbout() = default;

void frmAbout::StartSysInfo()
{
    const std::optional<std::string> tool = m_system.tool();
    if (tool && !tool->empty() && m_system.run(PathText(*tool)))
        return;
    const QString information = m_system.information ? m_system.information() : QString();
    if (information.isEmpty())
        m_ask.Show(this, { .text = Unavailable });
    else
        ShowInformation(information);
}

void frmAbout::ShowInformation(const QString& text)
{
    auto* window = findChild<frmSystemInfo*>();
    if (!window)
        window = new frmSystemInfo(this);
    window->ShowText(text);
    window->show();
    window->raise();
    window->activateWindow();
}

} // namespace vypx
