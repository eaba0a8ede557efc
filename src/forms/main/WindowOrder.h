#pragma once

#include "forms/main/Commands.h"
#include "forms/main/SideWindows.h"

#include <QObject>

namespace vypx {

/// Puts the windows side by side, and the frame around them.
class WindowOrder : public QObject {
public:
    /// `form` stands in a window of the area of `frame`.
    WindowOrder(QWidget& frame, QWidget& form, Commands& commands, SideWindows& sides);

    /// The main form at the top left, the side windows that are on view in one column beside it.
    /// The frame becomes as large as they need, the screen's free area at most; a maximised one
    /// keeps its size. A side window less than half of which would be in its view is moved
    /// into it.
    void ArrangeWindows();

private:
    void FitFrame();

    QWidget& m_frame;
    QWidget& m_form;
    SideWindows& m_sides;
};

} // namespace vypx
