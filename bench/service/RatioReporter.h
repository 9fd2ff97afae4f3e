#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints what each benchmark takes beside its floor, and the ratio. Benchmarks come in pairs, "name/ours"
/// and "name/floor"; of several repetitions the median counts.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Pair {
        std::vector<double> ours; ///< microseconds of processor time per iteration
        std::vector<double> floor;
    };

    std::map<std::string, Pair> m_pairs;
};
