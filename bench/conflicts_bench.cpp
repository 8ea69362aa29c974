// All conflict rows of all options after one mark, beside libcups' answer for each choice.

#include "generated_ppd.h"

#include "platform/cups_ppd.h"
#include "platform/ppd_marks.h"
#include "ppd/conflicts.h"
#include "ppd/constraint_table.h"
#include "ppd/panel_options.h"

#include <benchmark/benchmark.h>
#include <cups/cups.h>

namespace {

const char *const kMarks[] = {"Photo", "Auto"}; // of the image type, in turn

PpdPtr openMarked(int64_t size, Rules rules) {
    PpdPtr ppd(ppdOpenFile(generatedPpd(size, rules).c_str()));
    ppdMarkDefaults(ppd.get());
    return ppd;
}

void conflictRows(benchmark::State &state, Rules rules) {
    const PpdPtr ppd = openMarked(state.range(0), rules);
    hash_multimap table(100);
    xSetxppd(ppd.get(), &table);
    size_t turn = 0;
    for (auto _ : state) {
        markChoice(ppd.get(), kPPDImageTypeKey, kMarks[turn++ % 2]);
        for (const char *key : kPanelOptionKeys) {
            ChoiceRows rows;
            InitializeValueFromPPD(ppd.get(), &table, &rows, key);
            benchmark::DoNotOptimize(rows.size());
        }
    }
}

void libcupsConflicts(benchmark::State &state, Rules rules) {
    const PpdPtr ppd = openMarked(state.range(0), rules);
    size_t turn = 0;
    for (auto _ : state) {
        markChoice(ppd.get(), kPPDImageTypeKey, kMarks[turn++ % 2]);
        for (const char *key : kPanelOptionKeys) {
            const ppd_option_t *option = ppdFindOption(ppd.get(), key);
            for (int i = 0; option && i < option->num_choices; ++i) {
                cups_option_t *conflicts = nullptr;
                const int count =
                    cupsGetConflicts(ppd.get(), key, option->choices[i].choice, &conflicts);
                cupsFreeOptions(count, conflicts);
            }
        }
    }
}

const int registered = [] {
    const auto add = [](const char *name, auto function, Rules rules) {
        return benchmark::RegisterBenchmark(name, function, rules);
    };
    for (const int64_t size : kSizes) {
        add("conflict_rows", conflictRows, Rules::Full)->Arg(size);
        add("cupsGetConflicts", libcupsConflicts, Rules::Full)->Arg(size);
        add("conflict_rows_wildcards", conflictRows, Rules::Wildcards)->Arg(size);
        add("cupsGetConflicts_wildcards", libcupsConflicts, Rules::Wildcards)->Arg(size);
    }
    return 0;
}();

} // namespace
