#pragma once

#include <QLabel>

namespace vypx {

/// One line that is cut in its middle where it is too long for its width, which it never widens.
class CutLabel : public QLabel {
    Q_OBJECT

public:
    explicit CutLabel(QWidget* parent = nullptr);

    void Show(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QString m_whole;
};

} // namespace vypx

using vypx::CutLabel; // generated code names it so
