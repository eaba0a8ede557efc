#include "forms/main/SettingsWindows.h"

#include "forms/common/DisabledWindow.h"
#include "forms/common/Text.h"
#include "forms/settings/frmProgOptions.h"
#include "forms/settings/frmSelectCDepth.h"
#include "settings/Settings.h"

namespace vypx {

void BringUp(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

SettingsWindows::SettingsWindows(
    QWidget& form, Commands& commands, ViewEntries& views, QLabel& depthLabel, Ask& ask)
    : m_form(form)
    , m_views(views)
    , m_depthLabel(depthLabel)
    , m_ask(ask)
{
    commands.Connect(Command::Options, this, [this] { ShowOptions(); });
}

void SettingsWindows::ShowOptions()
{
    if (!m_options) {
        m_options = new frmProgOptions(m_ask, &m_form);
        connect(m_options, &frmProgOptions::DepthChosen, this, [this] {
            m_choices.ForgetDepth();
            if (m_depthWindow)
                m_depthWindow->ShowChoices();
        });
        connect(m_options, &frmProgOptions::ResolutionChosen, this, [this] {
            m_choices.ForgetResolution();
            m_views.ShowByOption();
            if (m_depthWindow)
                m_depthWindow->ShowChoices();
        });
        connect(m_options, &frmProgOptions::Done, this, [this] {
            emit OptionsDone();
            ShowDepth();
        });
    }
    BringUp(*m_options);
}

void SettingsWindows::AskForDepth()
{
    if (!m_depthWindow) {
        m_depthWindow = new frmSelectCDepth(m_choices, &m_form);
        connect(m_depthWindow, &frmSelectCDepth::DepthChosen, this, [this] {
            if (m_options)
                m_options->ShowChoices();
        });
        connect(m_depthWindow, &frmSelectCDepth::ResolutionChosen, this, [this] {
            m_views.ShowByOption();
            if (m_options)
                m_options->ShowChoices();
        });
        connect(m_depthWindow, &frmSelectCDepth::GivenUp, this, &SettingsWindows::DepthGivenUp);
        connect(m_depthWindow, &frmSelectCDepth::Done, this, [this] {
            ShowDepth();
            emit DepthDone();
        });
    }
    BringUp(*m_depthWindow);
}

bool SettingsWindows::AsksForDepth() const { return m_depthWindow && m_depthWindow->isVisible(); }

void SettingsWindows::CloseDepthWindow()
{
    if (m_depthWindow)
        m_depthWindow->close();
}

void SettingsWindows::HoldDepthWindow(bool on)
{
    if (m_depthWindow)
        HoldWindow(*m_depthWindow, on);
}

void SettingsWindows::TakeBackChoices()
{
    const DepthChoices::TakenBack taken = m_choices.TakeBack();
    if (taken.resolution) // else what is in sight stays, which the View menu chooses too
        m_views.ShowByOption();
    ShowDepth();
    if (m_options)
        m_options->ShowChoices();
    if (m_depthWindow)
        m_depthWindow->ShowChoices();
}

void SettingsWindows::ShowDepth() { m_depthLabel.setText(FromLatin1(DefaultColorDepthWord())); }

void SettingsWindows::ShowTipsOption()
{
    if (m_options)
        m_options->ShowTipsOption();
}

void SettingsWindows::ShowDepthLock()
{
    if (m_options)
        m_options->ShowDepthLock();
}

void SettingsWindows::CloseAll()
{
    CloseDepthWindow();
    if (m_options)
        m_options->CloseAnyway();
}

} // namespace vypx
