#pragma once

#include "forms/common/Ask.h"
#include "forms/imaging/Panels.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/StatusTexts.h"
#include "reader/LoadListener.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QObject>
#include <QProgressBar>
#include <map>
#include <string>

namespace vypx {

/// What the main form shows of a load while it runs: boxes, the busy note, the progress bar. The
/// work runs under a BusyGuard; pending events are run at the load's own points and, for
/// progress, at most some 60 times a second.
class LoadWatcher : public QObject, public LoadListener {
    Q_OBJECT

public:
    /// What it shows things in. `working` is lblWorking.
    struct View {
        QWidget& form;
        IconTreeView& tree;
        Panels panels;
        StatusTexts& status;
        QLabel& working;
        QProgressBar& progress;
    };

    /// Of one text, whatever picture it names, so many boxes are shown in a load; a broken file
    /// could ask for one for each of its icons.
    static constexpr int MostBoxesOfOneText = 3;

    LoadWatcher(const View& view, Ask& ask);

    /// A load begins: no text was shown yet.
    void Begin();
    /// What every exit of a load does: no busy note, the tree in sight.
    void End();
    /// A sentence for each text that came more often than it was shown; empty if none did.
    QString WhatWasNotShown() const;

    void Message(std::string_view text) override;

signals:
    /// The file was chosen; the panels are to be shown by the options.
    void Began();
    /// The settings are to be written.
    void FolderChosen();
    /// There is no document any more, and no tree.
    void Cleared();
    void DocumentOpened();
    /// The icons were counted anew.
    void Counted();

private:
    void BeginLoad() override;
    void FolderRemembered() override { emit FolderChosen(); }
    void TreeCleared() override;
    void DocumentNamed() override;
    void ClearPictures() override;
    void WalkGivenUp() override;
    void Busy(std::string_view text) override;
    void BusyEnded() override;
    void ProgressMaximum(int maximum) override;
    void ProgressShown() override;
    void Progress(int count) override;
    void ProgressHidden() override;
    void Opened() override;
    void StatsChanged() override { emit Counted(); }

    View m_view;
    Ask& m_ask;
    QElapsedTimer m_sincePaint;
    int m_count = 0; // of the progress bar
    struct Told {
        int times = 0;
        std::string last; // text
    };
    std::map<std::string, Told> m_told; // by the text without what it names
};

} // namespace vypx
