#pragma once

#include "catalogs/IconRows.h"
#include "document/Slot.h"

#include <QDialog>
#include <memory>

class QKeyEvent;

namespace Ui {
class frmAddIcon;
}

namespace vypx {

/// The window through which icons enter the document, get another owner, or a second one. It does
/// not block the main form and changes nothing by itself: what is to be done is asked for, for the
/// icon that is selected in the tree then.
class frmAddIcon : public QDialog {
    Q_OBJECT

public:
    explicit frmAddIcon(QWidget& form);
    ~frmAddIcon() override;

    /// Brings the window anew into the mode that AddIconAssignMode and AddIconChangeMode say: Add,
    /// Assign or Change. One that adds and is to add stays as it is.
    void Load();

    /// Offers what there is by now: the icons, the catalogs or the selected icon may be others.
    /// `highRes` is the size of its high-res picture on show; 0 x 0: none.
    void ShowAvailable(const PixelSize& highRes);
    /// What the catalogs don't name any more waits no more.
    void ForgetUnlisted();
    /// The document is another one: nothing is waiting to be added.
    void ForgetAdded();

    /// Every way out: clears AddIconAssignMode.
    void done(int result) override;

signals:
    /// These icons are to be added.
    void AddAsked(const std::vector<std::string>& labels);
    /// The selected icon is to be shared, or to get another owner. Of the request `selected` is
    /// left empty.
    void ShareAsked(const AssignRequest& request);
    void AssignAsked(const AssignRequest& request);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    enum class Mode { Closed, Add, Assign, Change };

    void Connect();
    void ShowMode();
    void OfferSizes();
    void Fill();
    void option_Click(bool on);
    void chkCreateShared_Click(bool on);
    void cmdAddtoList_Click();
    void cmdRmvIcon_Click();
    void cmdApplyNewIcon_Click();
    void EntryUsed(const QString& name);
    void AssignEntry(const QString& name);
    void AddToList(const QStringList& names);
    void AddedChanged();
    bool TakesKey(const QObject& watched, const QKeyEvent& press);
    bool eventFilter(QObject* watched, QEvent* event) override;
    AssignRequest Request() const;

    std::unique_ptr<Ui::frmAddIcon> m_ui;
    Mode m_mode = Mode::Closed;
    PixelSize m_highRes; // of the selected icon's picture
};

} // namespace vypx
