#pragma once

#include "document/IconTree.h"

#include <QHash>
#include <QIcon>
#include <QTreeWidget>
#include <array>

namespace vypx {

/// The tree of icons: a root with one flat level of icons below it, sorted by text without regard
/// to case, equal texts by code. Each item has its image's number in ImageRole.
class IconTreeView : public QTreeWidget {
    Q_OBJECT

public:
    static constexpr int ImageRole = Qt::UserRole;

    explicit IconTreeView(QWidget* parent = nullptr);

    /// Shows `tree`, all in one go, with the root expanded.
    void Fill(const IconTree& tree);
    /// The same, where nodes were added or got other texts: a root that was edited keeps its text.
    void FillBelowRoot(const IconTree& tree);
    /// Takes over the images and colours of nodes that are shown already.
    void Refresh(const IconTree& tree);

    /// Lets the user edit the root's text in place.
    void EditRoot();
    /// Takes a text that is still being typed in, as Enter does.
    void FinishEdit();

    /// Null when there is no such node.
    QTreeWidgetItem* NodeOf(const QString& key) const;
    QTreeWidgetItem* Root() const { return topLevelItem(0); }

    /// Picture of a node, by its number; empty for a number that has none.
    QIcon Image(int number) const;

    QSize sizeHint() const override;

signals:
    /// A node was selected by mouse or keyboard, or clicked once more.
    void NodeClick(const QTreeWidgetItem* node);
    /// The root's text was edited to this; the tree does not change by itself.
    void AfterLabelEdit(const QString& text);
    /// Characters that a database name can't hold were left out of that text.
    void CharactersDropped(const QString& characters);

protected:
    /// What is selected stays so until something else is: a click on empty ground, Ctrl and a drag
    /// leave it.
    QItemSelectionModel::SelectionFlags selectionCommand(
        const QModelIndex& index, const QEvent* event) const override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void ShowNode(QTreeWidgetItem& item, int image, Rgb colour) const;

    std::array<QIcon, 7> m_images; // by number; 0 has none
    QHash<QString, QTreeWidgetItem*> m_byKey;
};

} // namespace vypx

using vypx::IconTreeView; // generated code names it so
