#include "forms/common/UserStore.h"
#include "support/Files.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QSettings>
#include <gtest/gtest.h>

/// A screen on which all windows have room, unless another one was asked for.
static void UseScreen(const std::string& description)
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && platform != "offscreen")
        return;
    vypx::test::WriteText(description, R"({ "screens": [ { "name": "test", "x": 0, "y": 0,
        "width": 1280, "height": 900, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] })");
    qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + description).c_str());
}

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const vypx::test::TempFolder settings;
    UseScreen(settings.File("screen.json"));
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);
    // The user's own settings stay out of the tests and the tests out of them.
    QSettings::setPath(
        QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(settings.Path()));
    vypx::SaveShowTipsAtStartup(false); // where a test does not want them
    return RUN_ALL_TESTS();
}
