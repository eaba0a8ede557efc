#pragma once

#include "document/Slot.h"
#include "forms/common/Ask.h"
#include "forms/imaging/Panels.h"

#include <QObject>

class QPoint;

namespace vypx {

class Commands;
class IconCommands;
class PictureCommands;

/// The commands for the clipboard, by buttons and by the pop-up menus of the panels.
class ClipboardCommands : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& form;
        Panels panels;
        Commands& commands;
    };

    ClipboardCommands(const View& view, Ask& ask, PictureCommands& pictures, IconCommands& icons);

    /// Copy the stored picture of the selected icon, not what the panel draws of it. Without one
    /// the clipboard keeps what it has.
    void CopyImageLG();
    void CopyImageSM();

private:
    void CopyImage(const vypx::Slot& slot);
    void ShowMenu(const ImagePanel& panel, const QPoint& place);

    View m_view;
    Ask& m_ask;
};

} // namespace vypx
