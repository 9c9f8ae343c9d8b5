#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/virtual/memory_files.h"
#include "robot/site.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

using testing::HasSubstr;

constexpr const char* kRoom = R"("walls": [[[0,0],[4,0],[4,3],[0,3],[0,0]]], "start": {"at": [1,1]})";

Site parse(const std::string& text) {
    MemoryFiles files;
    return parseSite(text, "room.json", "/sites", files);
}

std::string errorOf(const std::string& text) {
    try {
        parse(text);
    } catch (const SiteError& error) {
        return error.what();
    }
    return "";
}

class ShippedSite : public testing::TestWithParam<const char*> {};

TEST_P(ShippedSite, LoadsUnderItsNameAndHasADock) {
    MemoryFiles files;
    files.put(std::string("/sites/") + GetParam() + ".json", shippedSiteText(GetParam()));
    const Site site = loadSite(GetParam(), "/sites", files);
    EXPECT_EQ(site.name, GetParam());
    EXPECT_TRUE(site.hasDock);
    EXPECT_FALSE(site.title.empty());
}

TEST_P(ShippedSite, LetsTheRobotReachPointsAtMostSevenAndAHalfMetresApart) {
    const Extent extent = reachableExtent(parse(shippedSiteText(GetParam())));
    EXPECT_TRUE(extent.closed);
    EXPECT_LE(extent.high.x - extent.low.x, 7.5);
    EXPECT_LE(extent.high.y - extent.low.y, 7.5);
    EXPECT_GT(extent.high.x - extent.low.x, 4.0);
}

TEST_P(ShippedSite, HasADockWhereTheRobotFits) {
    const Site site = parse(shippedSiteText(GetParam()));
    for (const Segment& segment : fixedSegments(site))
        EXPECT_GE(distanceToSegment(site.dock.pose.at, segment), kRobotRadius_m);
}

INSTANTIATE_TEST_SUITE_P(Sites, ShippedSite, testing::Values("office", "corridor", "clutter", "hall"));

TEST(SiteFile, GivesWallsBoxesPeopleDockAndStartInMetresAndRadians) {
    const Site site = parse(R"({"name": "room", "walls": [[[0,0],[4,0],[4,3],[0,3],[0,0]]],
        "boxes": [{"at": [3,2], "size": [0.4,0.2], "angle": 90, "mass": 7}],
        "people": [{"path": [[1,2],[2,2]], "speed": 0.5, "pause": 2}],
        "furniture": [{"kind": "pillar", "at": [3,1], "size": [0.2,0.2]}],
        "dock": {"at": [2,0.3], "heading": 90, "volts": 15}, "start": {"at": [1,1], "heading": -90}, "light": 0.3})");
    EXPECT_EQ(site.walls.size(), 4u);
    ASSERT_EQ(site.boxes.size(), 1u);
    EXPECT_DOUBLE_EQ(site.boxes[0].mass_kg, 7.0);
    EXPECT_NEAR(site.boxes[0].angle, 1.5708, 1e-4);
    ASSERT_EQ(site.people.size(), 1u);
    EXPECT_DOUBLE_EQ(site.people[0].pause_s, 2.0);
    EXPECT_DOUBLE_EQ(site.dock.volts, 15.0);
    EXPECT_NEAR(site.start.heading, -1.5708, 1e-4);
    EXPECT_DOUBLE_EQ(site.light, 0.3);
    EXPECT_EQ(fixedSegments(site).size(), 8u);
}

TEST(SiteFile, NamesAMisspeltKeyAndItsPlace) {
    const std::string text =
        std::string(R"({"name": "a", "boxes": [{"at": [3,2], "size": [0.2,0.2], "mas": 3}], )") + kRoom + "}";
    EXPECT_THAT(errorOf(text), HasSubstr("room.json: boxes[0]: unknown key \"mas\""));
    EXPECT_THAT(errorOf(std::string(R"({"name": "a", "boxs": [], )") + kRoom + "}"),
                HasSubstr("unknown key \"boxs\""));
}

TEST(SiteFile, SaysWhatIsMissing) {
    EXPECT_THAT(errorOf(std::string("{") + kRoom + "}"), HasSubstr("\"name\" is missing"));
    EXPECT_THAT(errorOf(R"({"name": "a", "start": {"at": [1,1]}})"), HasSubstr("walls"));
}

TEST(SiteFile, RefusesTextThatIsNoJson) {
    EXPECT_THAT(errorOf("{\"name\": "), HasSubstr("room.json: "));
}

TEST(SiteFile, RefusesNumbersThatMakeNoSense) {
    EXPECT_THAT(errorOf(std::string(R"({"name": "a", "light": 3, )") + kRoom + "}"), HasSubstr("\"light\""));
    EXPECT_THAT(errorOf(R"({"name": "a", "walls": [[[0,0],[1e9,0]]], "start": {"at": [1,1]}})"),
                HasSubstr("walls[0]"));
    EXPECT_THAT(errorOf(R"({"name": "a", "walls": [[[0,0]]], "start": {"at": [1,1]}})"),
                HasSubstr("walls[0]"));
}

TEST(SiteFile, RefusesAPlaceThatTheRobotCanLeave) {
    EXPECT_THAT(errorOf(R"({"name": "a", "walls": [[[0,0],[4,0],[4,3],[0,3]]], "start": {"at": [1,1]}})"),
                HasSubstr("not closed"));
}

TEST(SiteFile, RefusesAPlaceThatIsLargerThanAStationsMap) {
    EXPECT_THAT(
        errorOf(R"({"name": "a", "walls": [[[0,0],[8.2,0],[8.2,3],[0,3],[0,0]]], "start": {"at": [1,1]}})"),
        HasSubstr("too large"));
}

TEST(SiteFile, RefusesAStartInsideAWall) {
    EXPECT_THAT(
        errorOf(R"({"name": "a", "walls": [[[0,0],[4,0],[4,3],[0,3],[0,0]]], "start": {"at": [0.1,1]}})"),
        HasSubstr("does not fit"));
}

TEST(SiteLibrary, TakesANameOrAFile) {
    MemoryFiles files;
    const std::string text = std::string(R"({"name": "mine", )") + kRoom + "}";
    files.put("/sites/mine.json", text);
    EXPECT_EQ(loadSite("mine", "/sites", files).name, "mine");
    EXPECT_EQ(loadSite("/sites/mine.json", "/elsewhere", files).name, "mine");
    EXPECT_THROW(loadSite("yours", "/sites", files), SiteError);
}

std::string greyMap(int width, int height, const std::string& pixels) {
    return "P5\n# made by hand\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n" + pixels;
}

TEST(SitePicture, TurnsTheBorderOfDarkPixelsIntoWalls) {
    MemoryFiles files;
    // 6 x 5 light pixels of half a metre; one dark one touches the lower edge
    std::string pixels(30, '\xff');
    pixels[4 * 6 + 3] = '\0';
    files.put("/sites/room.pgm", greyMap(6, 5, pixels));
    const Site site = parseSite(R"({"name": "p", "picture": {"file": "room.pgm", "metresPerPixel": 0.5},
                                    "start": {"at": [0.5, 1.5]}})",
                                "p.json", "/sites", files);
    double nearestToDarkTop = 100;
    for (const Segment& wall : site.walls)
        nearestToDarkTop = std::min(nearestToDarkTop, distanceToSegment({1.75, 0.6}, wall));
    EXPECT_NEAR(nearestToDarkTop, 0.1, 1e-9);
    const Extent extent = reachableExtent(site);
    EXPECT_TRUE(extent.closed);
    EXPECT_NEAR(extent.high.x, 2.8, 0.06);
    EXPECT_NEAR(extent.high.y, 2.3, 0.06);
}

TEST(SitePicture, ReadsABitmapFromBelow) {
    // 2 x 1 pixels, 24 bit, each row padded to 8 bytes: dark, light
    std::string bitmap(54 + 8, '\0');
    bitmap[0] = 'B';
    bitmap[1] = 'M';
    bitmap[10] = 54;
    bitmap[18] = 2;
    bitmap[22] = 1;
    bitmap[28] = 24;
    for (std::size_t i = 57; i < 60; ++i) bitmap[i] = '\xff';
    MemoryFiles files;
    files.put("/sites/p.bmp", bitmap);
    const Site site =
        parseSite(R"({"name": "p", "picture": {"file": "p.bmp", "metresPerPixel": 1, "origin": [-2, 0]},
                                    "start": {"at": [-0.5, 0.5]}})",
                  "p.json", "/sites", files);
    EXPECT_EQ(site.walls.size(), 4u);
}

TEST(SitePicture, RefusesWhatIsCutOffOrOfAnotherKind) {
    MemoryFiles files;
    files.put("/sites/a.pgm", greyMap(6, 5, "short"));
    files.put("/sites/b.pgm", "PNG");
    files.put("/sites/c.bmp", "BM");
    for (const char* name : {"a.pgm", "b.pgm", "c.bmp", "missing.pgm"}) {
        const std::string text =
            std::string(R"({"name": "p", "start": {"at": [1,1]}, "picture": {"file": ")") + name +
            R"(", "metresPerPixel": 0.5}})";
        EXPECT_THROW(parseSite(text, "p.json", "/sites", files), SiteError) << name;
    }
}

}  // namespace
}  // namespace quorrin
