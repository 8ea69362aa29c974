// The constraint table from a PPD beside libcups' own reading of the same file.
//
// Prints Google Benchmark's table and then one line for each size:
//   ratio table_from_ppd/N VALUE 0.25 ok|short

#include "platform/cups_ppd.h"
#include "ppd/constraint_table.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <unistd.h>

namespace {

constexpr int kChoices = 12;
const char *const kOptions[] = {"QZColorMode", "QZOutputMode", "QZRGBImageType", "QZEngineScreen"};

/// A PPD with four options and N constraints that name both choices. Written once for each N.
std::string ppdWithConstraints(int64_t count) {
    std::string path = (std::filesystem::temp_directory_path() / "bench-XXXXXX").string();
    close(mkstemp(path.data()));
    std::ofstream out(path);
    out << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
           "*LanguageEncoding: UTF-8\n*ModelName: \"Bench\"\n*NickName: \"Bench\"\n";
    for (const char *option : kOptions) {
        out << "*OpenUI *" << option << "/Option: PickOne\n*Default" << option << ": C0\n";
        for (int c = 0; c < kChoices; ++c)
            out << '*' << option << " C" << c << "/Choice: \"\"\n";
        out << "*CloseUI: *" << option << '\n';
    }
    for (int64_t i = 0; i < count; ++i)
        out << "*UIConstraints: *" << kOptions[i % 4] << " C" << i / 4 % kChoices << " *"
            << kOptions[(i + 1 + i / 7 % 3) % 4] << " C" << i / 13 % kChoices << '\n';
    return path;
}

void openPpd(benchmark::State &state) {
    const std::string path = ppdWithConstraints(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(PpdPtr(ppdOpenFile(path.c_str())).get());
    unlink(path.c_str());
}

void buildTable(benchmark::State &state) {
    const std::string path = ppdWithConstraints(state.range(0));
    const PpdPtr ppd(ppdOpenFile(path.c_str()));
    for (auto _ : state) {
        hash_multimap table;
        xSetxppd(ppd.get(), &table);
        benchmark::DoNotOptimize(table.size());
    }
    unlink(path.c_str());
}

BENCHMARK(openPpd)->Name("ppdOpenFile")->RangeMultiplier(10)->Range(1000, 100000);
BENCHMARK(buildTable)->Name("table_from_ppd")->RangeMultiplier(10)->Range(1000, 100000);

/// Remembers the time of each run and prints the ratios behind the table.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run> &runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs)
            m_times[run.benchmark_name()] = run.GetAdjustedCPUTime();
    }
    void Finalize() override {
        for (const char *size : {"1000", "10000", "100000"}) {
            const double peer = m_times[std::string("ppdOpenFile/") + size];
            const double ratio = m_times[std::string("table_from_ppd/") + size] / peer;
            std::printf("ratio table_from_ppd/%s %.3f 0.25 %s\n", size, ratio,
                        ratio <= 0.25 ? "ok" : "short");
        }
    }

private:
    std::map<std::string, double> m_times;
};

} // namespace

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
