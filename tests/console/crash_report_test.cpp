#include "console/crash_report.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/virtual/scripted_boxes.h"
#include "support/fake_link.h"

namespace quorrin {
namespace {

TEST(CrashReport, SuspendsTheDrivesThenWritesTheRecordingAndThenTells) {
    std::vector<std::string> log;
    FakeLink robot(log, "");
    ScriptedBoxes boxes;
    boxes.onShow = [&](const std::string&, const std::string&, BoxAnswer) { log.push_back("box"); };
    reportCrash(
        robot, [&] { log.push_back("written"); }, boxes, "RunTimer_Timer", "overflow");

    std::vector<std::string> stop;
    FakeLink other(stop, "");
    stopDrives(other);
    ASSERT_FALSE(stop.empty());
    stop.push_back("written");
    stop.push_back("box");
    EXPECT_EQ(log, stop);
}

TEST(CrashReport, SaysWhatAndWhere) {
    EXPECT_EQ(
        programErrorText("GPS EstTimer", "overflow"),
        "Program error in GPS EstTimer:\noverflow\n\nThe drives have been suspended. The station ends.");
}

TEST(CrashReport, LeavesOutAPlaceThatIsNotKnown) {
    EXPECT_EQ(programErrorText("", "overflow").substr(0, 24), "Program error:\noverflow\n");
}

TEST(CrashReport, SaysTheSameOnOneLineForATerminal) {
    EXPECT_EQ(programErrorLine("GPS EstTimer", "overflow"), "program error in GPS EstTimer: overflow");
    EXPECT_EQ(programErrorLine("", "overflow"), "program error: overflow");
}

}  // namespace
}  // namespace quorrin
