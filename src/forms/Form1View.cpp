#include "document/Document.h"
#include "document/IconStats.h"
#include "forms/Form1.h"
#include "forms/Text.h"
#include "forms/frmProgOptions.h"
#include "settings/Settings.h"
#include "ui_Form1.h"

#include <QAction>

namespace vypx {

Panel Form1::PanelOf(const QString& letters)
{
    return {
        .slot = letters == "LG" ? &SlotLG : &SlotSM,
        .frame = findChild<QGroupBox*>("frame" + letters),
        .box = findChild<PictureBox*>("pic" + letters + "frm"),
        .picture = findChild<PictureBox*>("pic" + letters),
        .sizeLimit = findChild<QLabel*>("lbl" + letters + "_Size"),
        .size = findChild<QLabel*>("lbl_" + letters + "size"),
        .colourFrame = findChild<QGroupBox*>("frameTC_" + letters),
        .swatch = findChild<PictureBox*>("picColSwatch" + letters),
        .colour = findChild<QLabel*>("lblC_RGB_" + letters),
        .noColour = findChild<QLabel*>("lblNoTransparent" + letters),
    };
}

void Form1::ClearPicture(Panel& panel)
{
    panel.picture->SetPicture({});
    panel.picture->resize(0, 0);
    panel.box->SetPicture({});
}

void Form1::ShowPanels(bool highRes, bool lowRes)
{
    m_panelLG.frame->setVisible(highRes);
    m_panelSM.frame->setVisible(lowRes);
}

void Form1::ShowPanelsByOption() { ShowPanels(!LowResOnly, !HighResOnly); }

void Form1::CheckOnly(const char* entry)
{
    for (const char* name : { "mnuShowBoth", "mnuHideLowRes", "mnuHideHighRes" })
        m_frame.findChild<QAction*>(name)->setChecked(qstrcmp(name, entry) == 0);
}

/// The three entries change what is in sight, not the options HighResOnly and LowResOnly.
void Form1::mnuShowBoth_Click()
{
    ShowPanels(true, true);
    CheckOnly("mnuShowBoth");
}

void Form1::mnuHideLowRes_Click()
{
    ShowPanels(true, false);
    CheckOnly("mnuHideLowRes");
}

void Form1::mnuHideHighRes_Click()
{
    ShowPanels(false, true);
    CheckOnly("mnuHideHighRes");
}

void Form1::ShowStatus(int panel, const QString& text)
{
    QLabel* const label = m_statusPanels[static_cast<std::size_t>(panel - 1)];
    label->setText(text);
    label->setToolTip(TipText(text));
}

void Form1::UpdateIconStats()
{
    CountIcons();
    StatsChanged();
}

void Form1::StatsChanged()
{
    Enable("cmdClrDeleted", StatDeletable);
    if (m_options)
        m_options->ShowDepthLock();
    m_ui->TreeView1->Refresh(Tree);
    update();
    m_panelLG.frame->update();
}

} // namespace vypx
