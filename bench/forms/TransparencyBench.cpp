// A step of dragging a bar of the preview colour in the transparent colour editor, with the whole
// window painted. Processor time is to be below 16 ms. Without a screen:
// QT_QPA_PLATFORM=offscreen.

#include "companion/BmpFile.h"
#include "document/Document.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "forms/imaging/frmChangeTC.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QScrollBar>
#include <benchmark/benchmark.h>

namespace {

using namespace vypx;

/// Stripes, of which every other one is transparent.
Picture Striped(int width, int height)
{
    Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.Set(x, y, x % 2 == 0 ? Rgb{ 255, 0, 255 } : Rgb{ x % 256, y % 256, 7 });
    return picture;
}

/// The window over a high-res picture of that size.
struct Editor {
    Editor(int width, int height)
    {
        AppFolder = folder.Path();
        SetTempSuffix(0);
        MakeFolder(WorkFolder());
        HighResPath = WorkPath("tAIB3500-d144.bmp");
        test::WriteBytes(HighResPath, EncodeBmp24(Striped(width, height)));
        BitmapTable = { { .file = "tAIB3500-d144.bmp", .hasTransparent = 1 } };
        SlotLG.SetMask({ 255, 0, 255 });
        LGloaded = LGhasTransparent = EditingLG = true;
        window = new frmChangeTC(ColorDepth::Bits16, nullptr);
        window->show();
        window->findChild<QPushButton*>("cmdZoom4X")->click();
        QCoreApplication::processEvents();
    }
    ~Editor() { delete window; }

    test::TempFolder folder;
    frmChangeTC* window = nullptr;
};

/// Width and height of the picture, which is shown at four times its size.
void DragPreviewColour(benchmark::State& state)
{
    Editor editor(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
    if (state.range(2) != 0) // a frame as large as a screen, which shows all of the picture
        editor.window->resize(1600, 1000);
    auto& bar = *editor.window->findChild<QScrollBar*>("VScrollGrn");
    bar.setSliderDown(true);
    QCoreApplication::processEvents();
    int step = 0;
    for (auto _ : state) {
        bar.setSliderPosition(++step % 256);
        editor.window->grab(); // paints everything, more than a step does
    }
}

BENCHMARK(DragPreviewColour)
    ->Args({ 64, 44, 0 })
    ->Args({ 300, 200, 0 })
    ->Args({ 64, 44, 1 })
    ->Args({ 300, 200, 1 })
    ->ArgNames({ "width", "height", "large" })
    ->Unit(benchmark::kMillisecond);

} // namespace
