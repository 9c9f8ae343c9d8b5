#include "console/grid_picture.h"

#include <gmock/gmock.h>

#include <cmath>

#include "support/navigation_station.h"

namespace quorrin {
namespace {

using testing::HasSubstr;

constexpr double kQuarter = 1.5707963;

struct GridPictureTest : testing::Test, protected NavigationStation {
    GridPicture picture() const { return gridPicture(values, controls, &navigator, window); }
    void drive() {
        navigator.TargetX = 2;
        navigator.maxTurnspeed = 0.8;
        navigator.TargetForwardspeed = 0.3;
        navigator.run();
        navigator.continue_();
        navigator.RunTimer_Timer(100);
    }
    const RangeRay& sonarAhead(const GridPicture& picture) const {
        return picture.rays[GridPicture::kInfrareds + 1];
    }
    speedP2PVFH navigator{clock, values, controls, link};
    GridWindow window;
};

TEST_F(GridPictureTest, ARayBeginsAtItsSensorAndEndsWhereItSaw) {
    values.robotX = 1;
    values.robotY = -2;
    values.sonarRange[1] = 0.9;
    const GridPicture made = picture();
    const RangeRay& ray = sonarAhead(made);
    ASSERT_TRUE(ray.shown);
    EXPECT_EQ(ray.kind, RayKind::sonar);
    EXPECT_NEAR(ray.from.x_m, 1.195, 1e-9);
    EXPECT_NEAR(ray.to.x_m, 1.9, 1e-9);
    EXPECT_NEAR(ray.to.y_m, -2, 1e-9);
}

TEST_F(GridPictureTest, ARobotTurnedLeftSeesItsFrontRayGoneCounterClockwise) {
    values.sonarRange[1] = 1;
    const ViewSize size{400, 400};
    const GridPicture before = picture();
    const ViewPoint ahead = window.toView(sonarAhead(before).to, size);
    values.robotTheta = 0.5;
    const GridPicture after = picture();
    EXPECT_GT(sonarAhead(after).to.y_m, 0);
    const ViewPoint turned = window.toView(sonarAhead(after).to, size);
    EXPECT_LT(turned.x, ahead.x);
    EXPECT_GT(turned.y, ahead.y);
}

TEST_F(GridPictureTest, SensorsOnTheLeftLookLeft) {
    values.irRange[6] = 0.5;  // at +90 degrees
    values.irRange[4] = 0.5;  // at -90 degrees
    const GridPicture made = picture();
    EXPECT_NEAR(made.rays[6].to.y_m, 0.5, 1e-6);
    EXPECT_NEAR(made.rays[4].to.y_m, -0.5, 1e-6);
}

TEST_F(GridPictureTest, ARangeNeverMeasuredOrAtTheSensorsFootIsNotShown) {
    values.irRange[0] = 0;
    values.irRange[1] = 0.18;
    values.irRange[2] = std::nan("");
    values.irRange[3] = -1;
    values.sonarRange[0] = HUGE_VAL;
    const GridPicture made = picture();
    for (const RangeRay& ray : made.rays) EXPECT_FALSE(ray.shown);
}

TEST_F(GridPictureTest, AnInfraredRayMeetsAnObstacleUpToItsMarkingLimit) {
    values.irRange[1] = values.irRadius[1] + 0.53;
    EXPECT_TRUE(picture().rays[1].obstacle);
    values.irRange[1] += 0.001;
    EXPECT_TRUE(picture().rays[1].shown);
    EXPECT_FALSE(picture().rays[1].obstacle);
}

TEST_F(GridPictureTest, TheRearSonarNeverMarks) {
    values.sonarRange[3] = 0.5;
    const GridPicture made = picture();
    const RangeRay& ray = made.rays.back();
    EXPECT_TRUE(ray.shown);
    EXPECT_FALSE(ray.obstacle);
    EXPECT_NEAR(ray.to.x_m, -0.5, 1e-6);
}

TEST_F(GridPictureTest, SectorOneBeginsBehindTheStartAndTheSectorsStayWithTheWorld) {
    values.robotTheta = 1;
    const GridPicture made = picture();
    EXPECT_NEAR(made.ring[0].from_rad, -3.1415926, 1e-9);
    EXPECT_NEAR(made.ring[18].from_rad, 0, 1e-6);
    EXPECT_NEAR(made.ring[35].to_rad, 3.1415926, 1e-6);
}

TEST_F(GridPictureTest, TheRingShowsDensityAgainstFullSaturationAndWhatIsBlocked) {
    values.polarHistogram[19] = 50;
    values.polarHistogram[20] = 500;
    values.binaryHistogram[20] = 1;
    const GridPicture made = picture();
    EXPECT_DOUBLE_EQ(made.ring[18].density, 0.5);
    EXPECT_FALSE(made.ring[18].blocked);
    EXPECT_DOUBLE_EQ(made.ring[19].density, 1);
    EXPECT_TRUE(made.ring[19].blocked);
    ASSERT_TRUE(made.limit);
    EXPECT_DOUBLE_EQ(*made.limit, 0.4);
}

TEST_F(GridPictureTest, BoxesWithoutANumberLeaveTheUsualDepthAndNoLimit) {
    controls.txtTh1.setText("");
    controls.txtTh2.setText("0");
    values.polarHistogram[1] = 25;
    const GridPicture made = picture();
    EXPECT_DOUBLE_EQ(made.ring[0].density, 0.25);
    EXPECT_FALSE(made.limit);
}

TEST_F(GridPictureTest, TheRingGrowsWithTheWindow) {
    const double near_m = picture().ringInner_m;
    window.showAll();
    EXPECT_GT(picture().ringInner_m, near_m);
    EXPECT_GT(picture().ringOuter_m, picture().ringInner_m);
}

TEST_F(GridPictureTest, GuidanceIsShownOnlyWhileTheNavigatorDrives) {
    EXPECT_FALSE(picture().guidance);
    EXPECT_FALSE(gridPicture(values, controls, nullptr, window).guidance);
    drive();
    EXPECT_TRUE(picture().guidance);
    navigator.suspend();
    EXPECT_FALSE(picture().guidance);
}

TEST_F(GridPictureTest, TheGoalSectorIsTheBearingToTheTarget) {
    drive();
    EXPECT_EQ(picture().guidance->goalSector, 19);
    EXPECT_DOUBLE_EQ(picture().guidance->target.x_m, 2);
    navigator.TargetX = 0;
    navigator.TargetY = 2;
    const int left = picture().guidance->goalSector;
    EXPECT_NEAR(picture().ring[static_cast<std::size_t>(left - 1)].from_rad, kQuarter, 0.18);
}

TEST_F(GridPictureTest, TheHeadingIsTheDetourThatTheNavigatorChose) {
    values.vfhActive = true;
    for (std::size_t sector = 17; sector <= 21; ++sector) values.binaryHistogram[sector] = 1;
    drive();
    ASSERT_TRUE(picture().guidance);
    EXPECT_DOUBLE_EQ(picture().guidance->heading_rad, navigator.desiredHeading());
    EXPECT_GT(std::abs(picture().guidance->heading_rad), 0.3);
}

TEST_F(GridPictureTest, WhatIsNoNumberIsNotDrawn) {
    drive();
    navigator.TargetX = std::nan("");
    EXPECT_FALSE(picture().guidance);
    values.robotTheta = std::nan("");
    EXPECT_FALSE(picture().robotKnown);
}

TEST_F(GridPictureTest, TheWordsTellWhatTheNavigatorIsAbout) {
    EXPECT_THAT(guidanceWords(values, nullptr), HasSubstr("not running"));
    EXPECT_THAT(guidanceWords(values, &navigator), HasSubstr("not running"));
    drive();
    EXPECT_THAT(guidanceWords(values, &navigator), HasSubstr("avoidance is off"));
    values.vfhActive = true;
    for (const auto& [status, words] : {std::pair{"openfound", "round the obstacle"},
                                        {"totallyopen", "Open all round"},
                                        {"openwithnochange", "Open ahead"},
                                        {"openwithchange", "beside the way"},
                                        {"stuck", "No way through"},
                                        {"", "starting"}}) {
        navigator.CAStatus = status;
        EXPECT_THAT(guidanceWords(values, &navigator), HasSubstr(words));
    }
    navigator.Status = "turn";
    EXPECT_THAT(guidanceWords(values, &navigator), HasSubstr("final heading"));
    values.inStuck = true;
    EXPECT_THAT(guidanceWords(values, &navigator), HasSubstr("being freed"));
    navigator.suspend();
    EXPECT_THAT(guidanceWords(values, &navigator), HasSubstr("suspended"));
}

}  // namespace
}  // namespace quorrin
