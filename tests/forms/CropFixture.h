#pragma once

#include "PicturesFixture.h"

#include "forms/imaging/PictureBox.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMouseEvent>
#include <QPointer>

namespace vypx::test {

/// Colour of a block of 2 x 2 pixels: it tells the block's place.
inline Rgb BlockColour(int column, int row)
{
    return { column % 256, row % 256, column / 256 * 16 + row / 256 + 40 };
}

/// A picture made of these blocks. Halved, it has each block's colour once.
inline vypx::Picture Blocks(int width, int height)
{
    vypx::Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.Set(x, y, BlockColour(x / 2, y / 2));
    return picture;
}

/// The window that opens over a picture which is larger than its slot.
class CropFixture : public PicturesFixture {
protected:
    CropFixture()
    {
        AutoCreateLowRes = false;
        Click("Alpha (Large Icon)");
    }

    void OpenCrop(const vypx::Picture& picture, const QString& button = "cmdImportLG")
    {
        Import(button, Written(EncodeBmp24(picture), "large.bmp"));
    }
    void OpenCrop(int width, int height, const QString& button = "cmdImportLG")
    {
        OpenCrop(Blocks(width, height), button);
    }

    /// What was put off until the program is idle happens: windows that were closed go.
    static void Settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    bool IsOpen(const QString& window = "frmCrop")
    {
        Settle();
        return frame->findChild<QDialog*>(window) != nullptr;
    }
    QDialog& Crop() { return Find<QDialog>("frmCrop"); }
    QDialog& Border() { return Find<QDialog>("frmChangeBackColor"); }

    /// A control of that window, not of one that it opened.
    template <typename T>
    static T& In(QDialog& window, const QString& name)
    {
        for (T* control : window.findChildren<T*>(name))
            if (control->window() == &window)
                return *control;
        throw std::runtime_error("no such control: " + name.toStdString());
    }
    template <typename T = QWidget>
    T& Control(const QString& name)
    {
        return In<T>(Crop(), name);
    }
    bool IsSeen(const QString& name) { return Control(name).isVisible(); }

    /// A real click on a button or option button of the crop window.
    void Push(const QString& name) { Push(Crop(), name); }
    static void Push(QDialog& window, const QString& name)
    {
        auto& button = In<QAbstractButton>(window, name);
        QTest::mouseClick(&button, Qt::LeftButton, {}, { 8, button.height() / 2 });
        Settle();
    }
    void Ok() { Push("cmdOK"); }
    void Cancel() { Push("cmdCancel"); }
    bool IsChosen(const QString& name) { return Control<QAbstractButton>(name).isChecked(); }

    QWidget& View() { return Control("picResize"); }
    QRect Rectangle() { return Control("CropRec").geometry(); }
    QString RegionText() { return Control<QLabel>("lblRegion").text(); }
    QColor BorderColour() { return Control<PictureBox>("picBackColor").BackColour(); }
    /// What the view shows at that place.
    QColor Seen(const QPoint& point) { return View().grab().toImage().pixelColor(point); }

    void Mouse(QEvent::Type type, const QPoint& place, Qt::MouseButton button)
    {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, place, View().mapToGlobal(place), moves ? Qt::NoButton : button,
            type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QApplication::sendEvent(&View(), &event);
    }
    /// From place to place with a button down.
    void Drag(Qt::MouseButton button, const std::vector<QPoint>& places)
    {
        Mouse(QEvent::MouseButtonPress, places.front(), button);
        for (std::size_t i = 1; i < places.size(); ++i)
            Mouse(QEvent::MouseMove, places[i], button);
        Mouse(QEvent::MouseButtonRelease, places.back(), button);
    }
    void DragLeft(const QPoint& from, const QPoint& to) { Drag(Qt::LeftButton, { from, to }); }
    /// Up (below 0) or down with the right button, pixel by pixel.
    void DragRight(int pixels)
    {
        std::vector<QPoint> places{ { 100, 100 } };
        for (int i = 0; i != pixels; i += pixels < 0 ? -1 : 1)
            places.push_back(places.back() + QPoint(0, pixels < 0 ? -1 : 1));
        Drag(Qt::RightButton, places);
    }

    /// The pixels of a working file; none where it is not there or no picture.
    static vypx::Picture WorkPicture(const std::string& name)
    {
        if (!NamedFileExists(WorkPath(name)))
            return {};
        return DecodeBmp(ByteView(ReadBytes(WorkPath(name)))).value_or(vypx::Picture());
    }
    static QSize SizeOf(const vypx::Picture& picture)
    {
        return { picture.Width(), picture.Height() };
    }
    /// What the high-res slot of Alpha's large icon holds.
    static vypx::Picture StoredLG() { return WorkPicture("tAIB3500-d144.bmp"); }
    static vypx::Picture StoredSM() { return WorkPicture("tAIB3500.bmp"); }
    /// The two pixels that every icon begins with.
    static bool IsUntouched(const vypx::Picture& picture)
    {
        return SizeOf(picture) == QSize(2, 1) && picture.At(0, 0) == Rgb{ 255, 0, 255 }
        && picture.At(1, 0) == Rgb{ 255, 255, 255 };
    }
};

} // namespace vypx::test
