// Our costs beside those of libcups and Qt for the same question, in one run.

#include "ratios.h"

#include <QApplication>
#include <QLoggingCategory>

int main(int argc, char **argv) {
    QLoggingCategory::setFilterRules("default.warning=false"); // the offscreen platform's remarks
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
