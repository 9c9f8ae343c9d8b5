#include "console/strip_chart.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"

namespace quorrin {

namespace {

constexpr double kMostGridLines = 6;

}  // namespace

void StripChart::sample(double time_s, const PublicValues& values) {
    if (count_ > 0 && time_s < last().time_s) clear();
    if (count_ > 0 && time_s == last().time_s) {
        readTraces(kind_, values, samples_[(first_ + count_ - 1) % kSamples].values);
        return;
    }
    if (count_ == kSamples) {
        first_ = (first_ + 1) % kSamples;
        --count_;
    }
    Sample& next = samples_[(first_ + count_) % kSamples];
    next.time_s = time_s;
    readTraces(kind_, values, next.values);
    ++count_;
}

ChartAxis StripChart::axis() const {
    double least = plan_.low;
    double most = plan_.high;
    for (std::size_t i = 0; i < count_; ++i) {
        const Sample& sample = at(i);
        if (last().time_s - sample.time_s > kShown_s) continue;
        for (std::size_t n = 0; n < plan_.traces.size(); ++n) {
            // fmin and fmax pass over what is no number.
            least = std::fmin(least, sample.values[n]);
            most = std::fmax(most, sample.values[n]);
        }
    }
    ChartAxis axis{plan_.low, plan_.high, plan_.step};
    while (true) {
        if (least < plan_.low) axis.low = std::floor(least / axis.step) * axis.step;
        if (most > plan_.high) axis.high = std::ceil(most / axis.step) * axis.step;
        if ((axis.high - axis.low) / axis.step <= kMostGridLines) break;
        // Coarser lines, and all of it in whole steps again.
        axis.step *= 2;
        axis.low = std::floor(axis.low / axis.step) * axis.step;
        axis.high = std::ceil(axis.high / axis.step) * axis.step;
    }
    return axis;
}

void StripChart::trace(std::size_t trace, const ChartAxis& axis, std::vector<ChartPoint>& points) const {
    points.clear();
    bool joined = false;
    double before_s = 0;
    for (std::size_t i = 0; i < count_; ++i) {
        const Sample& sample = at(i);
        const double value = sample.values[trace];
        const double age_s = last().time_s - sample.time_s;
        if (age_s > kShown_s || !std::isfinite(value)) {
            joined = false;
            continue;
        }
        if (sample.time_s - before_s > kJoined_s) joined = false;
        points.push_back({1 - age_s / kShown_s, (value - axis.low) / (axis.high - axis.low), !joined});
        joined = true;
        before_s = sample.time_s;
    }
}

double StripChart::latest(std::size_t trace) const {
    return count_ == 0 ? std::nan("") : last().values[trace];
}

std::string StripChart::latestText(std::size_t trace) const {
    const double value = latest(trace);
    return std::isfinite(value) ? formatFixed(value, plan_.decimals) : "\u2013";
}

std::string StripChart::spoken() const {
    std::string words = plan_.title;
    for (std::size_t n = 0; n < plan_.traces.size(); ++n) {
        words += n == 0 ? ": " : ", ";
        words += plan_.traces[n].name;
        words += std::isfinite(latest(n)) ? " " + latestText(n) + " " + plan_.unit : " not measured";
    }
    return words;
}

}  // namespace quorrin
