#pragma once

#include "forms/common/Ask.h"
#include "forms/main/BusyGuard.h"
#include "forms/main/IconCommands.h"
#include "forms/main/LoadWatcher.h"
#include "forms/main/SettingsWindows.h"
#include "reader/LoadFile.h"

#include <QObject>
#include <QPointer>

namespace vypx {

class frmNewIconset;

/// The commands that begin and end a document: New, Open, Close. The windows that New and Open
/// show don't block, so the document can change under them; it is then asked about once more.
class Documents : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        IconTreeView& tree;
        Panels panels;
        Commands& commands;
        StatusTexts& status;
        Notes& notes;
    };

    Documents(const View& view, Ask& ask, BusyGuard& busy, LoadWatcher& watcher,
        IconCommands& icons, SettingsWindows& settings);

    void New();
    void Open();
    void Close();
    /// Asks for an iconset, or takes the one that is waiting, and opens it.
    void LoadFile();

    /// Closes the windows that lead to another document; what was chosen in them is taken back.
    void CloseWindows();

private:
    /// A command that leaves the open document.
    enum class Leaving { ForNew, ForOpen };

    bool MayLeave(Leaving command);
    bool ChangedSinceAsked() const;
    void GoOn();
    void ShowNewIconset();
    void MakeNewIconset(const QString& name);
    void GiveUp();
    bool AsksForName() const;

    QString ChooseIconset();
    void LeaveCancelledLoad();
    LoadReport Load(const LoadRequest& request);
    void EndLoad(const LoadRequest& request, const LoadReport& report);
    void ShowNoDocument();
    void ShowNoIcons();
    void DocumentBegan();
    void DocumentOpened();
    void EmptyTables();

    View m_view;
    Ask& m_ask;
    BusyGuard& m_busy;
    LoadWatcher& m_watcher;
    IconCommands& m_icons;
    SettingsWindows& m_settings;
    QPointer<frmNewIconset> m_newIconset;
    unsigned m_changesWhenAsked = 0;
};

} // namespace vypx
