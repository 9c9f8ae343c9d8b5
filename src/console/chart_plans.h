// Which figures of the record the strip charts show: titles, units, axes, and how each trace is told apart.
//
// Traces of a chart differ by their line and by the mark at its end, not by colour alone. Wheel speeds are
// shown with ahead positive for both wheels; the record's left drive is mirrored. No state; reading needs no
// heap.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "session/record/public_values.h"

namespace quorrin {

enum class ChartKind : std::uint8_t {
    nearestRanges,
    infraredRanges,
    sonarRanges,
    wheelSpeeds,
    motorCurrents,
    voltages
};
constexpr std::size_t kChartKinds = 6;
constexpr std::size_t kMostTraces = 8;

// One figure for each trace of a chart; NaN where there is none.
using TraceValues = std::array<double, kMostTraces>;

enum class TraceLine : std::uint8_t { solid, dashed, dotted, dashDotted };

struct TraceWords {
    const char* name;
    const char* mark;  // one or two signs at the end of the line
    TraceLine line;
};

struct ChartGuide {
    double value;
    const char* words;
};

struct ChartPlan {
    const char* title;
    const char* unit;
    double low;
    double high;
    double step;
    int decimals;
    std::vector<TraceWords> traces;
    std::optional<ChartGuide> guide;
};

const ChartPlan& chartPlan(ChartKind kind);
void readTraces(ChartKind kind, const PublicValues& values, TraceValues& traces);

}  // namespace quorrin
