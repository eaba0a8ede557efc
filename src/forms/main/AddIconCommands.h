#pragma once

#include "catalogs/IconRows.h"
#include "forms/common/Ask.h"
#include "forms/main/BusyGuard.h"
#include "forms/main/IconCommands.h"

#include <QObject>
#include <QPointer>
#include <functional>

namespace vypx {

class frmAddIcon;

/// The commands that add icons and give the selected one another owner, or a second one: the
/// window for that, and what comes of it on the main form. There is one such window at most.
class AddIconCommands : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        IconTreeView& tree;
        Panels panels;
        Commands& commands;
        Notes& notes;
    };

    AddIconCommands(const View& view, Ask& ask, BusyGuard& busy, IconCommands& icons);

    void cmdAddIcon_Click();
    void cmdAssignApp_Click();

    /// A catalog was read anew.
    void CatalogsChanged();

    /// The document has ended, or another one has begun: nothing is waiting to be added, and there
    /// is no icon whose owner could be changed.
    void DocumentChanged();
    /// What the open window offers may be something else by now: it fills its list anew.
    void ShowAvailable();

private:
    using Work = std::function<RowsOutcome()>;
    using Finish = std::function<void(const RowsOutcome& outcome)>;

    void OpenWindow();
    void MarkChanged();
    bool IsOpen() const;
    PixelSize HighResOnShow() const;
    std::string SelectedIcon() const;

    void Add(const std::vector<std::string>& labels);
    void Share(AssignRequest request);
    void Assign(AssignRequest request);
    void Run(const Work& work, const Finish& finish);
    bool ShowNode(const std::string& node);
    void DisableStored();

    View m_view;
    Ask& m_ask;
    BusyGuard& m_busy;
    IconCommands& m_icons;
    QPointer<frmAddIcon> m_window;
};

} // namespace vypx
