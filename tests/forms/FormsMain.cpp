#include "support/TempFolder.h"

#include <QApplication>
#include <QSettings>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setCursorFlashTime(0);
    QApplication::setQuitOnLastWindowClosed(false);
    // The user's own settings stay out of the tests and the tests out of them.
    const vypx::test::TempFolder settings;
    QSettings::setPath(
        QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(settings.Path()));
    return RUN_ALL_TESTS();
}
