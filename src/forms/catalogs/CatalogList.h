#pragma once

#include "catalogs/AvailableIcons.h"

#include <QListWidget>
#include <optional>

namespace vypx {

/// A list of catalog entries, in the catalog's order. Those whose name does not hold the text that
/// it is narrowed to are not in it, and so neither selected nor current. The tool tip of an entry
/// says whose it is.
class CatalogList : public QListWidget {
    Q_OBJECT

public:
    explicit CatalogList(QWidget* parent = nullptr);

    /// These entries from now on. What is selected or current stays so as far as it is among them.
    void ShowEntries(std::vector<AvailableIcon> entries);
    /// Shows the entries whose name holds the text, in any case; empty: all.
    void Narrow(const QString& text);
    /// Has the focus, with an entry for the keys to go on from.
    void TakeKeys();
    /// Nothing is selected or current.
    void SelectNothing();

    /// Entries, those included that are not shown.
    int Total() const { return static_cast<int>(m_entries.size()); }
    /// In the order of the list.
    QStringList SelectedNames() const;
    /// Name of the entry that is current and selected; empty: none is.
    QString CurrentName() const;

signals:
    /// What is shown is new.
    void Filled();

private:
    struct Marks;
    Marks TakeMarks() const;
    void PutMarks(const Marks& marks);
    void Fill();

    std::vector<AvailableIcon> m_entries;
    QString m_text; // names must hold it
};

} // namespace vypx

using vypx::CatalogList; // generated code names it so
