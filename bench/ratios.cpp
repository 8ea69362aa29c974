#include "ratios.h"

#include "generated_ppd.h"

#include <cmath>
#include <cstdio>

#include <unistd.h>

namespace {

/// One measure: a cost by another cost, or by a number, and what it is to reach.
struct Ratio {
    const char *name, *ours, *peer;
    double bound;
};

// clang-format off
constexpr Ratio kRatios[] = {
    {"table_from_ppd/1000", "table_from_ppd/1000", "ppdOpenFile/1000", 0.25},
    {"table_from_ppd/10000", "table_from_ppd/10000", "ppdOpenFile/10000", 0.25},
    {"table_from_ppd/100000", "table_from_ppd/100000", "ppdOpenFile/100000", 0.25},
    {"table_from_wildcards/1000", "table_from_wildcards/1000", "ppdOpenFile_wildcards/1000", 0.25},
    {"table_from_wildcards/10000", "table_from_wildcards/10000", "ppdOpenFile_wildcards/10000", 0.25},
    {"table_from_wildcards/100000", "table_from_wildcards/100000", "ppdOpenFile_wildcards/100000", 0.25},
    {"table_from_cache/1000", "table_from_cache/1000", "table_from_ppd/1000", 0.8},
    {"table_from_cache/10000", "table_from_cache/10000", "table_from_ppd/10000", 0.8},
    {"table_from_cache/100000", "table_from_cache/100000", "table_from_ppd/100000", 0.8},
    {"conflict_rows/1000", "conflict_rows/1000", "cupsGetConflicts/1000", 1.0 / 100},
    {"conflict_rows/10000", "conflict_rows/10000", "cupsGetConflicts/10000", 1.0 / 300},
    {"conflict_rows/100000", "conflict_rows/100000", "cupsGetConflicts/100000", 1.0 / 300},
    {"conflict_rows_wildcards/1000", "conflict_rows_wildcards/1000", "cupsGetConflicts_wildcards/1000", 1.0 / 100},
    {"conflict_rows_wildcards/10000", "conflict_rows_wildcards/10000", "cupsGetConflicts_wildcards/10000", 1.0 / 300},
    {"conflict_rows_wildcards/100000", "conflict_rows_wildcards/100000", "cupsGetConflicts_wildcards/100000", 1.0 / 300},
    {"user_event_in_2_ms", "user_event/100000", "2 ms", 1},
    {"user_event_growth", "user_event/100000", "user_event/100", 1.5},
    {"user_event/10000", "user_event/10000", "ppdMarkOption/10000", 1},
    {"user_event/100000", "user_event/100000", "ppdMarkOption/100000", 1},
    {"color_mode_event_in_2_ms", "color_mode_event/100000", "2 ms", 1},
    {"color_mode_event_growth", "color_mode_event/100000", "color_mode_event/100", 1.5},
    {"color_mode_event/10000", "color_mode_event/10000", "ppdMarkOption_color_mode/10000", 1},
    {"color_mode_event/100000", "color_mode_event/100000", "ppdMarkOption_color_mode/100000", 1},
    {"panel_open/100", "queue_open/100", "QPrintDialog/100", 3},
    {"panel_open/10000", "queue_open/10000", "QPrintDialog/10000", 1},
    {"panel_open_with_ppd/10000", "queue_open_with_ppd/10000", "QPrintDialog_with_printer/10000",
     1},
    {"unseen_should_print/100", "unseen_should_print/100", "panel_open/100", 1},
    {"unseen_should_print/1000", "unseen_should_print/1000", "panel_open/1000", 1},
    {"unseen_should_print/10000", "unseen_should_print/10000", "panel_open/10000", 1},
    {"unseen_should_print/100000", "unseen_should_print/100000", "panel_open/100000", 1},
    {"unseen_screen_work", "unseen_screen_work/100", "screen_work/100", 0},
    {"table_memory/100", "table_memory/100", "ppd_memory/100", 1},
    {"table_memory/1000", "table_memory/1000", "ppd_memory/1000", 1},
    {"table_memory/10000", "table_memory/10000", "ppd_memory/10000", 1},
    {"table_memory/100000", "table_memory/100000", "ppd_memory/100000", 1},
    {"all_wildcards_time", "all_wildcards/0", "ppdOpenFile_all_wildcards/0", 1},
    {"all_wildcards_memory", "all_wildcards_memory/0", "ppd_memory_all_wildcards/0", 1},
};
constexpr const char *kGrowing[] = {
    "ppdOpenFile", "table_from_ppd", "table_from_wildcards", "table_from_cache", "conflict_rows",
    "conflict_rows_wildcards", "cupsGetConflicts", "user_event", "color_mode_event", "ppdMarkOption",
    "panel_open", "unseen_should_print", "table_memory", "ppd_memory",
};
// clang-format on

/// The name without what Google Benchmark adds behind it.
std::string plainName(const std::string &name) {
    std::string plain = name.substr(0, name.find("/real_time"));
    plain = plain.substr(0, plain.find("/manual_time"));
    plain = plain.substr(0, plain.find("/iterations"));
    return plain.substr(0, plain.find("/repeats"));
}

} // namespace

RatioReporter::RatioReporter() : ConsoleReporter(isatty(STDOUT_FILENO) ? OO_Defaults : OO_None) {}

void RatioReporter::ReportRuns(const std::vector<Run> &runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs)
        if (!run.error_occurred && (run.aggregate_name == "median" || run.repetitions <= 1)) {
            const auto amount = run.counters.find("amount");
            m_cost[plainName(run.run_name.str())] =
                amount != run.counters.end()
                    ? amount->second.value
                    : run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
}

void RatioReporter::Finalize() {
    m_cost["2 ms"] = 0.002;
    std::printf("\n");
    for (const Ratio &ratio : kRatios) {
        const auto ours = m_cost.find(ratio.ours), peer = m_cost.find(ratio.peer);
        if (ours == m_cost.end() || peer == m_cost.end()) {
            std::printf("ratio %s - %.4g not measured\n", ratio.name, ratio.bound);
            continue;
        }
        const double value = ours->second / peer->second;
        std::printf("ratio %s %.4g %.4g %s\n", ratio.name, value, ratio.bound,
                    value <= ratio.bound ? "ok" : "short");
    }
    // The exponent of the cost over N, from the logarithms by least squares.
    for (const char *name : kGrowing) {
        double n = 0, x = 0, y = 0, xx = 0, xy = 0;
        for (const int64_t size : kSizes)
            if (const auto cost = m_cost.find(std::string(name) + '/' + std::to_string(size));
                cost != m_cost.end() && size >= 1000) {
                const double lx = std::log(double(size)), ly = std::log(cost->second);
                ++n, x += lx, y += ly, xx += lx * lx, xy += lx * ly;
            }
        if (n > 1)
            std::printf("growth %s %.2f\n", name, (n * xy - x * y) / (n * xx - x * x));
    }
}
