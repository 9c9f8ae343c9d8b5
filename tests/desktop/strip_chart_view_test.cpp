#include "desktop/views/strip_chart_view.h"

#include <gtest/gtest.h>

#include <QImage>
#include <memory>

namespace quorrin {
namespace {

class StripChartViewTest : public testing::Test {
  protected:
    StripChartViewTest() {
        values_->tiLinkUp = true;
        view_.resize(400, 160);
    }
    void minute(double volts) {
        values_->battery1Volts = volts;
        for (int i = 0; i < 600; ++i) chart_.sample(time_ += 0.1, *values_);
    }
    // Dots of the first trace between two heights of the picture: it is the only blue one.
    int traced(int top, int bottom) {
        const QImage picture = view_.grab().toImage();
        int dots = 0;
        for (int y = top; y < bottom; ++y)
            for (int x = 60; x < 180; ++x)
                dots += qBlue(picture.pixel(x, y)) - qRed(picture.pixel(x, y)) > 50 ? 1 : 0;
        return dots;
    }
    std::unique_ptr<PublicValues> values_ = std::make_unique<PublicValues>();
    StripChart chart_{ChartKind::voltages};
    StripChartView view_{chart_};
    double time_ = 0;
};

TEST_F(StripChartViewTest, AHigherValueIsDrawnHigher) {
    minute(18);
    EXPECT_GT(traced(20, 70), 0);
    EXPECT_EQ(traced(90, 140), 0);
    minute(3);
    EXPECT_EQ(traced(20, 70), 0);
    EXPECT_GT(traced(90, 140), 0);
}

TEST_F(StripChartViewTest, ThePaperIsDrawnOnceForManyPicturesOfTheSameAxis) {
    minute(12);
    for (int i = 0; i < 5; ++i) view_.grab();
    EXPECT_EQ(view_.papersDrawn(), 1);
    minute(24);
    view_.grab();
    EXPECT_EQ(view_.papersDrawn(), 2);
}

TEST_F(StripChartViewTest, AnEmptyChartIsDrawnToo) {
    EXPECT_FALSE(view_.grab().isNull());
}

TEST_F(StripChartViewTest, ATinyViewIsDrawnToo) {
    minute(12);
    view_.resize(1, 1);
    EXPECT_FALSE(view_.grab().isNull());
}

TEST_F(StripChartViewTest, ManyTracesNeedAHigherView) {
    const StripChart many(ChartKind::infraredRanges);
    EXPECT_GT(StripChartView(many).minimumSizeHint().height(), view_.minimumSizeHint().height());
}

}  // namespace
}  // namespace quorrin
