#pragma once

#include "document/Document.h"

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The rules that say which row of a table means a resource ID. Reader, writer and notes ask here.
namespace vypx {

/// Rows of a table, in its order.
using TableRows = std::vector<std::size_t>;

/// Rows by resource ID, 0 to 65535.
class RowsById {
public:
    void Add(int id, std::size_t row) { m_rows[id].push_back(row); }
    /// None where nothing was added.
    const TableRows& Of(int id) const;

private:
    std::unordered_map<int, TableRows> m_rows;
};

/// Whether the icon index can name the resource: a `tAIB` with an ID from 3500 to 9999.
bool CanBeIndexed(std::string_view resourceKey);

/// Rows of VYTable by their IDs, which are compared as numbers. An entry without a name, or whose
/// ID is no whole number that a resource can have, is no icon's.
RowsById LauncherRows();

/// Rows of Itbl, as it stands when this is made, by the IDs that they name. Row 0 is empty and
/// names nothing, a resource with the ID 0 included.
class IndexRows {
public:
    IndexRows() = default; ///< no rows
    static IndexRows OfItbl();

    const TableRows& Large(int id) const { return m_large.Of(id); }
    const TableRows& Small(int id) const { return m_small.Of(id); }
    /// Owner of the last row that names the ID as its large or its small icon; unknown where none
    /// does.
    Owner LastOwner(int id) const;

private:
    RowsById m_large, m_small;
};

} // namespace vypx
