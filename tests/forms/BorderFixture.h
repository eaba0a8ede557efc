#pragma once

#include "CropFixture.h"

#include <QLineEdit>
#include <QScrollBar>

namespace vypx::test {

/// Over a picture of 700 x 500 pixels, whose view has a border of 50 rows above and below.
class BorderFixture : public CropFixture {
protected:
    BorderFixture()
    {
        OpenCrop(700, 500);
        Push("cmdChangeBackColor");
    }

    QScrollBar& Bar(const QString& colour) { return In<QScrollBar>(Border(), "VScroll" + colour); }
    QLineEdit& Text(const QString& colour) { return In<QLineEdit>(Border(), "Text" + colour); }
    QStringList Texts() { return { Text("Red").text(), Text("Grn").text(), Text("Blue").text() }; }
    QColor Swatch()
    {
        return In<QWidget>(Border(), "picBackCol").grab().toImage().pixelColor(3, 3);
    }
    void Choose(int red, int green, int blue)
    {
        Bar("Red").setValue(red);
        Bar("Grn").setValue(green);
        Bar("Blue").setValue(blue);
    }
    void BorderOk() { Push(Border(), "cmdOK"); }
    void BorderCancel() { Push(Border(), "cmdCancel"); }
    bool IsBorderOpen() { return IsOpen("frmChangeBackColor"); }
    static Rgb Chosen() { return { CropBackR, CropBackG, CropBackB }; }
    void ExpectBorder(const QColor& colour)
    {
        EXPECT_EQ(BorderColour(), colour);
        EXPECT_EQ(Seen({ 5, 5 }), colour);
        EXPECT_EQ(Seen({ 340, 340 }), colour);
        EXPECT_EQ(Chosen(), (Rgb{ colour.red(), colour.green(), colour.blue() }));
    }
};

} // namespace vypx::test
