#pragma once

#include "PicturesFixture.h"

#include "forms/imaging/ColourBars.h"
#include "forms/imaging/ColourText.h"
#include "forms/imaging/ZoomView.h"
#include "forms/imaging/frmChangeTC.h"

#include <QCheckBox>
#include <QMouseEvent>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

namespace vypx::test {

inline constexpr Rgb Magenta{ 255, 0, 255 }, White{ 255, 255, 255 };

/// The window for the transparent colour over the icons of IconsFixture at 16 bits. "Alpha (Large
/// Icon)" shows a magenta pixel, which is transparent, and a white one; the same pixels of "Alpha
/// (Small Icon)" are all opaque.
class ChangeTCFixture : public PicturesFixture {
protected:
    ChangeTCFixture() { DefaultColorDepth = ColorDepth::Bits16; }

    void OpenEditor(const QString& icon = "Alpha (Large Icon)", const QString& letters = "LG")
    {
        Click(icon);
        Press("cmdChangeTC_" + letters);
        ASSERT_TRUE(IsOpen());
        // Not qWaitForWindowActive, which is content with an active parent.
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == Window(); }));
    }
    /// Replaces the high-res picture of Alpha by this one first.
    void OpenEditorOn(const vypx::Picture& picture)
    {
        AutoCreateLowRes = false;
        Click("Alpha (Large Icon)");
        Import("cmdImportLG", Written(EncodeBmp24(picture), "new.bmp"));
        OpenEditor();
    }
    frmChangeTC* Window()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return frame->findChild<frmChangeTC*>("frmChangeTC");
    }
    bool IsOpen() { return Window() && Window()->isVisible(); }
    template <typename T>
    T& Part(const QString& name)
    {
        T* const found = Window()->template findChild<T*>(name);
        if (!found)
            throw std::runtime_error("no such control: " + name.toStdString());
        return *found;
    }
    ZoomView& View() { return Part<ZoomView>("picMain"); }

    /// On the circle or square of an option, which a click on its middle could miss.
    void Choose(const QString& option)
    {
        auto& button = Part<QAbstractButton>(option);
        QTest::mouseClick(&button, Qt::LeftButton, {}, { 8, button.height() / 2 });
    }
    void PressIn(const QString& button)
    {
        QTest::mouseClick(&Part<QPushButton>(button), Qt::LeftButton);
    }
    QPoint PlaceOf(int x, int y, int zoom = 2) { return { x * zoom + 1, y * zoom + 1 }; }
    void Hover(const QPoint& place)
    {
        QMouseEvent move(QEvent::MouseMove, place, View().mapToGlobal(place), Qt::NoButton,
            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&View(), &move);
    }
    void Pick(int x, int y, int zoom = 2)
    {
        QTest::mouseClick(&View(), Qt::LeftButton, {}, PlaceOf(x, y, zoom));
    }
    /// Types over what stands there.
    void Type(const QString& text, const QString& keys)
    {
        auto& edit = Part<ColourText>(text);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, keys);
    }
    void TypeAndEnter(const QString& text, const QString& keys)
    {
        Type(text, keys);
        QTest::keyClick(&Part<ColourText>(text), Qt::Key_Return);
    }

    bool IsChosen(const QString& option) { return Part<QAbstractButton>(option).isChecked(); }
    bool CanUseIn(const QString& control) { return Part<QWidget>(control).isEnabled(); }
    bool IsShownIn(const QString& control) { return Part<QWidget>(control).isVisible(); }
    QStringList Typed()
    {
        return { Part<ColourText>("txtTC_Red").text(), Part<ColourText>("txtTC_Grn").text(),
            Part<ColourText>("txtTC_Blue").text() };
    }
    QStringList Sampled()
    {
        return { Part<QLabel>("lblSampRed").text(), Part<QLabel>("lblSampGrn").text(),
            Part<QLabel>("lblSampBlue").text() };
    }
    QColor Swatch(const QString& name)
    {
        return Part<QWidget>(name).grab().toImage().pixelColor(9, 9);
    }
    /// Colour of the view over a pixel of the picture.
    QColor Seen(int x, int y, int zoom = 2)
    {
        return View().grab().toImage().pixelColor(PlaceOf(x, y, zoom));
    }
    /// Of the picture that a slot shows: flag and colour, empty cells as "-".
    static QString Cells(const std::string& path)
    {
        const BitmapEntry* const bitmap = BitmapAt(path);
        QStringList cells;
        for (const auto& cell :
            { bitmap->hasTransparent, bitmap->red, bitmap->green, bitmap->blue })
            cells << (cell ? QString::number(*cell) : QString("-"));
        return cells.join(' ');
    }
    static QString Cells() { return Cells(HighResPath); }
};

} // namespace vypx::test
