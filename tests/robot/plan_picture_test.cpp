#include "robot/plan_picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "robot/canvas.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

int greyAt(const CameraPicture& picture, Vec2 pixel) {
    const auto at = 3 * (static_cast<std::size_t>(pixel.y) * static_cast<std::size_t>(picture.width) +
                         static_cast<std::size_t>(pixel.x));
    int sum = 0;
    for (std::size_t i = 0; i < 3; ++i) sum += static_cast<std::uint8_t>(picture.pixels[at + i]);
    return sum / 3;
}

std::string sharedFile(const std::string& name) {
    std::ifstream in(std::string(QUORRIN_SOURCE_DIR) + "/share/" + name, std::ios::binary);
    std::stringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// Floating point may place a dot differently on another machine; a plan of another site differs in far more.
double shareOfDifferentBytes(const std::string& a, const std::string& b) {
    if (a.size() != b.size() || a.empty()) return 1;
    std::size_t different = 0;
    for (std::size_t i = 0; i < a.size(); ++i) different += std::abs(a[i] - b[i]) > 8 ? 1 : 0;
    return static_cast<double>(different) / static_cast<double>(a.size());
}

TEST(PlanPicture, TheShippedPlansAreThoseOfTheOfficeSite) {
    const Site office = shippedSite("office");
    EXPECT_LT(shareOfDifferentBytes(sharedFile("office.bmp"),
                                    bitmapFile(drawPlan(office, kBigPlanWidth, kBigPlanHeight, true))),
              0.001);
    EXPECT_LT(shareOfDifferentBytes(sharedFile("office_s.bmp"),
                                    bitmapFile(drawPlan(office, kOverviewWidth, kOverviewHeight, true))),
              0.001);
}

TEST(PlanPicture, TheBigPlanIs4195ThousandthsOfTheOverview) {
    EXPECT_NEAR(kBigPlanWidth / 4.195, kOverviewWidth, 0.5);
    EXPECT_NEAR(kBigPlanHeight / 4.195, kOverviewHeight, 0.5);
}

TEST(PlanPicture, DrawsWallsDarkAndTheFloorLightWhereTheFrameSays) {
    const Site site = shippedSite("office");
    const PlanFrame frame = planFrame(site, 705, 650);
    const CameraPicture picture = drawPlan(site, 705, 650, false);
    EXPECT_LT(greyAt(picture, frame.pixel({0, 5.5})), 80);
    EXPECT_LT(greyAt(picture, frame.pixel({3.0, 0})), 80);
    EXPECT_GT(greyAt(picture, frame.pixel({2.5, 2.5})), 240);
    const int desk = greyAt(picture, frame.pixel({4.75, 2.35}));
    EXPECT_GT(desk, 120);
    EXPECT_LT(desk, 230);
}

TEST(PlanPicture, ShowsBoxesOnlyWhenAsked) {
    const Site site = shippedSite("office");
    const PlanFrame frame = planFrame(site, 705, 650);
    const Vec2 spot = frame.pixel(site.boxes[0].at + Vec2{0.08, 0.08});
    EXPECT_LT(greyAt(drawPlan(site, 705, 650, true), spot), 220);
    EXPECT_GT(greyAt(drawPlan(site, 705, 650, false), spot), 230);
}

TEST(PlanPicture, KeepsTheSiteInsideThePicture) {
    for (const char* name : {"office", "corridor", "clutter", "hall"}) {
        const Site site = shippedSite(name);
        const PlanFrame frame = planFrame(site, 400, 300);
        for (const Segment& wall : site.walls) {
            for (const Vec2 point : {frame.pixel(wall.a), frame.pixel(wall.b)}) {
                EXPECT_GT(point.x, 0) << name;
                EXPECT_LT(point.x, 400) << name;
                EXPECT_GT(point.y, 0) << name;
                EXPECT_LT(point.y, 300) << name;
            }
        }
    }
}

TEST(Canvas, SmoothsEdgesAndCutsOffWhatLiesOutside) {
    Canvas canvas(10, 10, {255, 255, 255});
    canvas.fill({{-5, -5}, {5.5, -5}, {5.5, 20}, {-5, 20}}, {0, 0, 0});
    const CameraPicture picture = canvas.picture();
    EXPECT_EQ(greyAt(picture, {4, 5}), 0);
    EXPECT_NEAR(greyAt(picture, {5, 5}), 128, 4);
    EXPECT_EQ(greyAt(picture, {6, 5}), 255);
}

TEST(Canvas, WritesCapitalsForSmallLettersAndLeavesUnknownOnesOut) {
    Canvas small(60, 20, {255, 255, 255});
    small.text({30, 10}, 14, "dock", {0, 0, 0});
    Canvas capitals(60, 20, {255, 255, 255});
    capitals.text({30, 10}, 14, "DOCK", {0, 0, 0});
    EXPECT_EQ(small.picture().pixels, capitals.picture().pixels);
    Canvas unknown(60, 20, {255, 255, 255});
    unknown.text({30, 10}, 14, "\x01\x02", {0, 0, 0});
    EXPECT_EQ(unknown.picture().pixels, std::string(3 * 60 * 20, '\xff'));
}

TEST(CameraPicture, WritesABitmapWithRowsFromBelowAndPaddedToFourBytes) {
    // 1 x 2: red above, blue below
    const std::string file = bitmapFile({1, 2, std::string("\xff\x00\x00\x00\x00\xff", 6)});
    ASSERT_EQ(file.size(), 54u + 8u);
    EXPECT_EQ(file.substr(0, 2), "BM");
    EXPECT_EQ(file.substr(54), std::string("\xff\x00\x00\x00\x00\x00\xff\x00", 8));
}

}  // namespace
}  // namespace quorrin
