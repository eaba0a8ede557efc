#pragma once

#include <QLineEdit>
#include <optional>

namespace vypx {

/// A number from 0 to 255. Only digits can be typed or pasted; whether the number is small enough
/// is for its owner to see.
class ColourText : public QLineEdit {
    Q_OBJECT

public:
    explicit ColourText(QWidget* parent = nullptr);

    /// Empty when the text is no number from 0 to 255.
    std::optional<int> Value() const;
    /// As it is; a cursor within the same number stays where it is.
    void SetValue(int value);

signals:
    /// Enter was pressed, or the focus went to another control.
    void Entered();

protected:
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace vypx

using vypx::ColourText; // generated code names it so
