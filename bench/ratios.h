#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Prints Google Benchmark's table and remembers the median of each benchmark's repetitions, in
/// seconds; of one that counts, its counter "amount".
class RatioReporter : public benchmark::ConsoleReporter {
public:
    RatioReporter();
    void ReportRuns(const std::vector<Run> &runs) override;
    /// Prints "ratio NAME VALUE BOUND ok|short" for each measure, then "growth NAME EXPONENT".
    void Finalize() override;

private:
    std::map<std::string, double> m_cost;
};
