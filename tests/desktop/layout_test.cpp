// Nothing of the dashboard is cut off, elided or covered, on the screens that operators have.
#include <gmock/gmock.h>

#include <QScrollBar>
#include <QTabBar>
#include <tuple>

#include "desktop/dashboard_bench.h"
#include "desktop/layout_faults.h"
#include "desktop/screens.h"
#include "desktop/views/live_views.h"

namespace quorrin {
namespace {

using testing::IsEmpty;

class Layouts : public DashboardBench, public testing::WithParamInterface<std::tuple<Screen, double>> {
  protected:
    static constexpr int kScrollBar = 14;  // that the whole size has room for
    static QSize size() { return std::get<Screen>(GetParam()).logical() - QSize(0, kTitleBar); }
    void openOnScreen() {
        look.wear(lightTheme(), std::get<double>(GetParam()));
        open(size().width(), size().height(), new LiveViews(liveSource(bench.station, bench.clock)));
    }
    void openSettings() {
        click("cmdExpandSetting");
        ASSERT_TRUE(window->settings().isVisible());
    }
    void openEngineering() {
        press(Qt::Key_F9);
        ASSERT_TRUE(window->engineering().isVisible());
    }
    void expectNoFaults(const std::string& what) {
        window->refresh();
        settle();
        EXPECT_EQ(window->size(), size()) << what;
        EXPECT_THAT(layoutFaults(*window, {"fraSetting", "fraSensor"}), IsEmpty()) << what;
    }
    template <typename See>
    void eachPage(const std::string& tabs, See see) {
        auto& bar = find<QTabBar>(tabs);
        ASSERT_GT(bar.count(), 1);
        for (int page = 0; page < bar.count(); ++page) {
            bar.setCurrentIndex(page);
            settle();
            see(bar.tabText(page).toStdString());
        }
    }
    static void expectNoScrolling(const FoldOut& panel, const std::string& page) {
        EXPECT_FALSE(panel.area().verticalScrollBar()->isVisible()) << page;
        EXPECT_FALSE(panel.area().horizontalScrollBar()->isVisible()) << page;
        EXPECT_EQ(panel.area().verticalScrollBar()->maximum(), 0) << page;
        EXPECT_EQ(panel.area().horizontalScrollBar()->maximum(), 0) << page;
        EXPECT_GE(panel.height(), panel.wholeSize().height()) << page;
        EXPECT_GE(panel.width(), panel.wholeSize().width() - kScrollBar) << page;
    }
};

TEST_P(Layouts, AreDrawnAtTheScaleOfTheScreen) {
    openOnScreen();
    EXPECT_EQ(window->devicePixelRatioF() * 100, std::get<Screen>(GetParam()).percent);
}

TEST_P(Layouts, ShowEverythingWholeAtStart) {
    openOnScreen();
    expectNoFaults("at start");
}

TEST_P(Layouts, ShowTheSettingsWhole) {
    openOnScreen();
    openSettings();
    expectNoFaults("settings");
}

TEST_P(Layouts, ShowTheSettingsWithoutScrolling) {
    openOnScreen();
    openSettings();
    eachPage("settingPages", [this](const std::string& page) {
        expectNoScrolling(window->settings(), page);
        expectNoFaults(page);
    });
}

TEST_P(Layouts, ShowTheEngineeringViewWithoutScrolling) {
    openOnScreen();
    openEngineering();
    eachPage("engineeringPages", [this](const std::string& page) {
        expectNoScrolling(window->engineering(), page);
        expectNoFaults(page);
    });
}

TEST_P(Layouts, ShowTheEngineeringViewWhole) {
    openOnScreen();
    openEngineering();
    expectNoFaults("engineering view");
}

TEST_P(Layouts, ShowTheEngineeringViewWholeOverTheSettings) {
    openOnScreen();
    openSettings();
    openEngineering();
    expectNoFaults("both");
}

TEST_P(Layouts, ShowTheSettingsWholeOverTheEngineeringView) {
    openOnScreen();
    openEngineering();
    openSettings();
    expectNoFaults("both");
}

TEST_P(Layouts, HoldTheLongestTextsOfTheStrip) {
    openOnScreen();
    auto& values = bench.values;
    values.tickEnabled = true;
    values.manualPanelActive = true;
    values.remoteCommandActive = true;
    values.tiLinkUp = values.motLinkUp = true;
    values.tiSilentTicks = 155;
    values.motSilentTicks = 155;
    values.battery1Volts = values.battery2Volts = 11.86;
    bench.gui.cmdChEn.setPicture(1);
    bench.gui.shpBatteryStatus(0).setFill(255);
    bench.gui.shpBatteryStatus(1).setFill(8454016);
    values.encoderDataValid = true;
    values.motorCurrentLeft = values.motorCurrentRight = 12.34;
    values.motorHeatLeft = 100;
    values.motorHeatRight = 30;
    values.motionInhibit = true;
    values.inStuck = values.stuckLeft = values.stuckRight = true;
    bench.gui.ConnectionList.add("192.168.100.100  [54321] - [7060]", 1);
    bench.gui.ConnectionList.add("192.168.100.101  [54322] - [7060]", 2);
    bench.station.controlPanel.show();
    expectNoFaults("the longest texts");
}

TEST_P(Layouts, HoldTheTextsOfARecovery) {
    openOnScreen();
    bench.values.tickEnabled = false;
    bench.values.autoStartPending = true;
    bench.gui.resetMOTTI = true;
    expectNoFaults("recovery");
}

std::string screenName(const testing::TestParamInfo<std::tuple<Screen, double>>& tested) {
    const auto& [screen, factor] = tested.param;
    return screen.name() + fontName(factor);
}

INSTANTIATE_TEST_SUITE_P(Screens, Layouts,
                         testing::Combine(testing::ValuesIn(screensOfThisScale()),
                                          testing::Values(1.0, kThirdLarger)),
                         screenName);

}  // namespace
}  // namespace quorrin
