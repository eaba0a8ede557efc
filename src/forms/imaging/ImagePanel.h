#pragma once

#include "document/Selection.h"
#include "forms/imaging/PictureBox.h"

#include <QGroupBox>
#include <memory>

class QMenu;

namespace Ui {
class ImagePanel;
}

namespace vypx {

/// One of the two panels, `frameLG` or `frameSM`: shows the picture of one slot of the selected
/// icon on the background colour, tells its size and transparent colour, and has the commands for
/// it. Its controls are named by the slot's letters, as in `picLG`. It knows nothing of the other
/// panel.
class ImagePanel : public QGroupBox {
    Q_OBJECT

public:
    /// `imageBuffer` (ImageBUF) is the hidden box through which pictures are loaded.
    ImagePanel(const Slot& slot, PictureBox& imageBuffer, QWidget* parent = nullptr);
    ~ImagePanel() override;

    const vypx::Slot& Shows() const { return m_slot; }

    /// The panel's pop-up menu, which becomes a part of it.
    void TakeMenu(QMenu& menu);
    QMenu* Menu() const { return m_menu; }

    /// Shows the picture that the slot's fields of the document name; clears the size text if
    /// there is none.
    void Draw();
    /// What a selection brings: texts, swatch, picture.
    void Show(const SlotEffects& effects);

    /// There is a transparent colour, and it is this one.
    void ShowMask(Rgb colour);
    /// The swatch and its text alone, whether they are in sight or not.
    void SetMaskColour(Rgb colour);

    void ClearPicture();
    /// The picture and all that is told of it.
    void ClearImage();
    void ClearSizeLimit();
    /// The size text, the colour's text and its swatch, as when a load begins.
    void ClearTexts();
    /// Nothing of a picture or of an icon is left.
    void Clear();

    /// Background of the picture and of its box; the chrome colour in the swatch.
    void PaintBackground(const QColor& colour);
    /// The background alone, while a picture is on show.
    void SetBackColour(const QColor& colour);

signals:
    /// The user wants the pop-up menu at that place of the screen: by the right button over the
    /// picture, or by a key while the panel has the focus.
    void MenuAsked(const QPoint& place);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void NameBySlot();
    void ShowColour(bool hasTransparent);
    void HideColour();
    void ReserveColourWidth();
    void CentrePicture();
    void AskForMenu();
    bool TakesRelease(const QMouseEvent& release);
    bool eventFilter(QObject* watched, QEvent* event) override;

    std::unique_ptr<Ui::ImagePanel> m_ui;
    const vypx::Slot& m_slot;
    PictureBox& m_imageBuffer;
    QMenu* m_menu = nullptr;
};

} // namespace vypx
