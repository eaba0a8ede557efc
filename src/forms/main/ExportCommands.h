#pragma once

#include "forms/common/Ask.h"
#include "forms/main/Commands.h"
#include "forms/main/Notes.h"
#include "forms/main/SavedSettings.h"

#include <QObject>

namespace vypx {

/// Writes the picture of a panel to a file of the user's.
class ExportCommands : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        Commands& commands;
        Notes& notes;
    };

    ExportCommands(const View& view, Ask& ask, SavedSettings& settings);

private:
    void Export(const vypx::Slot& slot);

    View m_view;
    Ask& m_ask;
    SavedSettings& m_settings;
};

} // namespace vypx
