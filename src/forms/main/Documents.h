#pragma once

#include "forms/common/Ask.h"
#include "forms/main/IconCommands.h"
#include "forms/main/Loading.h"
#include "forms/main/SettingsWindows.h"

#include <QObject>
#include <QPointer>

namespace vypx {

class frmNewIconset;

/// The commands that begin and end a document: New, Open, Load Template, Close. The windows that
/// the first three show don't block, so the document can change under them; it is then asked about
/// once more.
class Documents : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        Panels panels;
        Commands& commands;
        StatusTexts& status;
        Notes& notes;
    };

    Documents(const View& view, Ask& ask, Loading& loading, IconCommands& icons,
        SettingsWindows& settings);

    void New();
    void Open();
    void LoadTemplate();
    void Close();
    /// Opens a file as Open or Load Template would, by the ending of its name, without their
    /// dialog and question: there is no document. Without a path nothing happens.
    void OpenNamed(const std::string& path);
    /// The depth window stands open for such a file.
    bool AwaitsNamed() const { return !m_named.empty(); }
    /// Asks the question before a changed document is closed. True: it may be, or it is unchanged.
    bool MayCloseIconset();
    /// Closes the windows that lead to another document; what was chosen in them is taken back.
    void CloseWindows();
    /// Keeps the windows that lead to another document from leading there for a while.
    void HoldWindows(bool on);

signals:
    /// There is no document any more, or another one.
    void Replaced();
    /// The file of OpenNamed will not be opened here: while the depth window stood for it, another
    /// command or document took its place, or the program was left.
    void NamedPutAside(const std::string& path);

private:
    /// A command that leaves the open document.
    enum class Leaving { ForNew, ForOpen, ForTemplate };

    bool MayLeave(Leaving command);
    bool ChangedSinceAsked() const;
    void OpenFile(Leaving command);
    void GoOn();
    void Load();
    void ForgetDropped();
    bool PutNamedAside();
    void ShowNewIconset();
    void MakeNewIconset(const QString& name);
    void GiveUp();
    bool AsksForName() const;

    void ShowNoDocument();
    void ShowNoIcons();
    void DocumentBegan();
    void DocumentOpened();
    void EmptyTables();

    View m_view;
    Ask& m_ask;
    Loading& m_loading;
    IconCommands& m_icons;
    SettingsWindows& m_settings;
    QPointer<frmNewIconset> m_newIconset;
    unsigned m_changesWhenAsked = 0;
    std::string m_named; // path that the next load takes instead of asking; empty: it asks
};

} // namespace vypx
