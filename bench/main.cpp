// Our costs beside those of libcups and Qt for the same question, in one run.

#include "ratios.h"

#include <QApplication>

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
