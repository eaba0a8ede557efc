#pragma once

#include "document/SettingsFile.h"
#include "forms/main/Commands.h"
#include "forms/main/SideContents.h"
#include "settings/Arrangement.h"

#include <QObject>
#include <QRect>
#include <optional>
#include <vector>

namespace vypx {

class SideForm;

/// The small windows beside the main form in the frame's area: shown, hidden, where they stand;
/// and the entries of the View menu that show and hide them.
class SideWindows : public QObject {
    Q_OBJECT

public:
    /// `form` stands in a window of the area.
    SideWindows(QWidget& form, Commands& commands, SideContents& contents);

    /// Shows those that the settings say are visible, at their places.
    void ShowByOption();

    /// Where the windows stand, for the settings.
    void TellPlaces(WindowsToSave& windows) const;

    /// Those on view, in the order in which they stand below each other when they are arranged.
    std::vector<SideForm*> Column() const;
    /// How wide those are.
    SideWidths Widths() const;

signals:
    /// The menu of one of them asks for the windows to be arranged.
    void ArrangeAsked();

private:
    struct Row;
    struct Side {
        const Row& row;
        SideForm* window = nullptr;      // owned by the area; null while it is not loaded
        std::optional<QRect> stood = {}; // when it was closed, in pixels of the whole area
    };
    static const std::vector<Row>& Rows();

    void Toggle(Side& side);
    void Show(Side& side);
    void WasClosed(Side& side);
    const Side& Of(Command entry) const;

    QWidget& m_form;
    Commands& m_commands;
    SideContents& m_contents;
    std::vector<Side> m_sides;
};

} // namespace vypx
