#include "forms/catalogs/CatalogList.h"

#include "forms/common/Text.h"

#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>
#include <utility>

namespace vypx {

namespace {

QString TipOf(const AvailableIcon& entry)
{
    const QString name = FromLatin1(entry.name);
    return TipText(entry.id.empty()
            ? QObject::tr("%1: type %2, creator %3")
                  .arg(name, FromLatin1(entry.type), FromLatin1(entry.creator))
            : QObject::tr("%1: resource ID %2").arg(name, FromLatin1(entry.id)));
}

/// What tells an entry from the others.
QString KeyOf(const QListWidgetItem& item) { return item.toolTip(); }

} // namespace

/// What the user did to the list, to be done to it anew.
struct CatalogList::Marks {
    QSet<QString> selected;
    QString current; // empty: none
};

CatalogList::CatalogList(QWidget* parent)
    : QListWidget(parent)
{
    setSelectionMode(ExtendedSelection);
    setUniformItemSizes(true); // or each of a thousand texts would be measured
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void CatalogList::ShowEntries(std::vector<AvailableIcon> entries)
{
    if (entries == m_entries)
        return;
    const Marks marks = TakeMarks();
    const int row = currentRow(), scrolled = verticalScrollBar()->value();
    m_entries = std::move(entries);
    Fill();
    PutMarks(marks);
    // Where the current entry has gone, the keys go on from its place.
    if (row >= 0 && currentRow() < 0 && count() > 0)
        setCurrentRow(std::min(row, count() - 1), QItemSelectionModel::NoUpdate);
    doItemsLayout();
    verticalScrollBar()->setValue(scrolled);
    emit Filled();
}

void CatalogList::Narrow(const QString& text)
{
    if (text == m_text)
        return;
    const Marks marks = TakeMarks();
    m_text = text;
    Fill();
    PutMarks(marks);
    if (currentItem())
        scrollToItem(currentItem());
    emit Filled();
}

void CatalogList::TakeKeys()
{
    setFocus(Qt::TabFocusReason);
    if (selectedItems().isEmpty())
        setCurrentRow(0);
}

void CatalogList::SelectNothing()
{
    const QSignalBlocker quiet(this);
    setCurrentRow(-1, QItemSelectionModel::Clear);
}

void CatalogList::Fill()
{
    const QSignalBlocker quiet(this);
    clear();
    for (const AvailableIcon& entry : m_entries) {
        const QString name = FromLatin1(entry.name);
        if (!name.contains(m_text, Qt::CaseInsensitive))
            continue;
        auto* const item = new QListWidgetItem(name);
        item->setToolTip(TipOf(entry));
        addItem(item);
    }
}

CatalogList::Marks CatalogList::TakeMarks() const
{
    Marks marks;
    for (const QListWidgetItem* item : selectedItems())
        marks.selected.insert(KeyOf(*item));
    if (currentItem())
        marks.current = KeyOf(*currentItem());
    return marks;
}

void CatalogList::PutMarks(const Marks& marks)
{
    if (marks.selected.isEmpty() && marks.current.isEmpty())
        return;
    const QSignalBlocker quiet(this);
    QItemSelection selection;
    QModelIndex current;
    for (int row = 0; row < count(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        const QString key = KeyOf(*item(row));
        if (marks.selected.contains(key))
            selection.select(index, index);
        if (key == marks.current && !current.isValid())
            current = index;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (current.isValid())
        selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

QStringList CatalogList::SelectedNames() const
{
    QStringList names;
    for (int row = 0; row < count(); ++row)
        if (item(row)->isSelected())
            names << item(row)->text();
    return names;
}

QString CatalogList::CurrentName() const
{
    const QListWidgetItem* const current = currentItem();
    return current && current->isSelected() ? current->text() : QString();
}

} // namespace vypx
