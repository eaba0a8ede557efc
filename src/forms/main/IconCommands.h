#pragma once

#include "forms/common/Ask.h"
#include "forms/common/CutLabel.h"
#include "forms/imaging/Panels.h"
#include "forms/main/Commands.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/Notes.h"
#include "forms/main/StatusTexts.h"

#include <QObject>

namespace vypx {

/// What cmdAssignApp reads while the selected icon has no known owner.
inline constexpr const char* AssignOrphanCaption = "Assign Orphan";

/// What is done in the tree: selecting an icon, marking it for removal, clearing the marked ones,
/// renaming the database; and the recount that follows every change.
class IconCommands : public QObject {
    Q_OBJECT

public:
    /// What it shows things in. `searchNote` is lblSearchingApp.
    struct View {
        IconTreeView& tree;
        Panels panels;
        Commands& commands;
        StatusTexts& status;
        Notes& notes;
        CutLabel& searchNote;
    };

    IconCommands(const View& view, Ask& ask);

    /// A node was clicked: shows its pictures and enables what it allows. Also to show the selected
    /// one anew.
    void NodeClick(const QTreeWidgetItem& node);
    void RemoveSelected();
    void ClearDeletedIcons();
    void RebuildTree();
    /// Shows `Tree` in one go.
    void ShowTree();
    void EditName();
    /// A name that is still being typed counts, before a save; one that is too long is told.
    void FinishName();
    /// Counts the icons anew and shows what follows from that.
    void UpdateIconStats();
    /// The same for a count that was made already.
    void ShowCount();

    /// No icon is selected: nothing is offered for one.
    void OfferNothing();
    void DisableSlotCommands();

signals:
    /// The icons were counted anew; a document may have begun or ended.
    void Counted();
    /// What the selection shows and allows is on show.
    void Selected();

private:
    void ShowSelected(const QTreeWidgetItem& node);
    void AfterLabelEdit(const QString& text);
    void TellOfLongName();
    void TellOfDropped(const QString& characters);
    void OfferRemoval(Removal removal);

    View m_view;
    Ask& m_ask;
    bool m_nameTooLong = false; // still to be told
    bool m_isClicking = false, m_isClickedAgain = false;
};

} // namespace vypx
