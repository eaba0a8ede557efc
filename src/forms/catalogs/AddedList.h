#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

namespace vypx {

/// The labels that are waiting to be added, in the order in which they came; none is there twice.
class AddedList : public QListWidget {
public:
    explicit AddedList(QWidget* parent = nullptr);

    /// At the end, unless it is there.
    void Add(const std::string& label);
    void RemoveSelected();
    void RemoveIf(const std::function<bool(const std::string& label)>& isToGo);
    void Remove(const QListWidgetItem& item);
    void Forget();

    const std::vector<std::string>& Labels() const { return m_labels; }

private:
    void RemoveRow(int row);

    std::vector<std::string> m_labels; // of the rows
};

} // namespace vypx

using vypx::AddedList; // generated code names it so
