// Includes go one way. A lower room reaches a higher one only through a hook that the composition sets.
#include "tree/layers.h"

#include <gtest/gtest.h>

#include <set>

#include "tree/source_text.h"

namespace quorrin::tree {
namespace {

TEST(Layers, ARoomIsTheFolderOrOneOfTheLowSubFolders) {
    EXPECT_EQ(roomOf("navigation/gps.h"), "navigation");
    EXPECT_EQ(roomOf("navigation/math/angles.h"), "navigation/math");
    EXPECT_EQ(roomOf("platform/clock.h"), "platform");
    EXPECT_EQ(roomOf("platform/qt/sockets.h"), "platform/qt");
    EXPECT_EQ(roomOf("robot/window/site_view.h"), "robot");
    EXPECT_EQ(roomOf("loose.h"), "");
}

TEST(Layers, AHigherRoomMayIncludeALowerOneAndNotTheOtherWayRound) {
    EXPECT_TRUE(mayInclude("session/station.h", "console/frm_gui.h"));
    EXPECT_FALSE(mayInclude("console/frm_gui.h", "session/station.h"));
    EXPECT_TRUE(mayInclude("navigation/gps.h", "robotlink/quorrin_sdk.h"));
    EXPECT_FALSE(mayInclude("robotlink/motion_intake.h", "navigation/gps.h"));
    EXPECT_TRUE(mayInclude("robotlink/motion_intake.h", "navigation/math/ranges.h"));
    EXPECT_FALSE(mayInclude("platform/clock.h", "base/form.h"));
}

TEST(Layers, ImagingStandsAboveSoundAndBelowRemote) {
    EXPECT_TRUE(isStationRoom("imaging"));
    EXPECT_TRUE(mayInclude("imaging/dib_section.h", "platform/clipboard.h"));
    EXPECT_TRUE(mayInclude("imaging/dib_section.h", "sound/wave_resource.h"));
    EXPECT_FALSE(mayInclude("sound/wave_resource.h", "imaging/dib_section.h"));
    EXPECT_TRUE(mayInclude("remote/channels.h", "imaging/dib_section.h"));
    EXPECT_FALSE(mayInclude("imaging/dib_section.h", "remote/channels.h"));
}

TEST(Layers, TheStationIncludesNoLeafAndNoSiblingOfThePorts) {
    EXPECT_FALSE(mayInclude("session/station.h", "gateway/gateway.h"));
    EXPECT_FALSE(mayInclude("robotlink/gateway_link.h", "robot/body.h"));
    EXPECT_FALSE(mayInclude("remote/command_channel.h", "client/client.h"));
    EXPECT_FALSE(mayInclude("session/station.h", "platform/virtual/virtual_clock.h"));
    EXPECT_FALSE(mayInclude("base/form.h", "platform/host/posix_files.h"));
}

TEST(Layers, LeavesSeeTheWireAndOnlyTheRobotSeesTheLinksInterface) {
    EXPECT_TRUE(mayInclude("gateway/gateway.h", "wire/framing.h"));
    EXPECT_TRUE(mayInclude("robot/direct_link.h", "robotlink/quorrin_sdk.h"));
    EXPECT_FALSE(mayInclude("robot/direct_link.h", "robotlink/motion_intake.h"));
    EXPECT_FALSE(mayInclude("gateway/gateway.h", "robotlink/quorrin_sdk.h"));
    EXPECT_TRUE(mayInclude("client/remote_link.h", "platform/calls.h"));
    EXPECT_FALSE(mayInclude("client/remote_link.h", "remote/frame_codec.h"));
    EXPECT_FALSE(mayInclude("client/remote_link.h", "session/station.h"));
    EXPECT_FALSE(mayInclude("robot/body.h", "gateway/gateway.h"));
}

TEST(Layers, TheClientsWindowSharesTheLookAndNothingElseOfTheStation) {
    EXPECT_TRUE(mayInclude("client/window/remote_window.h", "client/client_face.h"));
    EXPECT_TRUE(mayInclude("client/window/remote_window.h", "desktop/theme/theme.h"));
    EXPECT_TRUE(mayInclude("client/window/remote_window.h", "desktop/tiles/glance_tile.h"));
    EXPECT_FALSE(mayInclude("client/window/remote_window.h", "desktop/widgets/command.h"));
    EXPECT_FALSE(mayInclude("client/window/remote_window.h", "console/glance.h"));
    EXPECT_FALSE(mayInclude("client/client_face.h", "client/window/remote_window.h"));
    EXPECT_FALSE(mayInclude("client/client_face.h", "desktop/theme/theme.h"));
}

TEST(Layers, TheSharedLookKnowsNothingOfTheStation) {
    EXPECT_TRUE(mayInclude("desktop/forms/main_window.h", "desktop/tiles/glance_tile.h"));
    EXPECT_TRUE(mayInclude("desktop/tiles/glance_tile.h", "desktop/theme/theme.h"));
    EXPECT_TRUE(mayInclude("desktop/theme/theme.h", "base/colour_mix.h"));
    EXPECT_FALSE(mayInclude("desktop/theme/theme.h", "desktop/widgets/lamp.h"));
    EXPECT_FALSE(mayInclude("desktop/tiles/glance_tile.h", "console/glance.h"));
    EXPECT_FALSE(mayInclude("session/station.h", "desktop/theme/theme.h"));
}

TEST(Layers, SiblingsOfThePortsKnowPortsAndBase) {
    EXPECT_TRUE(mayInclude("platform/virtual/virtual_clock.h", "platform/clock.h"));
    EXPECT_TRUE(mayInclude("platform/host/posix_files.h", "base/form.h"));
    EXPECT_FALSE(mayInclude("platform/qt/sockets.h", "platform/virtual/virtual_clock.h"));
    EXPECT_FALSE(mayInclude("platform/host/posix_files.h", "session/record/path_values.h"));
}

TEST(Layers, NothingIncludesAppsAndReplayStandsAboveTheSession) {
    EXPECT_FALSE(mayInclude("replay/script.h", "apps/main.h"));
    EXPECT_TRUE(mayInclude("apps/quorrin_replay.cpp", "replay/script.h"));
    EXPECT_TRUE(mayInclude("replay/run.h", "session/station.h"));
    EXPECT_TRUE(mayInclude("replay/run.h", "robot/direct_link.h"));
    EXPECT_FALSE(mayInclude("session/station.h", "replay/run.h"));
    EXPECT_FALSE(mayInclude("replay/run.h", "platform/qt/sockets.h"));
}

TEST(Layers, EveryIncludeUnderSrcGoesDownwards) {
    std::set<std::string> ours;
    for (const auto& file : projectFiles("src", {".h"})) ours.insert(file.substr(4));
    ASSERT_GT(ours.size(), 30U);
    int checked = 0;
    for (const auto& file : projectFiles("src", {".h", ".cpp"})) {
        for (const Include& include : includesOf(readText(file))) {
            if (ours.count(include.path) == 0) continue;
            ++checked;
            EXPECT_TRUE(mayInclude(file.substr(4), include.path))
                << file << " line " << include.line << " includes " << include.path;
        }
    }
    EXPECT_GT(checked, 50);
}

TEST(Layers, EveryQuotedIncludeIsRelativeToSrcOrGenerated) {
    std::set<std::string> ours;
    for (const auto& file : projectFiles("src", {".h"})) ours.insert(file.substr(4));
    for (const auto& file : projectFiles("src", {".h", ".cpp"})) {
        for (const Include& include : includesOf(readText(file))) {
            if (include.system || endsWith(include.path, ".pb.h")) continue;
            EXPECT_EQ(ours.count(include.path), 1U)
                << file << " line " << include.line << " includes \"" << include.path << "\"";
        }
    }
}

}  // namespace
}  // namespace quorrin::tree
