#pragma once

#include "forms/common/Ask.h"

#include <QWidget>
#include <memory>

class QTreeWidgetItem;

namespace Ui {
class Form1;
}

namespace vypx {

class FileTaker;

/// The main form: the tree of icons, the two panels and every command. It makes the parts that do
/// the work, connects them, and is the door to the routines that others know it by.
class Form1 : public QWidget {
    Q_OBJECT

public:
    /// `frame` holds the menus and becomes the form's outer window.
    Form1(QWidget& frame, Ask& ask);
    ~Form1() override;

    /// From the first step to the idle main window or to the splash, whose end goes on; to the end
    /// of the program where the user leaves it amid the search of a start. Folders are the
    /// platform's own paths.
    void StartUp(const QString& programFolder, const QString& userFolder);
    /// Leaves the program: at once, without a question about changes; during a load at its end.
    void ExitProgram();
    /// A window asks whether it may close, which means the exit.
    bool MayClose();

    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuCloseIconset_Click();
    void mnuExit_Click();
    /// Asks for an iconset, or takes the one that is waiting, and opens it.
    void LoadFile();
    /// Checks that the document can be saved, and saves it under its name or a new one.
    void SaveIconset();
    void mnuSaveAs_Click();

    /// A node was clicked: shows its pictures and enables what it allows. Also to show the selected
    /// one anew.
    void TreeView1_NodeClick(const QTreeWidgetItem& node);
    void RemoveSelected();
    void ClearDeletedIcons();
    void RebuildTree();
    /// Counts the icons anew and shows what follows from that.
    void UpdateIconStats();

    /// Bring a picture file into a slot of the selected icon.
    void ImportLG();
    void ImportSM();

    /// Draw the picture of a slot, by the document's fields of it.
    void DrawLG();
    void DrawSM();

    /// Does with the file that was dropped (DroppedFileName) what its ending asks for.
    void ChkDragFile();
    /// Takes the files that the desktop asks for.
    FileTaker& FilesFromOutside();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct Parts;

    void ShowKeyImages();

    std::unique_ptr<Ui::Form1> m_ui;
    std::unique_ptr<Parts> m_parts;
};

} // namespace vypx
