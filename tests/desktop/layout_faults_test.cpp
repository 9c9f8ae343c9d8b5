// The search for what is cut off finds what is cut off.
#include "desktop/layout_faults.h"

#include <gmock/gmock.h>

#include <QLabel>

#include "desktop/tiles/glance_tile.h"
#include "desktop/views/grid_legend.h"
#include "desktop/views/strip_chart_view.h"

namespace quorrin {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

struct Sample {
    Sample() {
        window.resize(400, 200);
        first.setGeometry(10, 10, 150, 30);
        second.setGeometry(10, 60, 150, 30);
        window.show();
    }
    QWidget window;
    QLabel first{"first", &window};
    QLabel second{"second", &window};
};

TEST(LayoutFaults, AreNoneWhereEverythingHasItsPlace) {
    const Sample sample;
    EXPECT_THAT(layoutFaults(sample.window, {}), IsEmpty());
}

TEST(LayoutFaults, FindAWidgetThatReachesOutOfItsParent) {
    Sample sample;
    sample.first.move(300, 10);
    EXPECT_THAT(layoutFaults(sample.window, {}), SizeIs(1));
}

TEST(LayoutFaults, FindATextThatIsWiderThanItsWidget) {
    Sample sample;
    sample.first.setText("a text that is a good deal longer than the label which it stands on");
    EXPECT_THAT(layoutFaults(sample.window, {}), SizeIs(1));
}

TEST(LayoutFaults, FindNeighboursThatOverlap) {
    Sample sample;
    sample.second.move(20, 20);
    EXPECT_THAT(layoutFaults(sample.window, {}), SizeIs(1));
}

TEST(LayoutFaults, FindAChartThatIsTooLowForItsReadings) {
    Sample sample;
    const StripChart data(ChartKind::infraredRanges);
    StripChartView chart(data, &sample.window);
    chart.setGeometry(10, 100, 380, 40);
    chart.show();
    EXPECT_THAT(layoutFaults(sample.window, {}), SizeIs(1));
}

TEST(LayoutFaults, FindALegendThatIsTooLowForItsWidth) {
    Sample sample;
    GridLegend legend(&sample.window);
    const int width = legend.minimumSizeHint().width();
    sample.window.resize(width + 300, 600);
    legend.setGeometry(200, 0, width, legend.heightForWidth(width) - 1);
    legend.show();
    EXPECT_THAT(layoutFaults(sample.window, {}), SizeIs(1));
}

TEST(LayoutFaults, FindATileWhoseDetailDoesNotFit) {
    Sample sample;
    GlanceTile tile(GlanceTile::Kind::small, IconName::link, "Link", &sample.window);
    tile.setGeometry(10, 100, 180, 60);
    tile.QWidget::show();
    tile.show({"up", std::string(300, 'x'), Tone::good});
    EXPECT_THAT(layoutFaults(sample.window, {}), SizeIs(1));
}

}  // namespace
}  // namespace quorrin
