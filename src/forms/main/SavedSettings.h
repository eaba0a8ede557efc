#pragma once

#include "forms/common/Ask.h"
#include "forms/main/SideWindows.h"

#include <QWidget>

namespace vypx {

/// The settings file as the windows use it: tells what can't be read or written, and adds the
/// frame's size and the side windows' places.
class SavedSettings {
public:
    SavedSettings(QWidget& frame, const SideWindows& sides, Ask& ask)
        : m_frame(frame)
        , m_sides(sides)
        , m_ask(ask)
    {
    }

    void Load();
    void Save();
    void SaveRunCount(int count);
    /// The count of running copies could not be kept.
    void TellNotRead();

private:
    void Tell(const QString& text);

    QWidget& m_frame;
    const SideWindows& m_sides;
    Ask& m_ask;
};

} // namespace vypx
