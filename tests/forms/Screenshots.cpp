#include "forms/Form1.h"
#include "forms/MDIForm1.h"
#include "support/ScriptedAsk.h"
#include "support/TempFolder.h"

#include <QAction>
#include <QApplication>
#include <QScreen>
#include <QTest>
#include <iostream>

namespace {

using namespace vypx;

/// What stands on the screen, window frames and all.
void Take(const QString& folder, const QString& name)
{
    QTest::qWait(300);
    const QString file = folder + "/" + name + ".png";
    if (!QGuiApplication::primaryScreen()->grabWindow(0).save(file))
        std::cerr << "can't write " << file.toStdString() << '\n';
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName("VY Pixelworks");
    QApplication::setCursorFlashTime(0);
    if (argc != 2) {
        std::cerr << "usage: screenshots FOLDER\n";
        return 2;
    }
    const QString folder = argv[1];
    const test::TempFolder programFolder;
    test::ScriptedAsk ask;
    MDIForm1 frame(ask);
    frame.Start(QString::fromStdString(programFolder.Path()), {});
    frame.move(20, 40);
    Take(folder, "main-form-empty");

    ask.Choose(QString(VYPX_SHIPPED_DATA "/samples/owners.prc"));
    frame.findChild<QAction*>("mnuOpen")->trigger();
    Take(folder, "main-form");
    frame.Form().ExitProgram();
    return 0;
}
