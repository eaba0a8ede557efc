// start_program empty|whole FOLDER: starts up to its first idle moment and ends. "empty" is a
// window with an empty area and the program's menus, "whole" the program in FOLDER.

#include "../NoAsk.h"
#include "forms/main/MDIForm1.h"
#include "forms/main/Menus.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QMdiArea>
#include <QMenuBar>
#include <QSettings>
#include <cstdlib>

int main(int argc, char** argv)
{
    using namespace vypx;
    QApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[2]);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder + "/user");
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
        [] { std::_Exit(0); }); // what a window's end takes is not asked for
    if (QString(argv[1]) == "empty") {
        QMainWindow window;
        window.setCentralWidget(new QMdiArea);
        MakeMenus(*window.menuBar());
        window.resize(990, 640);
        window.show();
        return QApplication::exec();
    }
    NoAsk ask;
    MDIForm1 frame(ask);
    frame.Start(folder, {});
    return QApplication::exec();
}
