#include "console/strip_chart.h"

#include <gmock/gmock.h>

#include <cmath>
#include <memory>

namespace quorrin {
namespace {

using testing::HasSubstr;

struct StripChartTest : testing::Test {
    StripChartTest() {
        values->tiLinkUp = true;
        values->battery1Volts = 12;
        values->battery2Volts = 11.5;
    }
    void sample(double time_s, double volts) {
        values->battery1Volts = volts;
        chart->sample(time_s, *values);
    }
    std::vector<ChartPoint> points(std::size_t trace = 0) const {
        std::vector<ChartPoint> found;
        chart->trace(trace, chart->axis(), found);
        return found;
    }
    std::unique_ptr<PublicValues> values = std::make_unique<PublicValues>();
    std::unique_ptr<StripChart> chart = std::make_unique<StripChart>(ChartKind::voltages);
};

TEST_F(StripChartTest, IsEmptyBeforeTheFirstSample) {
    EXPECT_EQ(chart->count(), 0U);
    EXPECT_TRUE(points().empty());
    EXPECT_TRUE(std::isnan(chart->latest(0)));
    EXPECT_EQ(chart->latestText(0), "\u2013");
}

TEST_F(StripChartTest, NowIsAtTheRightAndAMinuteAgoAtTheLeft) {
    sample(100, 5);
    for (double t = 100.5; t <= 160; t += 0.5) sample(t, 10);
    const auto found = points();
    EXPECT_NEAR(found.front().x, 0, 1e-9);
    EXPECT_DOUBLE_EQ(found.back().x, 1);
    EXPECT_DOUBLE_EQ(found.front().y, 0.25);
    EXPECT_DOUBLE_EQ(found.back().y, 0.5);
}

TEST_F(StripChartTest, SamplesAreJoinedFromTheFirstOn) {
    for (int i = 0; i < 5; ++i) sample(10 + i * 0.1, 12);
    const auto found = points();
    ASSERT_EQ(found.size(), 5U);
    EXPECT_TRUE(found[0].begins);
    EXPECT_FALSE(found[4].begins);
}

TEST_F(StripChartTest, TheRingForgetsItsOldestSample) {
    for (int i = 0; i < 700; ++i) sample(i * 0.05, i < 100 ? 40 : 12);
    EXPECT_EQ(chart->count(), StripChart::kSamples);
    EXPECT_EQ(points().size(), StripChart::kSamples);
    EXPECT_DOUBLE_EQ(chart->axis().high, 20) << "the first hundred are gone";
}

TEST_F(StripChartTest, WhatIsOlderThanAMinuteIsNotShown) {
    sample(0, 40);
    sample(61, 12);
    EXPECT_EQ(points().size(), 1U);
    EXPECT_DOUBLE_EQ(chart->axis().high, 20);
}

TEST_F(StripChartTest, APauseOfTheSamplingIsAGap) {
    sample(1, 12);
    sample(1.1, 12);
    sample(5, 12);
    EXPECT_TRUE(points()[2].begins);
}

TEST_F(StripChartTest, ASilentLinkIsAGap) {
    sample(1, 12);
    values->tiLinkUp = false;
    sample(1.1, 12);
    EXPECT_TRUE(std::isnan(chart->latest(0)));
    values->tiLinkUp = true;
    sample(1.2, 12);
    const auto found = points();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_TRUE(found[1].begins);
}

TEST_F(StripChartTest, WhatIsNoNumberIsAGapAndMovesNoAxis) {
    sample(1, std::nan(""));
    sample(1.1, HUGE_VAL);
    sample(1.2, 1e300);
    EXPECT_TRUE(points().empty());
    EXPECT_DOUBLE_EQ(chart->axis().high, 20);
    EXPECT_DOUBLE_EQ(chart->axis().low, 0);
}

TEST_F(StripChartTest, TheAxisWidensByWholeStepsAndComesBack) {
    sample(1, 21);
    EXPECT_DOUBLE_EQ(chart->axis().high, 25);
    sample(1.1, -1);
    EXPECT_DOUBLE_EQ(chart->axis().low, -5);
    sample(70, 12);
    EXPECT_DOUBLE_EQ(chart->axis().high, 20);
    EXPECT_DOUBLE_EQ(chart->axis().low, 0);
}

TEST_F(StripChartTest, AWideAxisHasFewLines) {
    sample(1, 1e6);
    const ChartAxis axis = chart->axis();
    EXPECT_GE(axis.high, 1e6);
    EXPECT_LE((axis.high - axis.low) / axis.step, 6);
    EXPECT_DOUBLE_EQ(std::fmod(axis.high, axis.step), 0) << "the last line lies in the plot";
}

TEST_F(StripChartTest, ASecondSampleOfTheSameTimeReplacesTheFirst) {
    sample(1, 12);
    sample(1, 10);
    EXPECT_EQ(chart->count(), 1U);
    EXPECT_DOUBLE_EQ(chart->latest(0), 10);
}

TEST_F(StripChartTest, AnEarlierTimeBeginsAnew) {
    sample(50, 12);
    sample(1, 10);
    EXPECT_EQ(chart->count(), 1U);
    EXPECT_DOUBLE_EQ(chart->latest(0), 10);
}

TEST_F(StripChartTest, SpeaksWhatItShows) {
    values->dcInVolts = HUGE_VAL;
    sample(1, 12.004);
    EXPECT_EQ(chart->spoken(), "Voltages: battery 1 12.00 V, battery 2 11.50 V, DC input not measured");
}

}  // namespace
}  // namespace quorrin
