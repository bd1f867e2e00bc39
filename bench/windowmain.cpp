#include <QApplication>
#include <QFontDatabase>

#include <benchmark/benchmark.h>

#include "controls/sharedfonts.h"

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QFontDatabase::addApplicationFont(QStringLiteral(":/resource/HARMONYOS_SANS_SC_REGULAR.TTF"));
    setUpSharedFonts();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
