#pragma once

#include "document/RunningCopies.h"
#include "document/Selection.h"
#include "forms/Ask.h"
#include "forms/Look.h"
#include "forms/Panel.h"
#include "reader/LoadListener.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>
#include <array>
#include <initializer_list>
#include <memory>

class QMimeData;
class QTreeWidgetItem;

namespace Ui {
class Form1;
}

namespace vypx {

class frmNewIconset;
class frmProgOptions;
class frmSelectCDepth;

/// The main form: the tree of icons, the two panels and every command. Its rooms by topic:
/// Form1.cpp (making), Form1StartUp.cpp, Form1Exit.cpp, Form1Load.cpp (opening a file),
/// Form1View.cpp (panels, tree and counts), Form1Selection.cpp (a node was clicked),
/// Form1Panels.cpp (drawing), Form1Settings.cpp, Form1Events.cpp (keys, drops, what a load keeps
/// out).
class Form1 : public QWidget, private LoadListener {
    Q_OBJECT

public:
    /// `frame` holds the menus and becomes the form's outer window.
    Form1(QWidget& frame, Ask& ask);
    ~Form1() override;

    /// From the first step to the idle main window. Folders are the platform's own paths.
    void StartUp(const QString& programFolder, const QString& userFolder);

    /// Leaves the program: at once, without a question about changes; during a load at its end.
    void ExitProgram();

    /// A window asks whether it may close, which means the exit.
    bool MayClose();

    /// Asks for an iconset, or takes the one that is waiting, and opens it.
    void LoadFile();

    /// Checks that the document can be saved, and saves it under its name or a new one.
    void SaveIconset();

    /// Counts the icons anew and shows what follows from that.
    void UpdateIconStats();

    /// A node was clicked: shows its pictures and enables what it allows. Also to show the selected
    /// one anew.
    void TreeView1_NodeClick(const QTreeWidgetItem& node);

    /// Draw the picture of a slot, by the document's fields of it.
    void DrawLG();
    void DrawSM();

    /// Files were dropped on this window or on the frame.
    void TakeDrop(const QMimeData& data);

    bool IsLoading() const { return m_loading; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // Form1.cpp
    void ConnectCommands();
    void Enable(std::string_view command, bool on);
    void Enable(std::initializer_list<std::string_view> commands, bool on);
    void mnuExit_Click();
    void cmdChangeDataBaseName_Click();
    void mnuOptions_Click();

    // Form1Document.cpp
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuCloseIconset_Click();
    QMessageBox::StandardButton AskAboutChanges();
    void ShowDepthWindow();
    void LeaveDepthWindow();
    void ShowNewIconset();
    void MakeNewIconset(const QString& name);

    // Form1Save.cpp
    void mnuSave_Click();
    void mnuSaveAs_Click();
    bool PassesSaveChecks();
    void SaveToKnownName();
    void SaveNewIconset();
    std::optional<std::string> ChooseTarget();
    void TakeTargetFolder();
    bool Compile();

    // Form1StartUp.cpp
    void FindFolders(const QString& programFolder, const QString& userFolder);
    void TurnOnDrops();
    void TakeWorkingFolder();
    void ChooseColours();
    void PaintColours();
    void ShowInFrame();
    void CheckResolutionEntry();

    // Form1Load.cpp
    std::optional<std::string> ChooseIconset();
    void DisableSlotCommands();
    void EmptyTables();
    void DocumentBegan();
    void ForgetNote();
    void OfferNothing();
    void EndLoad();
    void Message(std::string_view text) override;
    void BeginLoad() override;
    void FolderRemembered() override { SaveSettings(); }
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
    void StatsChanged() override;

    // Form1View.cpp
    Panel PanelOf(const QString& letters);
    std::array<Panel*, 2> Panels() { return { &m_panelLG, &m_panelSM }; }
    void ClearPicture(Panel& panel);
    void ShowPanels(bool highRes, bool lowRes);
    void ShowPanelsByOption();
    void mnuShowBoth_Click();
    void mnuHideLowRes_Click();
    void mnuHideHighRes_Click();
    void CheckOnly(const char* entry);
    void ShowStatus(int panel, const QString& text);

    // Form1Selection.cpp
    void ShowTree();
    void ShowSelection(Panel& panel, const SlotEffects& effects);
    void OfferRemoval(Removal removal);
    void RemoveSelected();
    void ClearDeletedIcons();
    void RebuildTree();
    void TreeView1_AfterLabelEdit(const QString& text);
    void TellOfLongName();

    // Form1Panels.cpp
    void DrawSlot(Panel& panel);
    void ShowColour(Panel& panel, bool hasTransparent);
    void HideColour(Panel& panel);
    void ReserveColourWidth(Panel& panel);
    void CentrePictures();

    // Form1Settings.cpp
    void TellOfSettings(const char* text);
    void LoadSettings();
    void SaveSettings();
    void SaveRunCount(int count);
    void ShowResolution();
    void RefreshOptions();
    void TakeOptions();
    void ShowDepth();

    // Form1Events.cpp
    bool IsKeptOutByLoad(QEvent& event) const;
    bool IsRemoveKey(QObject& watched, QEvent& event) const;

    std::unique_ptr<Ui::Form1> m_ui;
    QWidget& m_frame;
    Ask& m_ask;
    Panel m_panelLG, m_panelSM;
    std::array<QLabel*, 2> m_statusPanels;
    RunningCopies m_copies;
    QPointer<frmProgOptions> m_options;
    QPointer<frmSelectCDepth> m_depthWindow;
    QPointer<frmNewIconset> m_newIconset;
    QElapsedTimer m_sincePaint;
    bool m_loading = false;
    bool m_closeAfterLoad = false;
    bool m_exited = false;
    bool m_noteIsOfDocument = false; ///< lblNotSaved goes with the document
    bool m_nameTooLong = false;      ///< still to be told
};

} // namespace vypx
