// Nothing of the dashboard is cut off, elided or covered, on the screens that operators have. What a screen's
// scale leaves of it are logical pixels: 1920x1080 at 150 % are 1280x720, 3840x2160 at 200 % are 1920x1080.
#include <gmock/gmock.h>

#include <tuple>

#include "desktop/dashboard_bench.h"
#include "desktop/layout_faults.h"

namespace quorrin {
namespace {

using testing::IsEmpty;

constexpr int kTitleBar = 32;  // logical pixels that a window manager takes away
constexpr double kThirdLarger = 4.0 / 3;

struct Screen {
    int width;
    int height;
};

class Layouts : public DashboardBench, public testing::WithParamInterface<std::tuple<Screen, double>> {
  protected:
    void openOnScreen() {
        const auto& [screen, factor] = GetParam();
        look.wear(lightTheme(), factor);
        open(screen.width, screen.height - kTitleBar);
    }
    void expectNoFaults(const std::string& what) {
        window->refresh();
        settle();
        const auto& [screen, factor] = GetParam();
        EXPECT_EQ(window->size(), QSize(screen.width, screen.height - kTitleBar)) << what;
        EXPECT_THAT(layoutFaults(*window, {"fraSetting", "fraSensor"}), IsEmpty()) << what;
    }
};

TEST_P(Layouts, ShowEverythingWholeAtStart) {
    openOnScreen();
    expectNoFaults("at start");
}

TEST_P(Layouts, ShowTheSettingsWhole) {
    openOnScreen();
    click("cmdExpandSetting");
    ASSERT_TRUE(window->settings().isVisible());
    expectNoFaults("settings");
}

TEST_P(Layouts, ShowTheEngineeringViewWhole) {
    openOnScreen();
    press(Qt::Key_F9);
    ASSERT_TRUE(window->engineering().isVisible());
    expectNoFaults("engineering view");
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
    return std::to_string(screen.width) + "x" + std::to_string(screen.height) +
           (factor > 1 ? "LargeFont" : "");
}

INSTANTIATE_TEST_SUITE_P(Screens, Layouts,
                         testing::Combine(testing::Values(Screen{1280, 800}, Screen{1280, 720},
                                                          Screen{1920, 1080}),
                                          testing::Values(1.0, kThirdLarger)),
                         screenName);

}  // namespace
}  // namespace quorrin
