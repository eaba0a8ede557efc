#pragma once

#include "forms/common/Ask.h"
#include "forms/main/Commands.h"
#include "forms/main/IconCommands.h"
#include "forms/main/Notes.h"
#include "forms/main/SavedSettings.h"
#include "forms/main/SettingsWindows.h"
#include "forms/main/StatusTexts.h"

#include <QObject>
#include <optional>
#include <string>

namespace vypx {

/// How a save command ended.
enum class SaveEnd {
    Saved,
    Refused, ///< by a check or an answer; the file is as it was
    Failed,  ///< without a box: its dialog was cancelled, or the file could not be written
};

/// Where a dialog for a file to save starts: in the folder of the last save where that is to be
/// taken, else in that of the open iconset.
QString FolderToSaveIn(bool takesLast);

/// The save commands: they ask, choose the file and tell what came of it.
class Saving : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        Commands& commands;
        StatusTexts& status;
        Notes& notes;
    };

    Saving(const View& view, Ask& ask, IconCommands& icons, SavedSettings& settings,
        const SettingsWindows& windows);

    /// Checks that the document can be saved, and saves it under its name or a new one.
    SaveEnd SaveIconset();
    void SaveAs();

signals:
    /// FileName is another one.
    void FileNamed();

private:
    void Message(std::string_view text);
    bool PassesChecks();
    SaveEnd SaveToKnownName();
    SaveEnd SaveNewIconset();
    std::optional<std::string> ChooseTarget();
    void NameFile(const std::string& path);
    void TakeTargetFolder();
    bool Compile();

    View m_view;
    Ask& m_ask;
    IconCommands& m_icons;
    SavedSettings& m_settings;
    const SettingsWindows& m_windows;
};

} // namespace vypx
