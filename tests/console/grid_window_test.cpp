#include "console/grid_window.h"

#include <gtest/gtest.h>

#include <cmath>

namespace quorrin {
namespace {

constexpr ViewSize kSize{400, 300};

TEST(GridWindow, AheadIsUpAndLeftIsLeft) {
    const GridWindow window;
    const ViewPoint origin = window.toView({0, 0}, kSize);
    EXPECT_DOUBLE_EQ(origin.x, 200);
    EXPECT_DOUBLE_EQ(origin.y, 150);
    EXPECT_LT(window.toView({1, 0}, kSize).y, origin.y);
    EXPECT_DOUBLE_EQ(window.toView({1, 0}, kSize).x, origin.x);
    EXPECT_LT(window.toView({0, 1}, kSize).x, origin.x);
    EXPECT_DOUBLE_EQ(window.toView({0, 1}, kSize).y, origin.y);
}

TEST(GridWindow, TheSpanFillsTheShorterSide) {
    const GridWindow window;
    EXPECT_DOUBLE_EQ(window.scale(kSize), 300 / GridWindow::kStartSpan_m);
}

TEST(GridWindow, FromAPlaceToThePictureAndBackIsThePlace) {
    GridWindow window;
    window.drag(30, -12, kSize);
    const GridPoint place = window.toWorld(window.toView({1.5, -0.7}, kSize), kSize);
    EXPECT_NEAR(place.x_m, 1.5, 1e-12);
    EXPECT_NEAR(place.y_m, -0.7, 1e-12);
}

TEST(GridWindow, FollowsTheRobotUntilItIsDragged) {
    GridWindow window;
    window.robotAt({2, 1});
    EXPECT_DOUBLE_EQ(window.centre().x_m, 2);
    window.drag(0, 0, kSize);
    EXPECT_FALSE(window.following());
    window.robotAt({3, 3});
    EXPECT_DOUBLE_EQ(window.centre().x_m, 2);
    window.follow({3, 3});
    EXPECT_DOUBLE_EQ(window.centre().y_m, 3);
}

TEST(GridWindow, APoseThatIsNoPlaceMovesNothing) {
    GridWindow window;
    window.robotAt({1, 1});
    window.robotAt({std::nan(""), 0});
    EXPECT_DOUBLE_EQ(window.centre().x_m, 1);
}

TEST(GridWindow, WhatIsDraggedStaysUnderTheHand) {
    GridWindow window;
    const GridPoint held = window.toWorld({100, 100}, kSize);
    window.drag(40, 25, kSize);
    const ViewPoint now = window.toView(held, kSize);
    EXPECT_NEAR(now.x, 140, 1e-9);
    EXPECT_NEAR(now.y, 125, 1e-9);
}

TEST(GridWindow, ZoomsRoundTheRobotWhileItFollows) {
    GridWindow window;
    window.robotAt({1, 1});
    window.zoom(2, {0, 0}, kSize);
    EXPECT_DOUBLE_EQ(window.centre().x_m, 1);
    EXPECT_LT(window.span_m(), GridWindow::kStartSpan_m);
}

TEST(GridWindow, ZoomsRoundThePointerWhenItDoesNot) {
    GridWindow window;
    window.drag(1, 1, kSize);
    const GridPoint held = window.toWorld({90, 40}, kSize);
    window.zoom(3, {90, 40}, kSize);
    EXPECT_NEAR(window.toView(held, kSize).x, 90, 1e-9);
    EXPECT_NEAR(window.toView(held, kSize).y, 40, 1e-9);
}

TEST(GridWindow, ZoomEndsAtItsLimits) {
    GridWindow window;
    window.zoom(1000, {}, kSize);
    EXPECT_DOUBLE_EQ(window.span_m(), GridWindow::kSmallestSpan_m);
    window.zoom(-1000, {}, kSize);
    EXPECT_DOUBLE_EQ(window.span_m(), GridWindow::kLargestSpan_m);
}

TEST(GridWindow, CannotBeDraggedOffTheGrid) {
    GridWindow window;
    window.drag(1e6, -1e6, kSize);
    EXPECT_DOUBLE_EQ(window.centre().y_m, GridWindow::kGridEdge_m);
    EXPECT_DOUBLE_EQ(window.centre().x_m, -GridWindow::kGridEdge_m);
}

TEST(GridWindow, TheWholeGridLiesInThePicture) {
    GridWindow window;
    window.showAll();
    EXPECT_FALSE(window.following());
    const ViewPoint corner = window.toView({8.05, 8.05}, {300, 300});
    EXPECT_NEAR(corner.x, 0, 1e-9);
    EXPECT_NEAR(corner.y, 0, 1e-9);
    const ViewPoint opposite = window.toView({-7.95, -7.95}, {300, 300});
    EXPECT_NEAR(opposite.x, 300, 1e-9);
    EXPECT_NEAR(opposite.y, 300, 1e-9);
}

TEST(GridWindow, APictureWithoutSizeDividesByNothing) {
    GridWindow window;
    window.drag(5, 5, {0, 0});
    EXPECT_TRUE(std::isfinite(window.centre().x_m));
}

}  // namespace
}  // namespace quorrin
