#include "session/end_task.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/scripted_programs.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

constexpr const char* kTitle = "Quorrin Gateway_Multimedia";

struct ClosingAGateway : testing::Test {
    VirtualClock clock;
    PathValues paths;
    ScriptedPrograms programs;
    ScriptedBoxes boxes;
    std::vector<std::string> shown;

    void SetUp() override {
        boxes.onShow = [this](const std::string& text, const std::string&, BoxAnswer) {
            shown.push_back(text);
        };
    }
    bool close() { return EndTask(kTitle, paths, programs, boxes, clock); }
};

TEST_F(ClosingAGateway, TellsItsWindowToCloseAndReturnsTrue) {
    programs.start("/programs/QuorrinGatewayTI");
    EXPECT_TRUE(close());
    EXPECT_FALSE(programs.hasWindow(kTitle));
    EXPECT_THAT(shown, testing::IsEmpty());
}

TEST_F(ClosingAGateway, PassesTheTitleThroughTheRecord) {
    close();
    EXPECT_EQ(paths.gatewayWindowTitle, kTitle);
}

TEST_F(ClosingAGateway, DoesNothingSilentlyWhenItIsNotRunning) {
    EXPECT_FALSE(close());
    EXPECT_THAT(shown, testing::IsEmpty());
}

TEST_F(ClosingAGateway, TellsWhenTheWindowWentAwayMeanwhile) {
    programs.start("/programs/QuorrinGatewayTI");
    programs.setWindowsStale(true);
    EXPECT_FALSE(close());
    EXPECT_THAT(shown, testing::ElementsAre("EndTask: cannot terminate Quorrin Gateway_Multimedia task"));
}

TEST_F(ClosingAGateway, RunsPendingEventsAfterTheCloseMessage) {
    programs.start("/programs/QuorrinGatewayTI");
    bool windowAtThatTime = true;
    clock.post([&] { windowAtThatTime = programs.hasWindow(kTitle); });
    close();
    EXPECT_FALSE(windowAtThatTime);
}

TEST_F(ClosingAGateway, RunsNoEventsWhenThereIsNothingToClose) {
    bool ran = false;
    clock.post([&] { ran = true; });
    close();
    EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace quorrin
