// The constraint table: made from a PPD, from a cache file, and what it takes of memory.

#include "generated_ppd.h"

#include "platform/cups_ppd.h"
#include "ppd/constraint_cache.h"
#include "ppd/constraint_table.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace {

using Path = std::string (*)(int64_t);
std::string full(int64_t size) {
    return generatedPpd(size);
}
std::string wildcards(int64_t size) {
    return generatedPpd(size, Rules::Wildcards);
}
std::string cached(int64_t size) {
    return generatedPpd(size, Rules::Cached);
}
std::string all(int64_t) {
    return wildcardPpd();
}

void openPpd(benchmark::State &state, Path path) {
    const std::string file = path(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(PpdPtr(ppdOpenFile(file.c_str())).get());
}

void fromPpd(benchmark::State &state, Path path) {
    const PpdPtr ppd(ppdOpenFile(path(state.range(0)).c_str()));
    for (auto _ : state) {
        hash_multimap table(100);
        xSetxppd(ppd.get(), &table);
        benchmark::DoNotOptimize(table.size());
    }
}

void fromCache(benchmark::State &state) {
    const PpdPtr ppd(ppdOpenFile(cached(state.range(0)).c_str()));
    size_t size = 0;
    for (auto _ : state) {
        hash_multimap table(100);
        GetXPPD(ppd.get(), &table, QStringLiteral("ImageOptionPDE"),
                QStringLiteral("QZXCDFSetting"));
        size = table.size();
    }
    if (size == 0)
        state.SkipWithError("the cache gave no entry");
}

size_t bytesInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void ppdMemory(benchmark::State &state, Path path) {
    const std::string file = path(state.range(0));
    for (auto _ : state) {
        const size_t before = bytesInUse();
        const PpdPtr ppd(ppdOpenFile(file.c_str()));
        state.counters["amount"] = double(bytesInUse() - before);
    }
}

void tableMemory(benchmark::State &state, Path path) {
    const PpdPtr ppd(ppdOpenFile(path(state.range(0)).c_str()));
    for (auto _ : state) {
        const size_t before = bytesInUse();
        hash_multimap table(100);
        xSetxppd(ppd.get(), &table);
        state.counters["amount"] = double(bytesInUse() - before);
    }
}

const int registered = [] {
    const auto add = [](const char *name, auto function, Path path) {
        return benchmark::RegisterBenchmark(name, function, path);
    };
    for (const int64_t size : kSizes) {
        add("ppdOpenFile", openPpd, full)->Arg(size);
        add("table_from_ppd", fromPpd, full)->Arg(size);
        add("ppdOpenFile_wildcards", openPpd, wildcards)->Arg(size);
        add("table_from_wildcards", fromPpd, wildcards)->Arg(size);
        benchmark::RegisterBenchmark("table_from_cache", fromCache)->Arg(size);
        add("ppd_memory", ppdMemory, full)->Arg(size)->Iterations(1);
        add("table_memory", tableMemory, full)->Arg(size)->Iterations(1);
    }
    add("ppdOpenFile_all_wildcards", openPpd, all)->Arg(0);
    add("all_wildcards", fromPpd, all)->Arg(0);
    add("ppd_memory_all_wildcards", ppdMemory, all)->Arg(0)->Iterations(1);
    add("all_wildcards_memory", tableMemory, all)->Arg(0)->Iterations(1);
    return 0;
}();

} // namespace
