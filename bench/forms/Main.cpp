// Runs the benchmarks of a program with windows. The platform of the windows is chosen from
// outside, as for any such program (QT_QPA_PLATFORM=offscreen).

#include "forms/common/UserStore.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QSettings>
#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const vypx::test::TempFolder user; // the user's own settings stay out of it
    QSettings::setPath(
        QSettings::NativeFormat, QSettings::UserScope, QString::fromStdString(user.Path()));
    vypx::SaveShowTipsAtStartup(false);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
