// A step of a drag of the rectangle over a picture of 4000 x 4000 pixels, and a step of a bar of
// the preview colour, each until the windows are painted. Without a screen:
// QT_QPA_PLATFORM=offscreen.

#include "NoAsk.h"
#include "QuietStart.h"
#include "companion/BmpFile.h"
#include "document/Document.h"
#include "document/PictureState.h"
#include "document/WorkingFolder.h"
#include "forms/imaging/frmCrop.h"
#include "forms/main/Form1.h"
#include "forms/main/IconTreeView.h"
#include "forms/main/MDIForm1.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <benchmark/benchmark.h>

namespace {

using namespace vypx;

constexpr int Side = 4000;

/// The program with one icon that has both pictures.
struct Program {
    Program()
        : frame(ask)
    {
        StartQuietly(frame, folder);
        FileLoaded = true;
        Parent = DatabaseName = "Bench";
        Tree.SetRoot(Parent);
        const std::string label = "Application (Large Icon)";
        IconTable = { { label, "tAIB3500", "tAIB3500.bmp", "tAIB3500-d144.bmp", 1, "APP" } };
        BitmapTable = { { "tAIB3500.bmp", 1, 0, 0, 0, 0, 8 },
            { "tAIB3500-d144.bmp", 1, 0, 0, 0, 0, 8 } };
        Tree.Add({ .key = label, .image = ImageApp });
        test::WriteBytes(WorkPath("tAIB3500.bmp"), EncodeBmp24(Picture(32, 22)));
        test::WriteBytes(WorkPath("tAIB3500-d144.bmp"), EncodeBmp24(Picture(64, 44)));
        auto& tree = *frame.findChild<IconTreeView*>("TreeView1");
        tree.Fill(Tree);
        tree.setCurrentItem(tree.Root()->child(0));
    }

    test::TempFolder folder;
    NoAsk ask;
    MDIForm1 frame;
};

void DragStep(benchmark::State& state)
{
    Program program;
    const std::string file = program.folder.File("large.bmp");
    test::WriteBytes(file, EncodeBmp24(Picture(Side, Side)));
    DroppedFileName = file;
    DroppedFile = true;
    program.frame.Form().ImportLG();
    DroppedFile = false;
    auto& crop = *program.frame.findChild<QDialog*>("frmCrop");
    auto& view = *crop.findChild<QWidget*>("picResize");
    QPointF at(100, 100);
    const auto send = [&](QEvent::Type type, Qt::MouseButton button) {
        QMouseEvent event(type, at, view.mapToGlobal(at), button, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&view, &event);
    };
    send(QEvent::MouseButtonPress, Qt::LeftButton);
    double step = 1;
    for (auto _ : state) {
        if (at.x() > 200 || at.x() < 100)
            step = -step;
        at += QPointF(step, step);
        send(QEvent::MouseMove, Qt::NoButton);
        QCoreApplication::sendPostedEvents();
        crop.repaint(); // all of it, more than a step does
    }
    crop.close();
}

/// Both panels and the window of the bars are painted.
void PreviewBarStep(benchmark::State& state)
{
    Program program;
    auto& bar = *program.frame.findChild<QScrollBar*>("VScrollRed");
    int value = 0;
    bar.setSliderDown(true);
    for (auto _ : state) {
        value = (value + 1) % 256;
        bar.setSliderPosition(value);
        program.frame.repaint();
    }
    bar.setSliderDown(false);
}

BENCHMARK(DragStep)->Unit(benchmark::kMillisecond);
BENCHMARK(PreviewBarStep)->Unit(benchmark::kMillisecond);

} // namespace
