#pragma once

#include "forms/common/Ask.h"
#include "forms/main/Commands.h"
#include "forms/main/Notes.h"
#include "forms/main/Saving.h"
#include "forms/main/StatusTexts.h"

#include <QObject>

namespace vypx {

/// Save and Install: saves the iconset and queues it for the next HotSync, by the first way that is
/// set up.
class Installing : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        Commands& commands;
        StatusTexts& status;
        Notes& notes;
    };

    Installing(const View& view, Ask& ask, Saving& saving);

private:
    void mnuSaveandInstall_Click();
    void Message(std::string_view text);
    void ShowForm();
    void TellQueued(SaveEnd end, const std::string& whatNext);

    View m_view;
    Ask& m_ask;
    Saving& m_saving;
};

} // namespace vypx
