#pragma once

#include "document/RunningCopies.h"
#include "forms/imaging/Panels.h"
#include "forms/main/AppSearch.h"
#include "forms/main/BusyGuard.h"
#include "forms/main/CatalogReading.h"
#include "forms/main/Commands.h"
#include "forms/main/Documents.h"
#include "forms/main/SavedSettings.h"
#include "forms/main/SettingsWindows.h"
#include "forms/main/SideWindows.h"
#include "forms/main/ViewEntries.h"
#include "forms/main/WindowOrder.h"

#include <QLabel>
#include <QWidget>
#include <functional>

namespace vypx {

/// The program from its start to its end: folders, settings, catalogs, the working folder, and
/// what is written and deleted at the exit.
class Session {
public:
    /// `working` is lblWorking.
    struct View {
        QWidget& frame;
        QWidget& form;
        Panels panels;
        Commands& commands;
        ViewEntries& views;
        QLabel& working;
        SideWindows& sides;
        WindowOrder& order;
    };

    Session(const View& view, BusyGuard& busy, SavedSettings& settings, SettingsWindows& windows,
        Documents& documents, CatalogReading& catalogs, AppSearch& search);

    /// From the first step to the main window, before anything greets. Folders are the platform's
    /// own paths. Throws std::filesystem::filesystem_error when a working folder can't be made.
    void StartUp(const QString& programFolder, const QString& userFolder);

    /// Leaves the program: at once, without a question about changes; during long work at its end.
    /// A search is stopped.
    void Exit();
    /// An exit was asked for, which may have to wait.
    bool IsLeaving() const { return m_isLeaving; }
    bool HasEnded() const { return m_hasEnded; }
    /// `act` runs when the program has been left, its windows still there.
    void AtEnd(std::function<void()> act) { m_atEnd = std::move(act); }

private:
    void TakeWorkingFolder();
    void PaintColours();
    void ShowInFrame();
    void End();

    View m_view;
    BusyGuard& m_busy;
    SavedSettings& m_settings;
    SettingsWindows& m_windows;
    Documents& m_documents;
    CatalogReading& m_catalogs;
    AppSearch& m_search;
    RunningCopies m_copies;
    std::function<void()> m_atEnd;
    bool m_isLeaving = false, m_hasEnded = false;
};

} // namespace vypx
