#include "forms/main/IconCommands.h"

#include "document/Document.h"
#include "document/IconStats.h"
#include "forms/common/NameValidator.h"
#include "forms/common/Text.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QTimer>
#include <utility>

namespace vypx {

IconCommands::IconCommands(const View& view, Ask& ask)
    : m_view(view)
    , m_ask(ask)
{
    connect(&view.tree, &IconTreeView::NodeClick, this,
        [this](const QTreeWidgetItem* node) { NodeClick(*node); });
    connect(&view.tree, &IconTreeView::AfterLabelEdit, this, &IconCommands::AfterLabelEdit);
    connect(&view.tree, &IconTreeView::CharactersDropped, this, &IconCommands::TellOfDropped);
    view.commands.Connect(Command::RemoveIcon, this, &IconCommands::RemoveSelected);
    view.commands.Connect(Command::ClearDeleted, this, &IconCommands::ClearDeletedIcons);
    view.commands.Connect(Command::ChangeDatabaseName, this, &IconCommands::EditName);
    OfferRemoval(Removal::Remove);
}

/// A click is done before the next one begins: what is selected meanwhile is shown afterwards.
void IconCommands::NodeClick(const QTreeWidgetItem& node)
{
    m_isClickedAgain = m_isClicking;
    if (m_isClicking)
        return;
    m_isClicking = true;
    const auto end = qScopeGuard([this] { m_isClicking = false; });
    ShowSelected(node);
    while (std::exchange(m_isClickedAgain, false))
        if (const QTreeWidgetItem* next = m_view.tree.selectedItems().value(0))
            ShowSelected(*next);
}

void IconCommands::ShowSelected(const QTreeWidgetItem& node)
{
    m_view.searchNote.setVisible(false);
    m_view.searchNote.Show({});
    const SelectionEffects effects =
        SelectNode(ToLatin1(node.text(0)), ToLatin1(m_view.tree.Root()->text(0)));
    if (effects.endsUndo)
        for (const ImagePanel* panel : m_view.panels)
            m_view.commands.Enable(panel->Shows().ofUndo, false);
    for (const auto& [command, on] : effects.enabled)
        m_view.commands.Enable(command, on);
    if (effects.removal)
        OfferRemoval(*effects.removal);
    if (effects.assignment)
        m_view.commands.Button(Command::AssignApp)
            ->setText(*effects.assignment == Assignment::AssignOrphan ? AssignOrphanCaption
                                                                      : "Change / Share");
    m_view.panels[0]->Show(effects.lg);
    m_view.panels[1]->Show(effects.sm);
    // Input that is waiting waits for the end of the click.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    emit Selected();
}

void IconCommands::OfferRemoval(Removal removal)
{
    const bool removes = removal == Removal::Remove;
    QAbstractButton& button = *m_view.commands.Button(Command::RemoveIcon);
    button.setText(removes ? "&Remove Selected" : "&Restore Selected");
    button.setIcon(QIcon(removes ? ":/art/remove.png" : ":/art/restore.png"));
}

void IconCommands::RemoveSelected()
{
    if (!m_view.commands.IsEnabled(Command::RemoveIcon))
        return;
    if (const std::optional<Removal> next = ToggleRemoval())
        OfferRemoval(*next);
    UpdateIconStats();
}

void IconCommands::ClearDeletedIcons()
{
    if (!FileLoaded)
        return;
    if (!HasMarkedRows()) {
        m_ask.Show(&m_view.tree, { .text = "There are currently no icons to be deleted." });
        return;
    }
    const auto answer = m_ask.Show(&m_view.tree,
        { .text = "About to remove all icons that are marked as deleted.\n\nAre you sure?",
            .title = "Clear Deleted Icons From Tree?",
            .icon = QMessageBox::Information,
            .buttons = QMessageBox::Ok | QMessageBox::Cancel });
    if (answer != QMessageBox::Ok)
        return;
    DropMarkedRows();
    for (ImagePanel* panel : m_view.panels)
        panel->Clear();
    OfferNothing();
    RebuildTree();
    UpdateIconStats();
}

void IconCommands::OfferNothing()
{
    DisableSlotCommands();
    OfferRemoval(Removal::Remove);
    m_view.commands.Enable({ Command::RemoveIcon, Command::AssignApp }, false);
}

void IconCommands::DisableSlotCommands()
{
    for (const ImagePanel* panel : m_view.panels) {
        m_view.commands.Enable(panel->Shows().ofPicture, false);
        m_view.commands.Enable(panel->Shows().ofUndo, false);
    }
}

void IconCommands::RebuildTree()
{
    RebuildIconTree();
    ShowTree();
}

void IconCommands::ShowTree()
{
    m_view.tree.Fill(Tree);
    if (!Tree.HasRoot())
        m_view.commands.Enable(Command::ChangeDatabaseName, false);
}

void IconCommands::EditName()
{
    m_view.notes.Tell(Notes::Kind::Name, {});
    m_view.tree.EditRoot();
}

/// On purpose: DatabaseName takes the text that the tree refuses as well, and neither Parent nor
/// IconsetChanged follow.
void IconCommands::AfterLabelEdit(const QString& text)
{
    constexpr int MaxNameLength = 31;
    const bool tooLong = text.size() > MaxNameLength;
    if (!tooLong && !text.isEmpty())
        m_view.tree.Root()->setText(0, text);
    DatabaseName = ToLatin1(text);
    m_view.status.ShowDatabaseName(DatabaseName);
    m_view.status.ShowTitle();
    m_view.tree.scrollToItem(m_view.tree.Root());
    m_view.tree.setFocus();
    m_nameTooLong = tooLong;
    // Not before the editor has closed, which a box of its own would disturb.
    if (tooLong)
        QTimer::singleShot(0, this, &IconCommands::TellOfLongName);
}

void IconCommands::TellOfLongName()
{
    if (std::exchange(m_nameTooLong, false))
        m_ask.Show(&m_view.tree, { .text = "Maximum name length is 31 characters." });
}

void IconCommands::TellOfDropped(const QString& characters)
{
    m_view.notes.Tell(Notes::Kind::Name, DroppedCharactersText(characters));
}

void IconCommands::FinishName()
{
    m_view.tree.FinishEdit();
    TellOfLongName();
}

void IconCommands::UpdateIconStats()
{
    CountIcons();
    ShowCount();
}

void IconCommands::ShowCount()
{
    m_view.commands.Enable(Command::ClearDeleted, StatDeletable);
    m_view.tree.Refresh(Tree);
    m_view.tree.parentWidget()->update();
    m_view.panels[0]->update();
    m_view.status.ShowTitle();
    emit Counted();
}

} // namespace vypx
