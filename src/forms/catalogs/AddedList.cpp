#include "forms/catalogs/AddedList.h"

#include "forms/common/Text.h"

#include <algorithm>

namespace vypx {

AddedList::AddedList(QWidget* parent)
    : QListWidget(parent)
{
    setSelectionMode(ExtendedSelection);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle); // the end of a label says which of two icons it is
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void AddedList::Add(const std::string& label)
{
    if (std::find(m_labels.begin(), m_labels.end(), label) != m_labels.end())
        return;
    m_labels.push_back(label);
    auto* const item = new QListWidgetItem(FromLatin1(label));
    item->setToolTip(TipText(item->text()));
    addItem(item);
}

void AddedList::RemoveSelected()
{
    for (int row = count() - 1; row >= 0; --row)
        if (item(row)->isSelected())
            RemoveRow(row);
}

void AddedList::RemoveIf(const std::function<bool(const std::string& label)>& isToGo)
{
    for (int row = count() - 1; row >= 0; --row)
        if (isToGo(m_labels[static_cast<std::size_t>(row)]))
            RemoveRow(row);
}

void AddedList::Remove(const QListWidgetItem& item) { RemoveRow(row(&item)); }

void AddedList::Forget()
{
    m_labels.clear();
    clear();
}

void AddedList::RemoveRow(int row)
{
    m_labels.erase(m_labels.begin() + row);
    delete takeItem(row);
}

} // namespace vypx
