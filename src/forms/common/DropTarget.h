#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace vypx {

/// What is dragged, as far as it counts here.
struct DraggedData {
    QString file;           ///< path of the first local file; empty: there is none
    QStringList files;      ///< paths of all local files
    bool isPicture = false; ///< a picture by itself, without a local file
};

/// What a widget does with what is dragged onto it.
struct DropHandler {
    /// Whether it takes anything now. Only then the other program is asked what is dragged.
    std::function<bool()> isReady;
    /// Whether it would take it now.
    std::function<bool(const DraggedData&)> takes;
    /// It was dropped, and the program that it comes from knows that it arrived.
    std::function<void(const DraggedData&)> take;
};

/// From now on files and pictures can be dropped on the widget. They are copied, never moved,
/// whatever the other program prefers. What a part of the widget refuses that has a handler of its
/// own, the widget refuses as well.
void TakeDrops(QWidget& target, DropHandler handler);

} // namespace vypx
