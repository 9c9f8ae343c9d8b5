// The last minute of a few figures of the record: a strip chart without the paper.
//
// Owns a ring of fixed size for each trace; taking a sample needs no heap and only reads the record. Times
// are seconds of whoever samples and must rise: a sample of the same time replaces the last one, an earlier
// time begins anew. What a chart shows and in what words is its plan's affair (chart_plans.h).
//
// A figure that is not there (link silent, never measured, no number) leaves a gap, and so does a pause of
// the sampling.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "console/chart_plans.h"

namespace quorrin {

struct ChartAxis {
    double low = 0;
    double high = 1;
    double step = 1;  // between two lines of the grid
};

// A point of a trace in shares of the plot: x 0 a minute ago to 1 now, y 0 at the axis' low end to 1.
struct ChartPoint {
    double x = 0;
    double y = 0;
    bool begins = false;  // not joined to the point before
};

class StripChart {
  public:
    static constexpr std::size_t kSamples = 600;
    static constexpr double kShown_s = 60;
    // Samples farther apart are not joined.
    static constexpr double kJoined_s = 0.5;

    explicit StripChart(ChartKind kind) : kind_(kind), plan_(chartPlan(kind)) {}

    const ChartPlan& plan() const { return plan_; }
    void sample(double time_s, const PublicValues& values);
    void clear() { count_ = 0; }

    std::size_t count() const { return count_; }
    // The plan's limits, widened by whole steps until all that is shown lies within.
    ChartAxis axis() const;
    // The points of a trace up to the last sample, oldest first, into `points`.
    void trace(std::size_t trace, const ChartAxis& axis, std::vector<ChartPoint>& points) const;
    // NaN where there is none.
    double latest(std::size_t trace) const;
    // "0.83", or a dash.
    std::string latestText(std::size_t trace) const;
    // The whole chart in words, for those who do not see it.
    std::string spoken() const;

  private:
    struct Sample {
        double time_s = 0;
        TraceValues values{};
    };
    // 0 is the oldest.
    const Sample& at(std::size_t i) const { return samples_[(first_ + i) % kSamples]; }
    const Sample& last() const { return at(count_ - 1); }

    ChartKind kind_;
    const ChartPlan& plan_;
    std::array<Sample, kSamples> samples_{};
    std::size_t first_ = 0;
    std::size_t count_ = 0;
};

}  // namespace quorrin
