#include "console/chart_plans.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <set>
#include <string>

#include "console/nearest_range.h"
#include "session/sensor_tables.h"

namespace quorrin {
namespace {

struct ChartPlans : testing::Test {
    ChartPlans() {
        fillSensorTables(*values);
        values->motLinkUp = true;
        values->tiLinkUp = true;
        values->encoderDataValid = true;
    }
    TraceValues read(ChartKind kind) const {
        TraceValues traces{};
        readTraces(kind, *values, traces);
        return traces;
    }
    bool nothingIn(ChartKind kind) const {
        for (const double value : read(kind))
            if (!std::isnan(value)) return false;
        return true;
    }
    std::unique_ptr<PublicValues> values = std::make_unique<PublicValues>();
};

TEST_F(ChartPlans, EveryChartHasTitleUnitAxisAndTracesToldApart) {
    for (std::size_t i = 0; i < kChartKinds; ++i) {
        const ChartPlan& plan = chartPlan(static_cast<ChartKind>(i));
        EXPECT_NE(std::string(plan.title), "");
        EXPECT_NE(std::string(plan.unit), "");
        EXPECT_LT(plan.low, plan.high);
        EXPECT_GT(plan.step, 0);
        ASSERT_LE(plan.traces.size(), kMostTraces);
        std::set<std::string> marks;
        for (const TraceWords& trace : plan.traces) marks.insert(trace.mark);
        EXPECT_EQ(marks.size(), plan.traces.size()) << plan.title;
    }
}

TEST_F(ChartPlans, TracesBeyondThePlanAreEmpty) {
    values->irRange.fill(0.5);
    values->sonarRange.fill(0.5);
    for (std::size_t i = 0; i < kChartKinds; ++i) {
        const TraceValues traces = read(static_cast<ChartKind>(i));
        for (std::size_t n = chartPlan(static_cast<ChartKind>(i)).traces.size(); n < kMostTraces; ++n)
            EXPECT_TRUE(std::isnan(traces[n]));
    }
}

TEST_F(ChartPlans, NearestRangesAreAheadLeftRight) {
    values->sonarRange = {0.35, 0.65, 0.45, 0.2, 0, 0};
    const TraceValues traces = read(ChartKind::nearestRanges);
    EXPECT_DOUBLE_EQ(traces[0], 0.65);
    EXPECT_DOUBLE_EQ(traces[1], 0.35);
    EXPECT_DOUBLE_EQ(traces[2], 0.45);
}

TEST_F(ChartPlans, ARangeNeverMeasuredIsNoFigure) {
    values->irRange[2] = 0.4;
    const TraceValues traces = read(ChartKind::infraredRanges);
    EXPECT_TRUE(std::isnan(traces[0]));
    EXPECT_DOUBLE_EQ(traces[2], 0.4);
}

TEST_F(ChartPlans, TheHeadIsTheEighthInfrared) {
    values->irRange[7] = 0.77;
    EXPECT_DOUBLE_EQ(read(ChartKind::infraredRanges)[7], 0.77);
}

TEST_F(ChartPlans, BothWheelsCountAheadAsPositive) {
    values->wheelSpeedLeft = -500;
    values->wheelSpeedRight = 510;
    values->wheelCmdLeft = -490;
    values->wheelCmdRight = 495;
    const TraceValues traces = read(ChartKind::wheelSpeeds);
    EXPECT_DOUBLE_EQ(traces[0], 500);
    EXPECT_DOUBLE_EQ(traces[1], 510);
    EXPECT_DOUBLE_EQ(traces[2], 490);
    EXPECT_DOUBLE_EQ(traces[3], 495);
}

TEST_F(ChartPlans, CurrentsAreAmperesWithTheLoadGuardsLimit) {
    values->motorCurrentLeft = 0.3;
    values->motorCurrentRight = 0.4;
    EXPECT_DOUBLE_EQ(read(ChartKind::motorCurrents)[0], 0.3);
    EXPECT_DOUBLE_EQ(read(ChartKind::motorCurrents)[1], 0.4);
    EXPECT_DOUBLE_EQ(chartPlan(ChartKind::motorCurrents).guide->value, 0.6);
}

TEST_F(ChartPlans, VoltagesAreBatteriesAndDcInput) {
    values->battery1Volts = 12;
    values->battery2Volts = 11;
    values->dcInVolts = 0;
    const TraceValues traces = read(ChartKind::voltages);
    EXPECT_DOUBLE_EQ(traces[0], 12);
    EXPECT_DOUBLE_EQ(traces[1], 11);
    EXPECT_DOUBLE_EQ(traces[2], 0);
}

TEST_F(ChartPlans, WithoutAMotionLinkThereIsNothingToShowOfMotion) {
    values->irRange.fill(0.5);
    values->sonarRange.fill(0.5);
    values->motLinkUp = false;
    for (const ChartKind kind : {ChartKind::nearestRanges, ChartKind::infraredRanges, ChartKind::sonarRanges,
                                 ChartKind::wheelSpeeds, ChartKind::motorCurrents})
        EXPECT_TRUE(nothingIn(kind));
    EXPECT_FALSE(nothingIn(ChartKind::voltages));
}

TEST_F(ChartPlans, AMotionLinkSilentForMoreThanHalfASecondShowsNothingOld) {
    values->irRange.fill(0.5);
    values->motSilentTicks = 5;
    EXPECT_FALSE(nothingIn(ChartKind::infraredRanges));
    values->motSilentTicks = 6;
    EXPECT_TRUE(nothingIn(ChartKind::infraredRanges));
}

TEST_F(ChartPlans, WheelsNeedTheirFirstFrame) {
    values->encoderDataValid = false;
    EXPECT_TRUE(std::isnan(read(ChartKind::wheelSpeeds)[0]));
    EXPECT_TRUE(nothingIn(ChartKind::motorCurrents));
}

TEST_F(ChartPlans, ASilentMultimediaLinkShowsNoVoltage) {
    values->tiSilentTicks = 15;
    EXPECT_FALSE(nothingIn(ChartKind::voltages));
    values->tiSilentTicks = 16;
    EXPECT_TRUE(nothingIn(ChartKind::voltages));
}

TEST_F(ChartPlans, NoRangeAnywhereIsNoNearest) {
    EXPECT_FALSE(nearestRange(*values, RangeSide::front));
    values->irRange[0] = std::nan("");
    values->irRange[1] = HUGE_VAL;
    EXPECT_FALSE(nearestRange(*values, RangeSide::front));
}

}  // namespace
}  // namespace quorrin
