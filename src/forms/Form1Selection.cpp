#include "document/Document.h"
#include "document/Selection.h"
#include "forms/Ask.h"
#include "forms/Commands.h"
#include "forms/Form1.h"
#include "forms/Text.h"
#include "ui_Form1.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace vypx {

void Form1::TreeView1_NodeClick(const QTreeWidgetItem& node)
{
    m_ui->lblSearchingApp->setVisible(false);
    m_ui->lblSearchingApp->clear();
    const SelectionEffects effects =
        SelectNode(Inner(node.text(0)), Inner(m_ui->TreeView1->Root()->text(0)));
    if (effects.endsUndo)
        Enable({ "cmdUndoLG", "mnuUndo_LG", "cmdUndoSM", "mnuUndo_SM" }, false);
    for (const auto& [command, on] : effects.enabled)
        Enable(command, on);
    if (effects.removal)
        OfferRemoval(*effects.removal);
    if (effects.assignCaption)
        m_ui->cmdAssignApp->setText(Shown(*effects.assignCaption));
    ShowSelection(m_panelLG, effects.lg);
    ShowSelection(m_panelSM, effects.sm);
    QCoreApplication::processEvents();
}

void Form1::ShowSelection(Panel& panel, const SlotEffects& effects)
{
    ClearPicture(panel);
    panel.size->clear();
    panel.sizeLimit->setText(Shown(effects.sizeLimit));
    if (effects.colourText)
        panel.colour->setText(Shown(*effects.colourText));
    if (effects.swatch)
        panel.swatch->SetBackColour(ScreenColour(*effects.swatch));
    if (effects.showsColour)
        ShowColour(panel, *effects.showsColour);
    if (effects.draw)
        DrawSlot(panel);
    if (effects.hidesColour)
        HideColour(panel);
}

void Form1::OfferRemoval(Removal removal)
{
    const bool removes = removal == Removal::Remove;
    m_ui->cmdRemoveIcon->setText(removes ? "&Remove Selected" : "&Restore Selected");
    m_ui->cmdRemoveIcon->setIcon(QIcon(removes ? ":/art/remove.png" : ":/art/restore.png"));
}

void Form1::RemoveSelected()
{
    if (!CommandIsEnabled(m_frame, "cmdRemoveIcon"))
        return;
    if (const std::optional<Removal> next = ToggleRemoval())
        OfferRemoval(*next);
    UpdateIconStats();
}

void Form1::ClearDeletedIcons()
{
    if (!FileLoaded)
        return;
    if (!HasMarkedRows()) {
        m_ask.Show(this, { .text = "There are currently no icons to be deleted." });
        return;
    }
    const auto answer = m_ask.Show(this,
        { .text = "About to remove all icons that are marked as deleted.\n\nAre you sure?",
            .title = "Clear Deleted Icons From Tree?",
            .icon = QMessageBox::Information,
            .buttons = QMessageBox::Ok | QMessageBox::Cancel });
    if (answer != QMessageBox::Ok)
        return;
    DropMarkedRows();
    for (Panel* panel : Panels())
        ClearPicture(*panel);
    DisableSlotCommands();
    OfferRemoval(Removal::Remove);
    Enable({ "cmdRemoveIcon", "cmdAssignApp" }, false);
    RebuildTree();
    UpdateIconStats();
}

void Form1::RebuildTree()
{
    RebuildIconTree();
    ShowTree();
}

void Form1::ShowTree()
{
    m_ui->TreeView1->Fill(Tree);
    if (!Tree.HasRoot())
        Enable("cmdChangeDataBaseName", false);
}

void Form1::cmdChangeDataBaseName_Click() { m_ui->TreeView1->EditRoot(); }

/// On purpose: DatabaseName takes the text that the tree refuses as well, and neither Parent nor
/// IconsetChanged follow.
void Form1::TreeView1_AfterLabelEdit(const QString& text)
{
    constexpr int MaxNameLength = 31;
    const bool tooLong = text.size() > MaxNameLength;
    if (!tooLong && !text.isEmpty())
        m_ui->TreeView1->Root()->setText(0, text);
    DatabaseName = Inner(text);
    ShowStatus(2, "Palm Database Name = " + text);
    m_ui->TreeView1->scrollToItem(m_ui->TreeView1->Root());
    m_ui->TreeView1->setFocus();
    m_nameTooLong = tooLong;
    // Not before the editor has closed, which a box of its own would disturb.
    if (tooLong)
        QTimer::singleShot(0, this, &Form1::TellOfLongName);
}

void Form1::TellOfLongName()
{
    if (std::exchange(m_nameTooLong, false))
        m_ask.Show(this, { .text = "Maximum name length is 31 characters." });
}

} // namespace vypx
