#include <QCoreApplication>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const QCoreApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
