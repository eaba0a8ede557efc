#pragma once

#include "forms/help/HelpSearch.h"
#include "forms/help/HelpTopics.h"

#include <QWidget>
#include <memory>
#include <optional>

class QLineEdit;
class QListWidget;
class QTreeWidgetItem;

namespace Ui {
class frmHelp;
}

namespace vypx {

/// The help: contents, index and search beside the page. A window of its own, which belongs to no
/// other one, so that none disables it; it keeps no program alive.
class frmHelp : public QWidget {
    Q_OBJECT

public:
    explicit frmHelp(const HelpTopics& topics);
    ~frmHelp() override;

    /// Shows a page, with or without an anchor.
    void Open(const QString& page);
    /// Comes to the front. `modal` is the box or dialog that blocks all other windows, or null:
    /// the help can be used beside it until it ends.
    void BringUp(QWidget* modal);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool IsOwn(const QWidget& window) const;
    void Connect();
    void ConnectList(QLineEdit& edit, QListWidget& list);
    void Fill(QTreeWidgetItem& parent, const QList<HelpEntry>& entries);
    void ListWords();
    void ListFound();
    void OpenOf(QListWidget& list);
    void ShowInContents(const QString& page);
    void BeginSearch();
    void cmdPrint_Click();

    std::unique_ptr<Ui::frmHelp> m_ui;
    const HelpTopics& m_topics;
    std::optional<HelpSearch> m_search; // made with the first search
};

} // namespace vypx
