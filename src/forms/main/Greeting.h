#pragma once

#include "forms/common/Ask.h"
#include "forms/main/AppListCommands.h"
#include "forms/main/Session.h"

#include <QObject>
#include <QPointer>

namespace vypx {

class frmAbout;
class frmTip;

/// What the user sees first: splash, search for applications and tip of the day, one after the
/// other as the settings say; and the tip and the about window of the Help menu.
class Greeting : public QObject {
    Q_OBJECT

public:
    Greeting(
        QWidget& form, Commands& commands, Ask& ask, Session& session, AppListCommands& appList);

    /// The last steps of a start. They end at once where the user leaves the program meanwhile.
    void Start();

signals:
    /// F1 was pressed on the splash, which has ended.
    void HelpAsked();
    /// Whether tips are shown at a start was changed.
    void ShowTipsChosen();

private:
    void ShowSplashForm();
    void EndSplash(bool asksForHelp);
    bool GiveTip();
    void ShowTip();
    void mnuTips_Click();
    void mnuAbout_Click();

    QWidget& m_form;
    Commands& m_commands;
    Ask& m_ask;
    Session& m_session;
    AppListCommands& m_appList;
    QPointer<frmTip> m_tip;
    QPointer<frmAbout> m_about;
};

} // namespace vypx
