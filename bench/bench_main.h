// The main of a program of Google Benchmarks: as the library prints it or, with --json, a figure a line.
//
// A benchmark's value is its time an iteration; its counter "baseline" (same unit), if it sets one, becomes
// the figure's baseline. A benchmark that reports an error makes the status 1.
#pragma once

#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <vector>

#include "figure.h"

namespace quorrin::bench {

class FigureReporter : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                std::cerr << nameOf(run) << ": " << run.error_message << '\n';
                failed_ = true;
                continue;
            }
            const auto baseline = run.counters.find("baseline");
            printFigure(nameOf(run), run.GetAdjustedRealTime(), benchmark::GetTimeUnitString(run.time_unit),
                        baseline == run.counters.end() ? std::nullopt
                                                       : std::optional<double>(baseline->second.value));
        }
    }
    bool failed() const { return failed_; }

  private:
    // Without the library's remarks on how it measured.
    static std::string nameOf(const Run& run) {
        return run.run_name.args.empty() ? run.run_name.function_name
                                         : run.run_name.function_name + "/" + run.run_name.args;
    }

    bool failed_ = false;
};

// Runs what BENCHMARK() has registered; returns the program's exit status.
inline int runBenchmarks(int argc, char** argv) {
    bool asFigures = false;
    std::vector<char*> arguments;
    for (int i = 0; i < argc; ++i) {
        if (i > 0 && std::strcmp(argv[i], "--json") == 0) {
            asFigures = true;
        } else {
            arguments.push_back(argv[i]);
        }
    }
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    if (!asFigures) {
        benchmark::RunSpecifiedBenchmarks();
        return 0;
    }
    FigureReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.failed() ? 1 : 0;
}

}  // namespace quorrin::bench
