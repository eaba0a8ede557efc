// Runs the benchmarks of a program with windows. The platform of the windows is chosen from
// outside, as for any such program (QT_QPA_PLATFORM=offscreen).

#include <QApplication>
#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
