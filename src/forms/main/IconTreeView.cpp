#include "forms/main/IconTreeView.h"

#include "forms/common/Look.h"
#include "forms/common/NameValidator.h"
#include "forms/common/Text.h"

#include <QHelpEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <memory>

namespace vypx {

namespace {

bool StandsBefore(const QTreeWidgetItem* left, const QTreeWidgetItem* right)
{
    const QString mine = left->text(0), others = right->text(0);
    const int order = mine.compare(others, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : mine < others;
}

/// Edits a label in place and hands the text over instead of writing it into the tree.
class LabelEdit : public QStyledItemDelegate {
public:
    LabelEdit(IconTreeView& tree)
        : QStyledItemDelegate(&tree)
        , m_tree(tree)
    {
    }

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        auto* const edit = new QLineEdit(parent);
        edit->setObjectName("txtLabelEdit");
        edit->setAcceptDrops(false); // a file that is dropped on it is meant for the tree
        auto* const validator = new NameValidator(edit);
        QObject::connect(
            validator, &NameValidator::Dropped, &m_tree, &IconTreeView::CharactersDropped);
        edit->setValidator(validator);
        return edit;
    }
    void setModelData(QWidget* editor, QAbstractItemModel*, const QModelIndex&) const override
    {
        emit m_tree.AfterLabelEdit(static_cast<QLineEdit*>(editor)->text());
    }

    /// The whole of a label that is cut.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override
    {
        if (event->type() != QEvent::ToolTip
            || sizeHint(option, index).width() <= option.rect.width())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), TipText(index.data().toString()), view, option.rect);
        return true;
    }

private:
    IconTreeView& m_tree;
};

} // namespace

IconTreeView::IconTreeView(QWidget* parent)
    : QTreeWidget(parent)
{
    for (std::size_t number = 1; number < m_images.size(); ++number)
        m_images[number] = QIcon(QString(":/art/tree%1.png").arg(number));
    setColumnCount(1);
    setIconSize(QSize(16, 16));
    setItemDelegate(new LabelEdit(*this));
    setTextElideMode(Qt::ElideMiddle); // the end of a label says which of two icons it is
    KeepRoom({ this });
    connect(this, &QTreeWidget::itemSelectionChanged, this, [this] {
        if (const QTreeWidgetItem* node = selectedItems().value(0))
            emit NodeClick(node);
    });
    connect(this, &QTreeWidget::itemClicked, this,
        [this](const QTreeWidgetItem* node) { emit NodeClick(node); });
}

/// Lines enough that the side windows fit beside the form that is so high.
QSize IconTreeView::sizeHint() const
{
    constexpr int Lines = 22;
    return { QTreeWidget::sizeHint().width(), fontMetrics().lineSpacing() * Lines };
}

QIcon IconTreeView::Image(int number) const
{
    const auto index = static_cast<std::size_t>(number);
    return number >= 0 && index < m_images.size() ? m_images[index] : QIcon();
}

void IconTreeView::ShowNode(QTreeWidgetItem& item, int image, Rgb colour) const
{
    const QColor ink = ScreenColour(colour);
    if (item.foreground(0) != ink)
        item.setForeground(0, ink);
    if (item.data(0, ImageRole) == image)
        return;
    item.setData(0, ImageRole, image);
    item.setIcon(0, Image(image));
}

void IconTreeView::Fill(const IconTree& tree)
{
    clear();
    m_byKey.clear();
    if (!tree.HasRoot())
        return;
    auto root = std::make_unique<QTreeWidgetItem>(QStringList(FromLatin1(tree.Root())));
    ShowNode(*root, ImageRoot, Black);
    QList<QTreeWidgetItem*> children;
    children.reserve(static_cast<qsizetype>(tree.Nodes().size()));
    for (const IconNode& node : tree.Nodes()) {
        auto child = std::make_unique<QTreeWidgetItem>(QStringList(FromLatin1(node.key)));
        ShowNode(*child, node.image, node.colour);
        m_byKey.insert(FromLatin1(node.key), child.get());
        children.append(child.release());
    }
    std::sort(children.begin(), children.end(), StandsBefore);
    root->addChildren(children);
    QTreeWidgetItem* const shown = root.get();
    addTopLevelItem(root.release());
    shown->setExpanded(true);
}

void IconTreeView::FillBelowRoot(const IconTree& tree)
{
    const QString text = Root() ? Root()->text(0) : QString();
    Fill(tree);
    if (Root() && !text.isEmpty())
        Root()->setText(0, text);
}

void IconTreeView::Refresh(const IconTree& tree)
{
    const bool blocked = blockSignals(true); // many nodes, one repaint
    for (const IconNode& node : tree.Nodes())
        if (QTreeWidgetItem* item = NodeOf(FromLatin1(node.key)))
            ShowNode(*item, node.image, node.colour);
    blockSignals(blocked);
    viewport()->update();
}

void IconTreeView::EditRoot()
{
    QTreeWidgetItem* const root = Root();
    if (!root)
        return;
    root->setFlags(root->flags() | Qt::ItemIsEditable);
    setCurrentItem(root);
    editItem(root);
}

void IconTreeView::FinishEdit()
{
    QWidget* const editor = viewport()->findChild<QLineEdit*>("txtLabelEdit");
    if (state() != EditingState || !editor)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

QItemSelectionModel::SelectionFlags IconTreeView::selectionCommand(
    const QModelIndex& index, const QEvent*) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                           : QItemSelectionModel::NoUpdate;
}

void IconTreeView::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons() == Qt::NoButton)
        QTreeWidget::mouseMoveEvent(event);
}

QTreeWidgetItem* IconTreeView::NodeOf(const QString& key) const { return m_byKey.value(key); }

} // namespace vypx
