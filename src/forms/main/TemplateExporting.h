#pragma once

#include "forms/common/Ask.h"
#include "forms/main/Commands.h"
#include "forms/main/IconCommands.h"
#include "forms/main/Notes.h"
#include "forms/main/SettingsWindows.h"

#include <QObject>
#include <optional>
#include <string>

namespace vypx {

/// Writes the open document as a template, without its pictures. Loading one is an affair of
/// Documents.
class TemplateExporting : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        Commands& commands;
        Notes& notes;
    };

    TemplateExporting(
        const View& view, Ask& ask, IconCommands& icons, const SettingsWindows& windows);

private:
    void mnuExportTemplate_Click();
    void Message(const QString& text);
    std::optional<std::string> ChooseTarget();
    void Export(const std::string& path);

    View m_view;
    Ask& m_ask;
    IconCommands& m_icons;
    const SettingsWindows& m_windows;
};

} // namespace vypx
