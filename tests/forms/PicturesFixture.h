#pragma once

#include "IconsFixture.h"

#include "companion/BmpFile.h"
#include "document/PictureState.h"

namespace vypx::test {

/// Icons whose pictures are changed by the buttons of their panels.
class PicturesFixture : public IconsFixture {
protected:
    /// A BMP file of one colour, with another one at its top left corner.
    QString PictureFile(int width, int height, Rgb colour, const std::string& name = "new.bmp")
    {
        vypx::Picture picture(width, height);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                picture.Set(x, y, colour);
        picture.Set(0, 0, { 8, 16, 24 });
        return Written(EncodeBmp24(picture), name);
    }
    void Press(const QString& name) { QTest::mouseClick(&Find<QPushButton>(name), Qt::LeftButton); }
    void Import(const QString& button, const QString& path)
    {
        ask.Choose(path);
        Press(button);
    }
    void ImportBlack(const QString& button, int width, int height)
    {
        Import(button, Written(EncodeBmp24(vypx::Picture(width, height)), "new.bmp"));
    }
    bool IsShown(const QString& name) { return Find<QWidget>(name).isVisible(); }
    QString Text(const QString& name) { return Find<QLabel>(name).text(); }
    QString Note() { return IsShown("lblNote") ? Text("lblNote") : QString(); }
    static std::string Cell(const std::string& label, std::string IconRow::*cell)
    {
        return IconTable[*FindIconRow(label)].*cell;
    }
};

} // namespace vypx::test
