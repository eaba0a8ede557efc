#pragma once

#include "imaging/TransparencyEdit.h"
#include "settings/ColorDepth.h"

#include <QDialog>
#include <array>
#include <memory>

class QLabel;

namespace Ui {
class frmChangeTC;
}

namespace vypx {

class ColourText;

/// Decides whether the picture on show in a slot (EditingLG says which) has a transparent colour,
/// and which: picked from a magnified view or typed. What is chosen counts at once; Cancel and
/// Escape take it back, the window's frame keeps it. Does not block; goes when it is closed.
class frmChangeTC : public QDialog {
    Q_OBJECT

public:
    /// At less than 16 bits no colour can be typed, as only those of the picture can be stored.
    frmChangeTC(ColorDepth depth, QWidget* parent);
    ~frmChangeTC() override;

    /// The panel still shows the picture that the window was opened for.
    bool IsOnShow() const { return m_edit.IsOnShow(); }

    void reject() override;

signals:
    /// The transparent colour of the picture is another one.
    void ColourChanged(const vypx::Rgb& colour);
    /// The window goes, whether by its buttons, its keys or its frame.
    void Done();

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// What belongs to one component of a colour.
    struct Component {
        QLabel* title;
        ColourText* text;
        QLabel* sample;
        int Rgb::*value;
    };

    void Connect();
    void KeepPlaces();
    void ShowEntry();
    void ReloadView();
    void DrawPreview();
    void ShowTransparentColour();
    void ShowColourControls(bool on);
    void PaintPreview(const Rgb& colour);
    void ShowSample(const Rgb& colour);
    void ApplyManualColor(const Component& component);
    void KeepPreviewColour();
    void End();

    void picMain_MouseDown(const Rgb& colour);
    void optUseTransparent_Click();
    void optNoTransparent_Click();
    void optUsePicker_Click();
    void optManualColor_Click();
    void cmdApplyTC_Click();
    void cmdCancelTC_Click();

    std::unique_ptr<Ui::frmChangeTC> m_ui;
    TransparencyEdit m_edit;
    std::array<Component, 3> m_components; // red, green, blue
    int m_zoom = 2;
    bool m_isLoading = true; // Loading: the option buttons do nothing
    bool m_hasEnded = false; // nothing is written any more
};

} // namespace vypx
