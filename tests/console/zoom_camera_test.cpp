// The zoom window, in a station with its forms composed.
#include "console/zoom_camera.h"

#include <gmock/gmock.h>

#include "robotlink/bmp_24.h"
#include "session/console_rooms.h"
#include "support/station_bench.h"

namespace quorrin {
namespace {

using testing::Contains;
using testing::Not;
using testing::StartsWith;

struct ZoomWindow : testing::Test, StationBench {
    frmZoomCamera& form = station.zoomCamera;
    const std::string path = "/app/tempImage.bmp";

    void SetUp() override {
        station.startAtMainForm();
        take();
    }
    ZoomCamera& logic() { return station.console().zoomCamera(); }
    static std::string picture(char shade) { return encodeBmp24(2, 2, std::string(12, shade)); }
    std::string shownPicture() const { return form.Image1.content() ? *form.Image1.content() : "none"; }
};

TEST_F(ZoomWindow, OpensWithBothFlagsAndDoesNotBlock) {
    gui.cmdZoomCamera.operatorClick();
    EXPECT_TRUE(values.zoomCameraOpen);
    EXPECT_TRUE(logic().zoomCameraShown());
    EXPECT_TRUE(form.shown());
    EXPECT_FALSE(form.modal());
}

TEST_F(ZoomWindow, ItsCloseKeyClearsBothFlagsAndUnloads) {
    gui.cmdZoomCamera.operatorClick();
    form.cmdClose.operatorClick();
    EXPECT_FALSE(values.zoomCameraOpen);
    EXPECT_FALSE(logic().zoomCameraShown());
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(form.tmrShowImage.running());
}

TEST_F(ZoomWindow, ClosedAnyOtherWayItClearsOnlyTheFlagThatTheMainFormReads) {
    gui.cmdZoomCamera.operatorClick();
    form.operatorClose();
    EXPECT_FALSE(values.zoomCameraOpen);
    EXPECT_TRUE(logic().zoomCameraShown());
    EXPECT_FALSE(form.shown());
}

TEST_F(ZoomWindow, ShowsThePictureFileTenTimesASecond) {
    files.put(path, picture('a'));
    gui.cmdZoomCamera.operatorClick();
    clock.runFor(99);
    EXPECT_EQ(shownPicture(), "none");
    clock.runFor(1);
    EXPECT_EQ(shownPicture(), picture('a'));
    EXPECT_EQ(form.Image1.file(), path);
    files.put(path, picture('b'));
    clock.runFor(99);
    EXPECT_EQ(shownPicture(), picture('a'));
    clock.runFor(1);
    EXPECT_EQ(shownPicture(), picture('b'));
}

TEST_F(ZoomWindow, WithoutAFileItStaysBlankWithoutAWord) {
    gui.cmdZoomCamera.operatorClick();
    clock.runFor(1000);
    EXPECT_EQ(shownPicture(), "none");
    EXPECT_EQ(form.Image1.valueText(), "0");
    EXPECT_THAT(take(), Not(Contains(StartsWith("box"))));
    EXPECT_TRUE(form.tmrShowImage.running());
}

TEST_F(ZoomWindow, AFileThatIsNotThereAsAWholeIsSkippedAndThePictureStays) {
    files.put(path, picture('a'));
    gui.cmdZoomCamera.operatorClick();
    clock.runFor(100);
    for (const std::string& broken : {picture('b').substr(0, 60), std::string("BM"), std::string()}) {
        files.put(path, broken);
        clock.runFor(100);
        EXPECT_EQ(shownPicture(), picture('a'));
    }
    files.remove(path);
    clock.runFor(100);
    EXPECT_EQ(shownPicture(), picture('a'));
    files.put(path, picture('c'));
    clock.runFor(100);
    EXPECT_EQ(shownPicture(), picture('c'));
}

TEST_F(ZoomWindow, WithTheFramesStoppedTheLastOneStaysForAsLongAsItIsOpen) {
    files.put(path, picture('a'));
    gui.cmdZoomCamera.operatorClick();
    clock.runFor(100);
    int looks = 0;
    form.Image1.onLook = [&looks] { ++looks; };
    clock.runFor(60'000);
    EXPECT_EQ(shownPicture(), picture('a'));
    EXPECT_EQ(looks, 0);
}

TEST_F(ZoomWindow, OpenedAnewItIsBlankUntilItsFirstTick) {
    files.put(path, picture('a'));
    gui.cmdZoomCamera.operatorClick();
    clock.runFor(100);
    form.cmdClose.operatorClick();
    gui.cmdZoomCamera.operatorClick();
    EXPECT_EQ(shownPicture(), "none");
    clock.runFor(100);
    EXPECT_EQ(shownPicture(), picture('a'));
}

TEST_F(ZoomWindow, AskedForAgainWhileItIsOpenItKeepsItsPicture) {
    files.put(path, picture('a'));
    gui.cmdZoomCamera.operatorClick();
    clock.runFor(100);
    gui.cmdZoomCamera.operatorClick();
    EXPECT_EQ(shownPicture(), picture('a'));
}

TEST_F(ZoomWindow, AsksNothingOfTheWorld) {
    StationBench without;
    without.station.startAtMainForm();
    without.take();
    files.put(path, picture('a'));
    gui.cmdZoomCamera.operatorClick();
    for (StationBench* bench : {static_cast<StationBench*>(this), &without}) {
        bench->powerFrames(11);
        bench->tick(20);
    }
    EXPECT_EQ(take(), without.take());
}

TEST_F(ZoomWindow, IsDraggedByTheSameStateAsTheControlPanel) {
    gui.cmdShowControlPanel.operatorClick();
    gui.cmdZoomCamera.operatorClick();
    form.setArea({100, 200, 10, 10});
    WindowDrag& panelDrag = station.console().controlPanel().drag();
    logic().drag().leftDown({0, 0});
    EXPECT_TRUE(panelDrag.windowDragging());
    logic().drag().moved([] { return ScreenPlace{5, 6}; });
    EXPECT_EQ(form.area(), (Area{105, 206, 10, 10}));
    panelDrag.leftUp();
    EXPECT_FALSE(logic().drag().windowDragging());
}

TEST_F(ZoomWindow, ClosesWithTheMainForm) {
    gui.cmdZoomCamera.operatorClick();
    untilEnd([this] { gui.operatorClose(); });
    EXPECT_FALSE(form.shown());
    EXPECT_FALSE(values.zoomCameraOpen);
    EXPECT_FALSE(form.tmrShowImage.running());
}

}  // namespace
}  // namespace quorrin
