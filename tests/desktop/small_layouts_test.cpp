// Nothing of the small windows is cut off or covered, and they have room on the smallest screen.
#include <gmock/gmock.h>

#include <optional>

#include "desktop/dashboard_bench.h"
#include "desktop/layout_faults.h"
#include "desktop/screens.h"
#include "desktop/station_window_bench.h"

namespace quorrin {
namespace {

using testing::IsEmpty;

class SmallLayouts : public testing::TestWithParam<double> {
  protected:
    SmallLayouts() {
        look.wear(lightTheme(), GetParam());
        bench.emplace();
    }
    void startAtMainForm() {
        bench->startSession();
        bench->settle();
    }
    // `covering` are the widgets that others are meant to lie on.
    void expectNoFaults(const std::string& form, const QSet<QString>& covering = {}) {
        bench->settle();
        const QWidget* const window = bench->window(form);
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(window->isVisible());
        EXPECT_EQ(window->devicePixelRatioF() * 100, scalePercent());
        EXPECT_THAT(layoutFaults(*window, covering), IsEmpty());
        for (const Screen& screen : screensOfThisScale()) {
            EXPECT_LE(window->width(), screen.logical().width());
            EXPECT_LE(window->height(), screen.logical().height() - kTitleBar);
        }
    }

    LookGuard look;
    std::optional<StationWindowBench> bench;
};

TEST_P(SmallLayouts, ShowTheLoginWhole) {
    bench->station.startAtLogin();
    expectNoFaults("frmLogin");
}

TEST_P(SmallLayouts, ShowTheLoginWholeWithALongAddressAndPort) {
    bench->station.startAtLogin();
    for (int i = 0; i < 4; ++i) bench->station.login.txt_ip(i).setText("255");
    bench->station.login.txtRobotPort.setText("65535");
    expectNoFaults("frmLogin");
}

TEST_P(SmallLayouts, ShowTheAboutWholeOnceItsPageHasComeToRest) {
    startAtMainForm();
    bench->gui.toolbarAbout.operatorClick();
    bench->clock.runFor(5000);
    expectNoFaults("frmAbout");
}

TEST_P(SmallLayouts, ShowTheCamerasKeyWholeOnItsPicture) {
    startAtMainForm();
    bench->gui.cmdZoomCamera.operatorClick();
    expectNoFaults("frmZoomCamera", {"Image1"});
}

TEST_P(SmallLayouts, ShowTheControlPanelWhole) {
    startAtMainForm();
    bench->gui.cmdShowControlPanel.operatorClick();
    expectNoFaults("frmControlPanel");
}

TEST_P(SmallLayouts, ShowTheControlPanelWholeWithItsLongestNumber) {
    startAtMainForm();
    bench->gui.cmdShowControlPanel.operatorClick();
    bench->station.controlPanel.slbGasLevel.setCaption("-32768");
    expectNoFaults("frmControlPanel");
}

INSTANTIATE_TEST_SUITE_P(Fonts, SmallLayouts, testing::Values(1.0, kThirdLarger), [](const auto& tested) {
    return "Font" + std::to_string(qRound(tested.param * 100));
});

}  // namespace
}  // namespace quorrin
