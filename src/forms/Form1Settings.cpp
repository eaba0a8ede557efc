#include "document/RunCount.h"
#include "document/SettingsFile.h"
#include "forms/Ask.h"
#include "forms/Form1.h"
#include "forms/Text.h"
#include "forms/frmProgOptions.h"
#include "forms/frmSelectCDepth.h"
#include "settings/Settings.h"
#include "ui_Form1.h"

namespace vypx {

void Form1::TellOfSettings(const char* text)
{
    m_ask.Show(this, { .text = text, .icon = QMessageBox::Information });
}

void Form1::LoadSettings()
{
    SettingsSaved = false;
    const bool written = InitializeIni();
    if (!written)
        TellOfSettings("Failed to save value to TBQX.ini file.");
    const std::vector<std::string> bad = ReadSettings();
    if (!bad.empty()) {
        QString text = tr("VYPX.ini holds no usable number under these keys. "
                          "Their defaults are used:\n");
        for (const std::string& key : bad)
            text += "\n" + Shown(key);
        m_ask.Show(this, { .text = text, .icon = QMessageBox::Information });
    }
    if (!written)
        TellOfSettings("Failed to get value from VYPX.ini.");
}

void Form1::SaveSettings()
{
    // A maximised frame comes back at the size that it had before.
    const bool isNormal = !m_frame.isMaximized() && !m_frame.isFullScreen();
    const QSize size = isNormal ? m_frame.size() : m_frame.normalGeometry().size();
    const WindowsToSave windows{
        .mainWidth = size.width() * TwipsPerPixel,
        .mainHeight = size.height() * TwipsPerPixel,
    };
    if (!SaveIni(windows))
        TellOfSettings("Failed to save value to TBQX.ini file.");
}

void Form1::SaveRunCount(int count)
{
    if (!WriteRunCount(count))
        TellOfSettings("Failed to get value from VYPX.ini.");
}

void Form1::mnuOptions_Click()
{
    if (!m_options) {
        m_options = new frmProgOptions(this);
        connect(m_options, &frmProgOptions::DepthChosen, this, [this] {
            if (m_depthWindow)
                m_depthWindow->TakeDepthOfOthers();
        });
        connect(m_options, &frmProgOptions::ResolutionChosen, this, [this] {
            if (m_depthWindow)
                m_depthWindow->TakeResolutionOfOthers();
            ShowResolution();
        });
        connect(m_options, &frmProgOptions::Done, this, &Form1::TakeOptions);
    }
    m_options->show();
    m_options->raise();
    m_options->activateWindow();
}

void Form1::ShowResolution()
{
    ShowPanelsByOption();
    CheckResolutionEntry();
    RefreshOptions();
}

void Form1::RefreshOptions()
{
    if (m_options)
        m_options->ShowChoices();
}

void Form1::TakeOptions()
{
    if (!m_exited) // an exit saves them itself
        SaveSettings();
    ShowDepth();
}

void Form1::ShowDepth() { m_ui->lblTargetCD->setText(Shown(DefaultColorDepth)); }

} // namespace vypx
