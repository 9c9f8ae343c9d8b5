// What the camera shows, as statements about pixels of small made-up scenes.
#include "robot/eyes/robot_camera.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "robot/eyes/scenery.h"
#include "robot/glyphs.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

constexpr CameraSize kSmall{320, 240};
constexpr CameraSize kLarge{640, 480};

struct Pixel {
    int red = 0;
    int green = 0;
    int blue = 0;

    int sum() const { return red + green + blue; }
    bool operator==(const Pixel&) const = default;
};

Pixel pixelAt(const CameraPicture& picture, int x, int y) {
    const std::size_t at = 3 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width) +
                                static_cast<std::size_t>(x));
    const auto part = [&](std::size_t i) { return int{static_cast<std::uint8_t>(picture.pixels[at + i])}; };
    return {part(0), part(1), part(2)};
}

// The red shirt of the first person; nothing else in these rooms is red.
bool isShirt(Pixel pixel) {
    return pixel.red > 40 && pixel.red > 3 * pixel.green && pixel.red > 3 * pixel.blue;
}
bool isCarton(Pixel pixel) {
    return pixel.red > 80 && pixel.red > pixel.blue * 3 / 2 && pixel.green > pixel.blue;
}

// Where the pixels of a kind are: how many, and their mean place.
struct Patch {
    int count = 0;
    double x = 0;
    double y = 0;
};
template <typename Kind>
Patch patchOf(const CameraPicture& picture, Kind kind) {
    Patch patch;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            if (!kind(pixelAt(picture, x, y))) continue;
            ++patch.count;
            patch.x += x;
            patch.y += y;
        }
    }
    if (patch.count > 0) {
        patch.x /= patch.count;
        patch.y /= patch.count;
    }
    return patch;
}

// In the middle of a room of 7 m, looking along x.
CameraView ahead() {
    CameraView view;
    view.eye = at({3.5, 3.5}, kEyeHeight_m);
    return view;
}
CameraView withPerson(Vec2 place) {
    CameraView view = ahead();
    view.people = {place};
    return view;
}
CameraPicture pictureOf(const CameraView& view, CameraSize size = kSmall) {
    const Site room = bareRoom();
    return RobotCamera(room, size).takePicture(view);
}

// The lowest row where the column in the middle is still wall or skirting, by the jump of brightness to the
// floor's: the foot of the wall ahead.
int footOfWall(const CameraPicture& picture) {
    const int x = picture.width / 2 + 7;
    for (int y = picture.height - 1; y > 0; --y)
        if (pixelAt(picture, x, y).sum() < 200) return y;
    return -1;
}

TEST(RobotCamera, GivesPicturesOfBothSizesWithAllTheirPixels) {
    for (const CameraSize size : {kSmall, kLarge}) {
        const CameraPicture picture = pictureOf(ahead(), size);
        EXPECT_EQ(picture.width, size.width);
        EXPECT_EQ(picture.height, size.height);
        EXPECT_EQ(picture.pixels.size(), 3u * static_cast<std::size_t>(size.width * size.height));
    }
}

TEST(RobotCamera, LeavesNoPixelBlackInAClosedRoom) {
    for (const double degrees : {0.0, 45.0, 133.0, 250.0}) {
        for (const double pitch : {-80.0, -30.0, 0.0, 30.0, 80.0}) {
            CameraView view = ahead();
            view.yaw = radFromDeg(degrees);
            view.pitch = radFromDeg(pitch);
            const Patch black = patchOf(pictureOf(view), [](Pixel it) { return it.sum() == 0; });
            EXPECT_EQ(black.count, 0) << degrees << " " << pitch;
        }
    }
}

TEST(RobotCamera, AWallStraightAheadFillsTheMiddleRowWithItsColour) {
    Site room = bareRoom(60, 60, {30, 30});
    room.walls = {{{32, 0}, {32, 60}}};
    CameraView view = ahead();
    view.eye = at({30, 30}, kEyeHeight_m);
    const CameraPicture picture = RobotCamera(room, kSmall).takePicture(view);
    const Pixel middle = pixelAt(picture, 160, 120);
    for (int x = 0; x < picture.width; ++x) EXPECT_EQ(pixelAt(picture, x, 120), middle) << x;
    EXPECT_GT(middle.sum(), 250);
}

TEST(RobotCamera, APersonToTheLeftOfTheRobotAppearsLeft) {
    const Patch left = patchOf(pictureOf(withPerson({5.5, 4.1})), isShirt);
    const Patch right = patchOf(pictureOf(withPerson({5.5, 2.9})), isShirt);
    EXPECT_GT(left.count, 100);
    EXPECT_LT(left.x, 110);
    EXPECT_GT(right.x, 210);
    EXPECT_NEAR(left.x + right.x, 319, 3);
}

TEST(RobotCamera, APersonStraightAheadStandsInTheMiddleWithTheHeadAboveTheHorizon) {
    const CameraPicture picture = pictureOf(withPerson({5.5, 3.5}));
    const Patch shirt = patchOf(picture, isShirt);
    EXPECT_NEAR(shirt.x, 159.5, 2);
    // From 0.8 m to 1.46 m, so about level with eyes at 1.15 m.
    EXPECT_NEAR(shirt.y, 120, 12);
}

TEST(RobotCamera, APersonBehindTheRobotIsNotSeen) {
    EXPECT_EQ(patchOf(pictureOf(withPerson({1.5, 3.5})), isShirt).count, 0);
}

TEST(RobotCamera, APersonBehindAWallIsNotSeen) {
    Site room = bareRoom();
    room.walls.push_back({{4.5, 2}, {4.5, 5}});
    const CameraPicture picture = RobotCamera(room, kSmall).takePicture(withPerson({5.5, 3.5}));
    EXPECT_EQ(patchOf(picture, isShirt).count, 0);
}

TEST(RobotCamera, TurningRightMovesThingsToTheLeft) {
    CameraView view = withPerson({5.5, 3.5});
    const Patch before = patchOf(pictureOf(view), isShirt);
    view.yaw = radFromDeg(-15);
    const Patch after = patchOf(pictureOf(view), isShirt);
    // tan 15 degrees of half a picture's tan 31 degrees
    EXPECT_NEAR(before.x - after.x, 160 * std::tan(radFromDeg(15)) / std::tan(radFromDeg(31)), 4);
}

TEST(RobotCamera, LookingUpMovesTheHorizonDownAndLookingDownMovesItUp) {
    CameraView view = ahead();
    const int level = footOfWall(pictureOf(view));
    view.pitch = radFromDeg(-10);
    const int down = footOfWall(pictureOf(view));
    view.pitch = radFromDeg(4);
    const int up = footOfWall(pictureOf(view));
    // The wall is 3.5 m away and its foot 1.15 m below.
    const double focal = 160 / std::tan(radFromDeg(31));
    const double below = std::atan(kEyeHeight_m / 3.5);
    EXPECT_NEAR(level, 120 + focal * kEyeHeight_m / 3.5, 2);
    EXPECT_NEAR(down, 120 + focal * std::tan(below - radFromDeg(10)), 2);
    EXPECT_NEAR(up, 120 + focal * std::tan(below + radFromDeg(4)), 2);
}

TEST(RobotCamera, NearThingsAreLarger) {
    const Patch near = patchOf(pictureOf(withPerson({5.0, 3.5})), isShirt);
    const Patch far = patchOf(pictureOf(withPerson({6.5, 3.5})), isShirt);
    // Half as far, four times as many pixels.
    EXPECT_NEAR(static_cast<double>(near.count) / far.count, 4.0, 0.5);
}

TEST(RobotCamera, ABoxStandsOnTheFloorWhereItLiesNow) {
    CameraView view = ahead();
    view.pitch = radFromDeg(-15);
    view.boxes = {{Vec2{5, 3.3}, Vec2{5.4, 3.3}, Vec2{5.4, 3.7}, Vec2{5, 3.7}}};
    const Patch before = patchOf(pictureOf(view), isCarton);
    EXPECT_GT(before.count, 200);
    EXPECT_NEAR(before.x, 159.5, 2);
    EXPECT_GT(before.y, 120);
    for (Vec2& corner : view.boxes[0]) corner.y += 0.5;  // pushed to the left
    EXPECT_LT(patchOf(pictureOf(view), isCarton).x, before.x - 30);
}

TEST(RobotCamera, DarknessDims) {
    Site room = bareRoom();
    std::int64_t sums[3] = {};
    const double lights[3] = {0, 0.3, 1};
    for (int i = 0; i < 3; ++i) {
        room.light = lights[i];
        const CameraPicture picture = RobotCamera(room, kSmall).takePicture(ahead());
        for (int y = 0; y < 220; ++y)
            for (int x = 0; x < 320; ++x) sums[i] += pixelAt(picture, x, y).sum();
    }
    EXPECT_GT(sums[0], 0) << "not quite dark";
    EXPECT_GT(sums[1], 3 * sums[0]);
    EXPECT_GT(sums[2], 2 * sums[1]);
}

TEST(RobotCamera, FloorTilesAreSeenNearAndCeilingAboveWalls) {
    CameraView view = ahead();
    view.pitch = radFromDeg(-60);
    std::set<int> greens;
    const CameraPicture down = pictureOf(view);
    for (int x = 0; x < 320; ++x) greens.insert(pixelAt(down, x, 120).green);
    EXPECT_GT(greens.size(), 4u) << "tiles and the joints between them";
    view.pitch = radFromDeg(60);
    const CameraPicture up = pictureOf(view);
    EXPECT_GT(patchOf(up, [](Pixel it) { return it.sum() > 700; }).count, 1000) << "lamps";
}

TEST(RobotCamera, EveryKindOfFurnitureShows) {
    const CameraPicture empty = pictureOf(ahead());
    for (const char* kind : {"desk", "chair", "shelf", "sofa", "table", "plant", "cabinet", "pillar"}) {
        Site room = bareRoom();
        room.furniture = {{kind, {{4.8, 3.2}, {5.4, 3.2}, {5.4, 3.8}, {4.8, 3.8}}}};
        CameraView view = ahead();
        const CameraPicture with = RobotCamera(room, kSmall).takePicture(view);
        int differ = 0;
        for (int y = 0; y < 220; ++y)
            for (int x = 0; x < 320; ++x) differ += pixelAt(with, x, y) == pixelAt(empty, x, y) ? 0 : 1;
        EXPECT_GT(differ, 500) << kind;
    }
}

TEST(RobotCamera, SeesAWallThatItTouches) {
    CameraView view = ahead();
    view.eye = at({6.96, 3.5}, kEyeHeight_m);
    view.pitch = radFromDeg(-40);
    const CameraPicture picture = pictureOf(view);
    EXPECT_EQ(patchOf(picture, [](Pixel it) { return it.sum() == 0; }).count, 0);
}

TEST(RobotCamera, TheSameMomentGivesTheSamePicture) {
    const CameraView view = withPerson({5, 4});
    EXPECT_EQ(pictureOf(view).pixels, pictureOf(view).pixels);
}

TEST(RobotCamera, OnePictureLeavesNothingInTheNext) {
    const Site room = bareRoom();
    RobotCamera camera(room, kSmall);
    camera.takePicture(withPerson({5, 3.5}));
    EXPECT_EQ(camera.takePicture(ahead()).pixels, pictureOf(ahead()).pixels);
}

TEST(CameraStamp, TellsTimeInHoursMinutesAndTenthsAndTheFramesNumber) {
    EXPECT_EQ(cameraStamp(0, 1), "0:00:00.0 #1");
    EXPECT_EQ(cameraStamp(12'345'678, 99), "3:25:45.6 #99");
    EXPECT_EQ(cameraStamp(360'000'000, 4'000'000), "100:00:00.0 #4000000");
}

// The text that stands in the corner, read dot by dot.
std::string stampIn(const CameraPicture& picture) {
    const int dot = picture.width / 320;
    const int top = picture.height - 8 * dot;
    std::string text;
    for (int n = 0; (n + 1) * 6 * dot < picture.width; ++n) {
        GlyphRows rows{};
        for (int row = 0; row < 7; ++row)
            for (int column = 0; column < 5; ++column)
                if (pixelAt(picture, (n * 6 + 1 + column) * dot, top + row * dot) == Pixel{240, 240, 240})
                    rows[static_cast<std::size_t>(row)] |= static_cast<std::uint8_t>(16 >> column);
        char letter = ' ';
        for (const char candidate : std::string("0123456789.:#"))
            if (*glyphRows(candidate) == rows) letter = candidate;
        text += letter;
    }
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

TEST(CameraStamp, StandsReadableInPicturesOfBothSizes) {
    CameraView view = ahead();
    view.timeMs = 3'723'456;
    view.frame = 908;
    EXPECT_EQ(stampIn(pictureOf(view, kSmall)), "1:02:03.4 #908");
    EXPECT_EQ(stampIn(pictureOf(view, kLarge)), "1:02:03.4 #908");
}

TEST(CameraStamp, IsCutOffWhereThePictureEnds) {
    CameraPicture tiny{10, 4, std::string(120, '\x55')};
    writeStamp(tiny, "0:00:00.0 #1");
    EXPECT_EQ(tiny.pixels.size(), 120u);
    EXPECT_NE(tiny.pixels, std::string(120, '\x55'));
}

TEST(Gaze, IsStraightAheadAtTheNeutralsThatAStationIsShippedWith) {
    Servos servos;
    const int neutrals[6] = {3600, 3650, 2650, 3500, 3500, 3200};
    for (std::size_t i = 0; i < 6; ++i) servos.move(i, neutrals[i], 100);
    for (int i = 0; i < 50; ++i) servos.step(0.02);
    EXPECT_NEAR(gaze(servos).x, 0, 1e-9);
    EXPECT_NEAR(gaze(servos).y, 0, 1e-9);
}

// Gaze in degrees with one servo away from its neutral.
Vec2 gazeWith(std::size_t servo, int position) {
    Servos servos;
    int goals[6] = {3600, 3650, 2650, 3500, 3500, 3200};
    goals[servo] = position;
    for (std::size_t i = 0; i < 6; ++i) servos.move(i, goals[i], 100);
    for (int i = 0; i < 100; ++i) servos.step(0.02);
    return gaze(servos) * (180 / kExactPi);
}

TEST(Gaze, TurnsRightWithMoreOfHeadAndEyesAndTheHeadMoreThanTheEyes) {
    EXPECT_NEAR(gazeWith(1, 3650 + 400).x, -20, 0.01);
    EXPECT_NEAR(gazeWith(5, 3200 + 400).x, -12, 0.01);
    EXPECT_NEAR(gazeWith(1, 3650 - 400).x, 20, 0.01);
}

TEST(Gaze, RisesWithMoreOfTheEyesAndLessOfTheHead) {
    EXPECT_NEAR(gazeWith(4, 3500 + 300).y, 9, 0.01);
    EXPECT_NEAR(gazeWith(0, 3600 - 300).y, 15, 0.01);
    EXPECT_NEAR(gazeWith(0, 3600 + 300).y, -15, 0.01);
}

TEST(Gaze, DoesNotMoveWithMouthAndSpareChannel) {
    EXPECT_NEAR(length(gazeWith(2, 4000)), 0, 1e-9);
    EXPECT_NEAR(length(gazeWith(3, 0)), 0, 1e-9);
}

TEST(Gaze, ReachesNoFurtherThan80DegreesUp) {
    EXPECT_NEAR(gazeWith(0, 0).y, 80, 1e-6);
}

TEST(RobotView, FollowsTheRobotsPoseServosBoxesAndPeople) {
    Site room = bareRoom(7, 7, {2, 3}, radFromDeg(90));
    room.boxes = {{{5, 5}, 0.4, 0.2, 0, 4}};
    room.people = {{{{1, 6}}, 0.6, 1}};
    RobotAtWork work(room);
    work.robot.moveServosTimed({3600, 4050, 2650, 3500, 3500, 3200}, 300);
    work.run(1000);
    const CameraView view = work.robot.view(41);
    EXPECT_EQ(view.timeMs, work.robot.nowMs());
    EXPECT_EQ(view.frame, 41u);
    EXPECT_NEAR(view.eye.x, 2, 0.01);
    EXPECT_NEAR(view.eye.y, 3, 0.01);
    EXPECT_DOUBLE_EQ(view.eye.z, kEyeHeight_m);
    EXPECT_NEAR(view.yaw, radFromDeg(90 - 20), 0.01);
    EXPECT_NEAR(view.pitch, 0, 1e-9);
    ASSERT_EQ(view.boxes.size(), 1u);
    EXPECT_NEAR(view.boxes[0][0].x, 4.8, 0.01);
    ASSERT_EQ(view.people.size(), 1u);
    EXPECT_EQ(view.people[0], (Vec2{1, 6}));
}

}  // namespace
}  // namespace quorrin
