#pragma once

#include "companion/Rgb.h"
#include "forms/imaging/ColourText.h"

#include <QWidget>
#include <array>
#include <memory>

class QLabel;
class QScrollBar;

namespace Ui {
class ColourBars;
}

namespace vypx {

/// Chooses a colour with three scroll bars, three texts and "Lock to Grayscale". The numbers are 0
/// to 255; a text that is none of them becomes "0".
class ColourBars : public QWidget {
    Q_OBJECT

public:
    /// Which texts are written when the red bar has changed. A drag, and the other two bars, write
    /// all three.
    enum class RedChange { WritesItsText, WritesAllTexts };

    explicit ColourBars(QWidget* parent = nullptr);
    ~ColourBars() override;

    void SetRedChange(RedChange change) { m_redChange = change; }

    Rgb Colour() const { return m_colour; }
    /// Shows a colour; nobody is told.
    void SetColour(const Rgb& colour);

signals:
    /// The user chose, by all controls at once: what shows the colour is to be drawn anew. Comes
    /// when a bar has changed, and at every step while one is dragged.
    void ColourChanged(const vypx::Rgb& colour);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The controls of one component.
    struct Column {
        QScrollBar* bar;
        ColourText* text;
        int Rgb::*component;
    };

    void Connect(const Column& column);
    void VScroll_Change(const Column& column, int value);
    void VScroll_Scroll(const Column& column, int position);
    void Text_Change(const Column& column);
    void chkBackGray_Click(bool locked);
    void MoveBars();
    void WriteText(const Column& column);
    void WriteTexts();

    std::unique_ptr<Ui::ColourBars> m_ui;
    std::array<Column, 3> m_columns; // red, green, blue
    Rgb m_colour;
    RedChange m_redChange = RedChange::WritesItsText;
    bool m_isFilling = false; // what changes now, this widget changes itself
};

} // namespace vypx

using vypx::ColourBars; // generated code names it so
