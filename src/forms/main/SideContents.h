#pragma once

#include "forms/imaging/Panels.h"
#include "forms/main/IconTreeView.h"
#include "settings/CLBHScroll.h"

#include <QObject>
#include <QPointer>

namespace vypx {

class SideForm;
class frmIconStat;
class frmShareList;

/// What the small windows beside the main form show, and what is done in them.
class SideContents : public QObject {
    Q_OBJECT

public:
    SideContents(IconTreeView& tree, const Panels& panels);

    /// The windows, not shown yet; they belong to the caller. Filled with what there is now, and
    /// kept up to date as long as they stand.
    SideForm* MakePreview();
    SideForm* MakeStats();
    SideForm* MakeShares();

    /// What an entry of the View menu does besides showing its window.
    void TakeSavedColour();
    void CountAnew() { emit WantsCount(); }

    /// The icons were counted anew.
    void ShowCount();
    /// Lists the icons that share their images with the selected one.
    void ListShares();

signals:
    void WantsCount();

private:
    void PaintPanels();
    void DrawPanels();
    void SelectNode(const QString& label);

    IconTreeView& m_tree;
    Panels m_panels;
    QPointer<frmIconStat> m_stats;
    QPointer<frmShareList> m_shares;
    CLBHScroll LBHS; // of the list in m_shares
};

/// Sets R, G, B: to the saved colour if that is to be remembered, else to blue.
void ChoosePreviewColour();

} // namespace vypx
