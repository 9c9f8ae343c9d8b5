#include "platform/virtual/scripted_programs.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

using testing::ElementsAre;

constexpr const char* kMotionTitle = "Quorrin Gateway_MotionControl";
constexpr const char* kMultimediaTitle = "Quorrin Gateway_Multimedia";

struct Log {
    std::vector<std::string> lines;
    explicit Log(ScriptedPrograms& programs) {
        programs.onStart = [this](const std::string& name) { lines.push_back("start " + name); };
        programs.onClose = [this](const std::string& title, bool found) {
            lines.push_back((found ? "close " : "no ") + title);
        };
    }
};

TEST(ScriptedPrograms, AStartedGatewayHasItsWindowAtOnce) {
    ScriptedPrograms programs;
    programs.start("/opt/quorrin/bin/QuorrinGatewaymot");
    const auto window = programs.findWindow(kMotionTitle);
    EXPECT_NE(window, 0);
    EXPECT_TRUE(programs.isWindow(window));
    EXPECT_EQ(programs.findWindow(kMultimediaTitle), 0);
}

TEST(ScriptedPrograms, AGatewayToldToCloseLosesItsWindow) {
    ScriptedPrograms programs;
    programs.start("QuorrinGatewayTI");
    const auto window = programs.findWindow(kMultimediaTitle);
    programs.postClose(window);
    EXPECT_FALSE(programs.isWindow(window));
    EXPECT_EQ(programs.findWindow(kMultimediaTitle), 0);
}

TEST(ScriptedPrograms, TheHooksTellEachStartAndEachSearchOnce) {
    ScriptedPrograms programs;
    const Log log(programs);
    programs.findWindow(kMotionTitle);
    programs.start("/x/QuorrinGatewaymot.exe");
    programs.postClose(programs.findWindow(kMotionTitle));
    EXPECT_THAT(log.lines, ElementsAre("no Quorrin Gateway_MotionControl", "start QuorrinGatewaymot",
                                       "close Quorrin Gateway_MotionControl"));
}

TEST(ScriptedPrograms, ASecondStartOfARunningGatewayKeepsItsWindow) {
    ScriptedPrograms programs;
    programs.start("QuorrinGatewaymot");
    const auto window = programs.findWindow(kMotionTitle);
    programs.start("QuorrinGatewaymot");
    EXPECT_EQ(programs.findWindow(kMotionTitle), window);
}

TEST(ScriptedPrograms, AProgramThatFailsToStartIsToldAndHasNoWindow) {
    ScriptedPrograms programs;
    const Log log(programs);
    programs.failStart("QuorrinGatewaymot");
    programs.start("QuorrinGatewaymot");
    EXPECT_FALSE(programs.hasWindow(kMotionTitle));
    EXPECT_THAT(log.lines, ElementsAre("start QuorrinGatewaymot"));
}

TEST(ScriptedPrograms, AStaleWindowIsFoundButIsNoWindowAnyMore) {
    ScriptedPrograms programs;
    programs.start("QuorrinGatewaymot");
    programs.setWindowsStale(true);
    const auto window = programs.findWindow(kMotionTitle);
    EXPECT_NE(window, 0);
    EXPECT_FALSE(programs.isWindow(window));
}

TEST(ScriptedPrograms, AGatewayThatDiesLosesItsWindowSilently) {
    ScriptedPrograms programs;
    const Log log(programs);
    programs.start("QuorrinGatewaymot");
    programs.loseWindow(kMotionTitle);
    EXPECT_FALSE(programs.hasWindow(kMotionTitle));
    EXPECT_THAT(log.lines, ElementsAre("start QuorrinGatewaymot"));
}

TEST(ScriptedPrograms, OtherProgramsHaveNoWindowUnlessGivenOne) {
    ScriptedPrograms programs;
    programs.start("/bin/other");
    programs.addTitle("third", "Third Window");
    programs.start("/bin/third");
    EXPECT_TRUE(programs.hasWindow("Third Window"));
    EXPECT_EQ(programs.findWindow("other"), 0);
}

}  // namespace
}  // namespace quorrin
