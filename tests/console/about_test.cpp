// The About form, the toolbar that shows it, and the closing of the small forms with the main one.
#include "console/about.h"

#include <gmock/gmock.h>

#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

struct AboutForm : testing::Test, StationBench {
    frmAbout& form = station.about;
    void SetUp() override {
        station.startAtMainForm();
        take();
    }
};

TEST_F(AboutForm, IsShownModallyByTheToolbar) {
    gui.toolbarAbout.operatorClick();
    EXPECT_TRUE(values.aboutOpen);
    EXPECT_TRUE(form.shown());
    EXPECT_TRUE(form.modal());
}

TEST_F(AboutForm, TellsTheProgramsVersionInThreeNumbers) {
    EXPECT_EQ(form.lblVersion.caption(), "");
    gui.toolbarAbout.operatorClick();
    EXPECT_THAT(form.lblVersion.caption(), MatchesRegex("Version [0-9]+\\.[0-9]+\\.[0-9]+"));
    EXPECT_EQ(form.lblVersion.caption(), std::string("Version ") + QUORRIN_VERSION);
}

TEST_F(AboutForm, SlidesItsPageByAStepATickUntilItIsInItsPlace) {
    form.picExtend.setArea({15, 0, 3000, 1500});
    gui.toolbarAbout.operatorClick();
    EXPECT_EQ(form.picExtend.area(), (Area{15, About::kPageAtLoad, 3000, 1500}));
    clock.runFor(49);
    EXPECT_EQ(form.picExtend.area().top, About::kPageAtLoad);
    clock.runFor(1);
    EXPECT_EQ(form.picExtend.area().top, About::kPageAtLoad - 45);
    clock.runFor(10'000);
    EXPECT_EQ(form.picExtend.area(), (Area{15, 45, 3000, 1500}));
    EXPECT_FALSE(form.Timer1.running());
}

TEST_F(AboutForm, StopsExactlyWhenThePlaceReadBackIs45) {
    gui.toolbarAbout.operatorClick();
    form.picExtend.moveTo(0, 135);
    clock.runFor(50);
    EXPECT_TRUE(form.Timer1.running());
    clock.runFor(50);
    EXPECT_EQ(form.picExtend.area().top, 45);
    EXPECT_FALSE(form.Timer1.running());
}

TEST_F(AboutForm, ItsOkKeyClearsTheFlagAndUnloads) {
    gui.toolbarAbout.operatorClick();
    form.cmdOK.operatorClick();
    EXPECT_FALSE(values.aboutOpen);
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(form.Timer1.running());
}

TEST_F(AboutForm, ClosedByItsWindowLeavesTheFlag) {
    gui.toolbarAbout.operatorClick();
    form.operatorClose();
    EXPECT_TRUE(values.aboutOpen);
    EXPECT_FALSE(form.shown());
}

TEST_F(AboutForm, ShownAgainSlidesAgain) {
    gui.toolbarAbout.operatorClick();
    clock.runFor(10'000);
    form.cmdOK.operatorClick();
    gui.toolbarAbout.operatorClick();
    EXPECT_EQ(form.picExtend.area().top, About::kPageAtLoad);
    EXPECT_TRUE(form.Timer1.running());
}

TEST_F(AboutForm, ShowsTheMakersAddressAndOpensItOnAClick) {
    gui.toolbarAbout.operatorClick();
    EXPECT_EQ(form.lblWWW.caption(), "https://quorrin.example/");
    form.lblWWW.operatorClick();
    EXPECT_THAT(take(), ElementsAre("page https://quorrin.example/"));
}

TEST_F(AboutForm, TheToolbarsWwwKeyOpensTheMakersPage) {
    gui.toolbarWww.operatorClick();
    EXPECT_THAT(take(), ElementsAre("page https://quorrin.example/"));
    EXPECT_FALSE(form.shown());
}

TEST_F(AboutForm, TheToolbarsHelpKeyDoesNothing) {
    gui.toolbarHelp.operatorClick();
    EXPECT_THAT(take(), IsEmpty());
    EXPECT_FALSE(values.aboutOpen);
    EXPECT_FALSE(form.shown());
}

TEST_F(AboutForm, AHostWithoutABrowserOpensNothing) {
    frmGUI lonely{clock};
    PublicValues record;
    frmAbout window{clock};
    About about(record, lonely, window, {}, "1.2.3");
    lonely.show();
    lonely.toolbarWww.operatorClick();
    lonely.toolbarAbout.operatorClick();
    EXPECT_EQ(window.lblVersion.caption(), "Version 1.2.3");
}

TEST_F(AboutForm, TheSmallFormsCloseWithTheMainFormAboutFirstThePanelLast) {
    gui.cmdShowControlPanel.operatorClick();
    gui.cmdZoomCamera.operatorClick();
    gui.toolbarAbout.operatorClick();
    std::vector<std::string> gone;
    for (Form* small : std::vector<Form*>{&station.controlPanel, &station.zoomCamera, &form})
        small->onShownChanged = [&gone, small] { gone.push_back(small->name()); };
    untilEnd([this] { gui.operatorClose(); });
    EXPECT_THAT(gone, ElementsAre("frmAbout", "frmZoomCamera", "frmControlPanel"));
    EXPECT_FALSE(values.aboutOpen);
    EXPECT_FALSE(values.zoomCameraOpen);
    EXPECT_FALSE(values.manualPanelActive);
}

TEST_F(AboutForm, TheLeftOverTimerIsNeverStartedAndWouldCountToThree) {
    clock.runFor(60'000);
    EXPECT_FALSE(gui.tmrHuman.running());
    EXPECT_EQ(gui.tmrHuman.interval(), 5000);
    gui.tmrHuman.setRunning(true);
    clock.runFor(14'999);
    EXPECT_TRUE(gui.tmrHuman.running());
    clock.runFor(1);
    EXPECT_FALSE(gui.tmrHuman.running());
}

}  // namespace
}  // namespace quorrin
