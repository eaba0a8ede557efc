#include "forms/main/Greeting.h"

#include "document/WorkingFolder.h"
#include "forms/common/UserStore.h"
#include "forms/greeting/frmAbout.h"
#include "forms/greeting/frmSplash.h"
#include "forms/greeting/frmTip.h"
#include "forms/main/SettingsWindows.h"
#include "settings/Settings.h"

namespace vypx {

Greeting::Greeting(
    QWidget& form, Commands& commands, Ask& ask, Session& session, AppListCommands& appList)
    : m_form(form)
    , m_commands(commands)
    , m_ask(ask)
    , m_session(session)
    , m_appList(appList)
{
    commands.Connect(Command::Tips, this, &Greeting::mnuTips_Click);
    commands.Connect(Command::About, this, &Greeting::mnuAbout_Click);
}

void Greeting::Start()
{
    if (ShowSplash) {
        ShowSplashForm();
        return;
    }
    m_appList.DoStartup();
    if (!m_session.HasEnded() && !GiveTip())
        m_commands.Enable({ Command::MenuPasteLG, Command::MenuPasteSM }, false);
}

void Greeting::ShowSplashForm()
{
    auto* const splash = new frmSplash(m_form);
    connect(splash, &QDialog::finished, this, [this, splash] { EndSplash(splash->AsksForHelp()); });
    BringUp(*splash);
}

/// The splash is out of sight by now, and the main window can be used again.
void Greeting::EndSplash(bool asksForHelp)
{
    if (m_session.HasEnded())
        return;
    m_form.window()->update();
    m_appList.DoStartup(); // by StartupSearch, as chkDoSearch has set it
    if (m_session.HasEnded())
        return;
    GiveTip();
    if (asksForHelp)
        emit HelpAsked();
}

/// False: the user wants none at a start.
bool Greeting::GiveTip()
{
    if (!TipOnDemand && !ShowTipsAtStartup())
        return false;
    ShowTip();
    return true;
}

void Greeting::ShowTip()
{
    if (!m_tip || m_tip->isHidden()) {
        m_tip = new frmTip(AppFolder, SeededRandom(), m_form);
        connect(m_tip, &frmTip::ShowTipsChosen, this, &Greeting::ShowTipsChosen);
    }
    BringUp(*m_tip);
}

void Greeting::mnuTips_Click()
{
    TipOnDemand = true;
    ShowTip();
}

void Greeting::mnuAbout_Click()
{
    if (!m_about || m_about->isHidden())
        m_about = new frmAbout(frmAbout::SystemOfPlatform(), m_ask, m_form);
    BringUp(*m_about);
}

} // namespace vypx
