// SPDX-License-Identifier: GPL-3.0-or-later
// Benchmark entry point: the screens need an application object; the offscreen platform is enough.
#include <QApplication>
#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
