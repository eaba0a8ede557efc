#pragma once

#include "catalogs/CatalogBox.h"
#include "forms/common/Ask.h"

#include <QDialog>
#include <functional>
#include <memory>

class QKeyEvent;

namespace Ui {
class frmEditAppList;
}

namespace vypx {

struct PalmSysBoxes;

/// The window that edits the catalogs of applications and of Palm system icons. It does not block
/// the main form. Searches and the reload of the iconset are asked for; all else it does itself.
class frmEditAppList : public QDialog {
    Q_OBJECT

public:
    /// Read a catalog's file, with boxes over this window.
    struct Doors {
        std::function<void()> readApps, readPalm;
    };

    frmEditAppList(Ask& ask, Doors doors, QWidget& form);
    ~frmEditAppList() override;

    /// Reads a catalog and fills the list, if it is the one on show.
    void ReadAppList();
    void ReadPalmList();
    /// The one on show.
    void ReadList();

    /// The document may be another one, or have another name: enables what follows from that.
    void ShowDocument() { ShowEnabled(); }
    /// A search begins or has ended. A window that was to be closed meanwhile is closed then.
    void ShowSearching(bool on);
    void ShowPath(const QString& path);
    /// One that was to be closed when the search ends stays after all.
    void CallBack() { m_closesAtEnd = false; }

    /// Every way out. Amid a search it is stopped first.
    void done(int result) override;

signals:
    void AutomaticAsked();
    /// Empty: the dialog was cancelled.
    void FolderChosen(const QString& folder);
    void StopAsked();
    void ManualAsked();
    void ReloadAsked();
    void HelpAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool BoolApps() const;
    bool BoolEditSys() const;
    void Connect();
    void ShowEnabled();
    void opt_Click(bool on);
    void optSys_Click(bool on);
    void list_Click();
    void cmdAddPrcByFolder_Click();
    void cmdAddSingle_Click();
    void AddFile(const QString& path);
    void cmdDeleteApp_Click();
    void cmdPalmSysApply_Click();
    void cmdSearchIcon_Click();
    void ShowBoxes(const PalmSysBoxes& boxes);
    PalmSysBoxes Boxes() const;
    bool eventFilter(QObject* watched, QEvent* event) override;

    std::unique_ptr<Ui::frmEditAppList> m_ui;
    Ask& m_ask;
    Doors m_doors;
    ShowBox m_show;
    std::string SelectedItem; // whose texts were put into the boxes for a change; empty: nobody's
    QString m_lastFolder;     // of the file or the folder that was chosen last
    bool m_isSearching = false, m_closesAtEnd = false;
};

} // namespace vypx
