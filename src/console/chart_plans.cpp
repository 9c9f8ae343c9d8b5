#include "console/chart_plans.h"

#include <cmath>

#include "console/nearest_range.h"

namespace quorrin {

namespace {

// Ticks of silence after which the last figures of a link are history. Motion frames come ten times a second,
// power frames twice.
constexpr int kStaleMotionTicks = 5;
constexpr int kStalePowerTicks = 15;

constexpr std::size_t kInfraredPlaces[] = {0, 1, 2, 3, 4, 5, 6, 7};  // 8 and 9 repeat the head's

// Beyond this a figure is an error and no reading.
constexpr double kLargestFigure = 1e9;

double figure(double value, bool there) {
    return there && std::abs(value) < kLargestFigure ? value : std::nan("");
}

// A range of 0 was never measured.
double range(double value, bool there) {
    return figure(value, there && value > 0);
}

}  // namespace

const ChartPlan& chartPlan(ChartKind kind) {
    using enum TraceLine;
    static const std::array<ChartPlan, kChartKinds> plans{{
        {"Nearest range",
         "m",
         0,
         2.5,
         0.5,
         2,
         {{"ahead", "A", solid}, {"left", "L", dashed}, {"right", "R", dotted}},
         {}},
        {"Infrared ranges",
         "m",
         0,
         1.25,
         0.25,
         2,
         {{"IR 1", "1", solid},
          {"IR 2", "2", dashed},
          {"IR 3", "3", dotted},
          {"IR 4", "4", dashDotted},
          {"IR 5", "5", solid},
          {"IR 6", "6", dashed},
          {"IR 7", "7", dotted},
          {"head", "H", dashDotted}},
         {}},
        {"Sonar ranges",
         "m",
         0,
         4,
         1,
         2,
         {{"left", "L", solid}, {"ahead", "A", dashed}, {"right", "R", dotted}, {"behind", "B", dashDotted}},
         {}},
        {"Wheel speed, ahead positive",
         "counts/s",
         -250,
         750,
         250,
         0,
         {{"left", "L", solid},
          {"right", "R", dashed},
          {"left ordered", "l", dotted},
          {"right ordered", "r", dashDotted}},
         {}},
        {"Motor current",
         "A",
         0,
         1,
         0.25,
         2,
         {{"left", "L", solid}, {"right", "R", dashed}},
         ChartGuide{0.6, "heats above"}},
        {"Voltages",
         "V",
         0,
         20,
         5,
         2,
         {{"battery 1", "1", solid}, {"battery 2", "2", dashed}, {"DC input", "D", dotted}},
         {}},
    }};
    return plans[static_cast<std::size_t>(kind)];
}

void readTraces(ChartKind kind, const PublicValues& values, TraceValues& traces) {
    const bool motion = values.motLinkUp && values.motSilentTicks <= kStaleMotionTicks;
    const bool wheels = motion && values.encoderDataValid;
    const bool power = values.tiLinkUp && values.tiSilentTicks <= kStalePowerTicks;
    const auto nearest = [&](RangeSide side) {
        return figure(nearestRange(values, side).value_or(std::nan("")), motion);
    };
    traces.fill(std::nan(""));
    switch (kind) {
        case ChartKind::nearestRanges:
            traces[0] = nearest(RangeSide::front);
            traces[1] = nearest(RangeSide::left);
            traces[2] = nearest(RangeSide::right);
            return;
        case ChartKind::infraredRanges:
            for (const std::size_t i : kInfraredPlaces) traces[i] = range(values.irRange[i], motion);
            return;
        case ChartKind::sonarRanges:
            for (std::size_t i = 0; i < 4; ++i) traces[i] = range(values.sonarRange[i], motion);
            return;
        case ChartKind::wheelSpeeds:
            traces[0] = figure(-values.wheelSpeedLeft, wheels);
            traces[1] = figure(values.wheelSpeedRight, wheels);
            traces[2] = figure(-values.wheelCmdLeft, motion);
            traces[3] = figure(values.wheelCmdRight, motion);
            return;
        case ChartKind::motorCurrents:
            traces[0] = figure(values.motorCurrentLeft, wheels);
            traces[1] = figure(values.motorCurrentRight, wheels);
            return;
        case ChartKind::voltages:
            traces[0] = figure(values.battery1Volts, power);
            traces[1] = figure(values.battery2Volts, power);
            traces[2] = figure(values.dcInVolts, power);
            return;
    }
}

}  // namespace quorrin
