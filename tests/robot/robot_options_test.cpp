#include "robot/robot_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorrin {
namespace {

using testing::HasSubstr;

TEST(RobotOptions, AreTheShippedSiteAtTheDefaultAddressWhenNothingIsSaid) {
    const RobotOptions options = parseRobotOptions({});
    EXPECT_EQ(options.site, "office");
    EXPECT_EQ(options.listen, "127.127.0.1");
    EXPECT_EQ(options.port, 10001);
    EXPECT_EQ(options.camera, "");
    EXPECT_EQ(options.cameraWidth, 320);
    EXPECT_EQ(options.cameraHeight, 240);
    EXPECT_EQ(options.cameraRate, 15);
    EXPECT_FALSE(options.headless);
    EXPECT_EQ(options.error, "");
}

TEST(RobotOptions, TakeEachOption) {
    const RobotOptions options =
        parseRobotOptions({"--site", "hall", "--seed", "7", "--scenario", "s.jsonl", "--truth", "t.jsonl",
                           "--listen", "127.0.0.2", "--port", "20000", "--camera", "/shots", "--camera-size",
                           "640x480", "--camera-rate", "2.5", "--headless"});
    EXPECT_EQ(options.site, "hall");
    EXPECT_EQ(options.seed, 7u);
    EXPECT_EQ(options.scenario, "s.jsonl");
    EXPECT_EQ(options.truth, "t.jsonl");
    EXPECT_EQ(options.listen, "127.0.0.2");
    EXPECT_EQ(options.port, 20000);
    EXPECT_EQ(options.camera, "/shots");
    EXPECT_EQ(options.cameraWidth, 640);
    EXPECT_EQ(options.cameraHeight, 480);
    EXPECT_EQ(options.cameraRate, 2.5);
    EXPECT_TRUE(options.headless);
}

TEST(RobotOptions, NameWhatIsWrong) {
    EXPECT_THAT(parseRobotOptions({"--sight", "hall"}).error, HasSubstr("--sight"));
    EXPECT_THAT(parseRobotOptions({"--site"}).error, HasSubstr("--site needs a value"));
    EXPECT_THAT(parseRobotOptions({"--port", "0"}).error, HasSubstr("\"0\""));
    EXPECT_THAT(parseRobotOptions({"--port", "65535"}).error, HasSubstr("65534"));
    EXPECT_THAT(parseRobotOptions({"--port", "10x"}).error, HasSubstr("\"10x\""));
    EXPECT_THAT(parseRobotOptions({"--seed", "-1"}).error, HasSubstr("--seed"));
    EXPECT_THAT(parseRobotOptions({"--camera", ""}).error, HasSubstr("file or a folder"));
    EXPECT_THAT(parseRobotOptions({"--camera-size", "800x600"}).error, HasSubstr("\"800x600\""));
    for (const char* rate : {"0", "0.05", "61", "nan", "-1", "x"})
        EXPECT_THAT(parseRobotOptions({"--camera-rate", rate}).error, HasSubstr("--camera-rate")) << rate;
}

TEST(RobotOptions, UsageNamesEveryOption) {
    for (const char* option : {"--site", "--seed", "--scenario", "--truth", "--listen", "--port", "--camera",
                               "--camera-size", "--camera-rate", "--headless"})
        EXPECT_THAT(robotUsage(), HasSubstr(option));
}

}  // namespace
}  // namespace quorrin
