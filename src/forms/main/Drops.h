#pragma once

#include "forms/common/Ask.h"
#include "forms/common/DropTarget.h"
#include "forms/imaging/Panels.h"
#include "forms/main/BusyGuard.h"
#include "forms/main/Commands.h"
#include "forms/main/DropTable.h"
#include "forms/main/Notes.h"

#include <QObject>
#include <functional>

namespace vypx {

/// Takes files that are dropped on the window: iconsets are opened, pictures brought into a slot.
/// Nothing is taken during a load, a search or another drop, nor while a window keeps the frame
/// from taking input.
class Drops : public QObject {
    Q_OBJECT

public:
    struct View {
        QWidget& frame;
        QWidget& form;
        Panels panels;
        Commands& commands;
        Notes& notes;
    };
    /// What others do with a file.
    struct Doors {
        std::function<void()> load;                         ///< LoadFile
        std::function<void(const vypx::Slot& slot)> import; ///< ImportLG, ImportSM
        std::function<void()> paste;                        ///< PasteImageLG; may be empty
        /// Whether a search runs, in which nothing is taken; may be empty.
        std::function<bool()> isSearching = {};
    };

    /// Turns the drops of all targets on.
    Drops(const View& view, Ask& ask, BusyGuard& busy, Doors doors);

    /// Does with the file DroppedFileName what its ending asks for: opens an iconset, asks where a
    /// picture is to go. Any other file waits for the next import.
    void ChkDragFile();

private:
    QWidget* ControlNamed(std::string_view name) const;
    bool CanServe() const;
    bool Takes(const DropTargetRow& target, const DraggedData& data) const;
    bool CanPaste(const DropTargetRow& target) const;
    void Serve(const DropTargetRow& target, const DraggedData& data);
    void ServePanel(const DropTargetRow& target);
    std::string_view WhyNotImported(const DropTargetRow& target) const;
    void OpenDropped(const DropQuestion& question);
    void ShowIconTarget();
    void NoteOtherEnding(const DropTargetRow& target);

    View m_view;
    Ask& m_ask;
    BusyGuard& m_busy;
    Doors m_doors;
    bool m_isServing = false;
};

} // namespace vypx
