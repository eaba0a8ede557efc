#pragma once

#include "settings/CLBHScroll.h"

#include <QListWidget>

namespace vypx {

/// A list of labels with a horizontal extent of its own. A label is chosen by a click or by Enter.
class SharedList : public QListWidget, public ListBox {
    Q_OBJECT

public:
    explicit SharedList(QWidget* parent = nullptr);

    void Clear() override;
    void Add(std::string_view text) override;
    std::int32_t TextWidth(std::string_view text) const override;
    int ScrollBarWidth() const override;
    void SetHorizontalExtent(int pixels) override;
    void ScrollToEnd() override;

    void doItemsLayout() override;
    QSize sizeHint() const override;

signals:
    /// Once for a double click and for an Enter that is held down. The list may be filled anew
    /// meanwhile.
    void Chosen(const QString& label);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    bool m_scrollsToEnd = false;
};

} // namespace vypx

using vypx::SharedList; // generated code names it so
