#pragma once

#include "forms/common/Ask.h"
#include "forms/main/BusyGuard.h"
#include "forms/main/IconCommands.h"
#include "forms/main/LoadWatcher.h"
#include "reader/LoadFile.h"

#include <QObject>

namespace vypx {

/// The road of a file into the program: chooses it, has it read under the guard, and shows how that
/// ended.
class Loading : public QObject {
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

    Loading(const View& view, Ask& ask, BusyGuard& busy, LoadWatcher& watcher, IconCommands& icons);

    /// Asks for an iconset, in TemplateMode for a template, or takes the one that is waiting, and
    /// opens it. TemplateMode ends with it, whatever comes of it: no other command is to inherit
    /// it.
    void LoadFile();

signals:
    /// The document is open; the rest of the load goes on.
    void Opened();
    /// No document came of the load. One that was open may be so still.
    void NotOpened();
    /// There is no document any more.
    void NothingLeft();

private:
    void ChooseAndLoad();
    QString ChooseIconset();
    void LeaveCancelledLoad();
    LoadReport Load(const LoadRequest& request);
    void EndLoad(const LoadRequest& request, const LoadReport& report);

    View m_view;
    Ask& m_ask;
    BusyGuard& m_busy;
    LoadWatcher& m_watcher;
    IconCommands& m_icons;
};

} // namespace vypx
