#include "forms/main/SideContents.h"

#include "document/Document.h"
#include "document/Selection.h"
#include "forms/common/Text.h"
#include "forms/imaging/frmPreviewOpt.h"
#include "forms/sides/frmIconStat.h"
#include "forms/sides/frmShareList.h"
#include "settings/Settings.h"

#include <algorithm>

namespace vypx {

SideContents::SideContents(IconTreeView& tree, const Panels& panels)
    : m_tree(tree)
    , m_panels(panels)
{
    // A tree that is filled anew has nothing selected, which no click tells.
    connect(tree.model(), &QAbstractItemModel::modelReset, this, &SideContents::ListShares);
}

SideForm* SideContents::MakePreview()
{
    auto* const window = new frmPreviewOpt;
    connect(window, &frmPreviewOpt::ColourChosen, this, &SideContents::PaintPanels);
    connect(window, &frmPreviewOpt::TransparencyChosen, this, &SideContents::DrawPanels);
    return window;
}

SideForm* SideContents::MakeStats()
{
    m_stats = new frmIconStat;
    return m_stats;
}

SideForm* SideContents::MakeShares()
{
    m_shares = new frmShareList;
    connect(m_shares, &frmShareList::Chosen, this, &SideContents::SelectNode);
    ListShares();
    return m_shares;
}

/// On purpose: a colour that is not to be remembered goes with its window, and one that is goes
/// back to what the program began with.
void SideContents::TakeSavedColour()
{
    ChoosePreviewColour();
    PaintPanels();
}

void SideContents::ShowCount()
{
    if (m_stats)
        m_stats->ShowCounters();
    ListShares();
}

void SideContents::ListShares()
{
    if (!m_shares)
        return;
    LBHS.Init(m_shares->List());
    const QTreeWidgetItem* const node = m_tree.selectedItems().value(0);
    const std::string label = node && node != m_tree.Root() ? ToLatin1(node->text(0)) : "";
    if (label.empty() || IsRootSelected(label))
        return;
    ListShareNames(label);
    for (std::size_t i = 1; i < ShareNames.size() && !ShareNames[i].empty(); ++i)
        LBHS.AddItem(ShareNames[i]);
}

/// As a click on the node does, if it is still there.
void SideContents::SelectNode(const QString& label)
{
    QTreeWidgetItem* const node = m_tree.NodeOf(label);
    if (!node)
        return;
    m_tree.setFocus(); // a key that follows is meant for the icon
    m_tree.scrollToItem(node);
    m_tree.setCurrentItem(node); // last: events run amid it, and a load would delete the node
}

void SideContents::PaintPanels()
{
    for (ImagePanel* panel : m_panels)
        panel->SetBackColour(QColor(R, G, B));
    DrawPanels();
}

void SideContents::DrawPanels()
{
    for (ImagePanel* panel : m_panels)
        panel->Draw();
}

void ChoosePreviewColour()
{
    R = RememberPreviewColor ? Rsave : 0;
    G = RememberPreviewColor ? Gsave : 0;
    B = RememberPreviewColor ? Bsave : 255;
}

} // namespace vypx
