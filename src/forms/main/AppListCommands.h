#pragma once

#include "forms/common/Ask.h"
#include "forms/common/CutLabel.h"
#include "forms/main/AppSearch.h"
#include "forms/main/CatalogReading.h"
#include "forms/main/Documents.h"
#include "forms/main/IconCommands.h"
#include "forms/main/Loading.h"

#include <QObject>
#include <QPointer>

namespace vypx {

class frmAddAppManual;
class frmEditAppList;

/// The windows that edit the catalogs, the searches for applications, and the reload that gives
/// unknown icons their names. There is one window of each kind at most.
class AppListCommands : public QObject {
    Q_OBJECT

public:
    /// `working` is lblWorking, `searchNote` lblSearchingApp.
    struct View {
        QWidget& form;
        Commands& commands;
        Notes& notes;
        QLabel& working;
        CutLabel& searchNote;
    };

    AppListCommands(const View& view, Ask& ask, AppSearch& search, CatalogReading& catalogs,
        IconCommands& icons, Loading& loading, Documents& documents);

    void cmdEditAppList_Click();

    /// The search of a start, if StartupSearch is on.
    void DoStartup();
    /// A search that the main form tells of. Where it looks is set by the caller.
    void UpdateAppList();

    /// FileLoaded or FileName may be others.
    void DocumentChanged();
    /// Of both windows. The one that edits the list stops a search first.
    void CloseWindows();

signals:
    /// The help for the window that edits the list is wanted.
    void HelpAsked();

private:
    bool IsOpen() const;
    void OpenEditor();
    void cmdManual_Click();
    void cmdGetAppsAuto_Click();
    void SearchIn(const QString& folder);
    void cmdApplyAndReload_Click();

    void RunSearch();
    void FinishSearch();
    void ShowSearching(bool on);
    void ShowProgress(const QString& path);
    void ReadAppList();

    View m_view;
    Ask& m_ask;
    AppSearch& m_search;
    CatalogReading& m_catalogs;
    IconCommands& m_icons;
    Loading& m_loading;
    Documents& m_documents;
    QPointer<frmEditAppList> m_editor;
    QPointer<frmAddAppManual> m_manual;
    bool m_tellsOfUpdate = false; // the search is one of a start
};

} // namespace vypx
