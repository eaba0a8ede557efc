#include "forms/main/SavedSettings.h"

#include "document/RunCount.h"
#include "document/SettingsFile.h"
#include "forms/common/Text.h"
#include "settings/Settings.h"

namespace vypx {

namespace {

constexpr const char* NotRead = "Failed to get value from VYPX.ini.";
constexpr const char* NotWritten = "Failed to save value to TBQX.ini file.";

} // namespace

void SavedSettings::Tell(const QString& text)
{
    m_ask.Show(&m_frame, { .text = text, .icon = QMessageBox::Information });
}

void SavedSettings::Load()
{
    SettingsSaved = false;
    const bool written = InitializeIni();
    if (!written)
        Tell(NotWritten);
    const std::vector<std::string> bad = ReadSettings();
    if (!bad.empty()) {
        QString text = QObject::tr("VYPX.ini holds no usable number under these keys. "
                                   "Their defaults are used:\n");
        for (const std::string& key : bad)
            text += "\n" + FromLatin1(key);
        Tell(text);
    }
    if (!written)
        TellNotRead();
}

void SavedSettings::Save()
{
    // A maximised frame comes back at the size that it had before.
    const bool isNormal = !m_frame.isMaximized() && !m_frame.isFullScreen();
    const QSize size = isNormal ? m_frame.size() : m_frame.normalGeometry().size();
    WindowsToSave windows{
        .mainWidth = size.width() * TwipsPerPixel,
        .mainHeight = size.height() * TwipsPerPixel,
    };
    m_sides.TellPlaces(windows);
    if (!SaveIni(windows))
        Tell(NotWritten);
}

void SavedSettings::SaveRunCount(int count)
{
    if (!WriteRunCount(count))
        TellNotRead();
}

void SavedSettings::TellNotRead() { Tell(NotRead); }

} // namespace vypx
