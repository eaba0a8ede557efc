#pragma once

#include "forms/common/DisabledWindow.h"
#include "forms/imaging/Panels.h"
#include "forms/main/SettingsWindows.h"
#include "forms/main/StatusTexts.h"

#include <QObject>
#include <QPointer>
#include <optional>

namespace vypx {

class frmChangeTC;

/// The commands that open the editor of a picture's transparent colour. While it is open the frame
/// and all that belongs to it are disabled, so there is one at most.
class TransparencyCommands : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        Panels panels;
        Commands& commands;
        StatusTexts& status;
    };

    TransparencyCommands(const View& view, const SettingsWindows& windows);

    /// For the picture that the slot shows. On purpose: the document counts as changed from now on,
    /// whatever comes of it.
    void Open(const vypx::Slot& slot);
    /// As by its frame: a load begins.
    void Close();

private:
    void ShowColour(const vypx::Slot& slot, const Rgb& colour);
    void Ended();

    View m_view;
    const SettingsWindows& m_windows;
    QPointer<frmChangeTC> m_window;
    std::optional<DisabledWindow> m_disabled;
};

} // namespace vypx
