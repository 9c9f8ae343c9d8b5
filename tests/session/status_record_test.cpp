#include "session/status_record.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct StatusRecord : testing::Test {
    VirtualClock clock;
    frmGUI gui{clock};
    std::vector<std::string> sent;
    std::function<void(int, const std::string&)> send = [this](int element, const std::string& record) {
        sent.push_back(std::to_string(element) + ":" + record);
    };
    void ticks(int count) {
        for (int i = 0; i < count; ++i) stepStatusBroadcast(gui, send);
    }
};

TEST_F(StatusRecord, StartsWithZerosAndTwoEmptyFields) {
    EXPECT_EQ(statusRecord(gui), "0,0,0,,,0");
}

TEST_F(StatusRecord, HoldsTheBoxesAsTheyRead) {
    gui.txtRobotCurrX.setText("1.5");
    gui.txtRobotCurrY.setText("here");
    gui.txtRobotCurrZ.setText("");
    gui.txtHumanLocation.setText("4");
    gui.txtRobotStatus.setText("wondering");
    EXPECT_EQ(statusRecord(gui), "1.5,here,,4,wondering,0");
}

TEST_F(StatusRecord, GoesOutEvery51stTick) {
    gui.ConnectionList.add("client", 1);
    gui.sensorClientConnected = true;
    ticks(50);
    EXPECT_THAT(sent, IsEmpty());
    ticks(1);
    EXPECT_THAT(sent, ElementsAre("1:0,0,0,,,0"));
    EXPECT_EQ(gui.statusBroadcastTicks, 0);
    ticks(50);
    EXPECT_EQ(sent.size(), 1U);
    ticks(1);
    EXPECT_EQ(sent.size(), 2U);
}

TEST_F(StatusRecord, GoesToOneElementForEachLineOfTheList) {
    gui.ConnectionList.add("first", 5);
    gui.ConnectionList.add("second", 9);
    gui.sensorClientConnected = true;
    ticks(51);
    EXPECT_THAT(sent, ElementsAre("1:0,0,0,,,0", "2:0,0,0,,,0"));
}

TEST_F(StatusRecord, StaysWithoutASensorClient) {
    gui.ConnectionList.add("client", 1);
    ticks(51);
    EXPECT_THAT(sent, IsEmpty());
    EXPECT_EQ(gui.statusBroadcastTicks, 0);
}

TEST_F(StatusRecord, AnEmptyListResetsTheCountAndSendsNothing) {
    gui.sensorClientConnected = true;
    ticks(51);
    EXPECT_THAT(sent, IsEmpty());
    EXPECT_EQ(gui.statusBroadcastTicks, 0);
}

TEST_F(StatusRecord, ACountAtItsLimitGoesBackToZero) {
    gui.statusBroadcastTicks = 32765;
    ticks(1);
    EXPECT_EQ(gui.statusBroadcastTicks, 0);
}

TEST_F(StatusRecord, ChangesAreCounted) {
    countChange(gui.txtChangeCount);
    EXPECT_EQ(gui.txtChangeCount.text(), "1");
    gui.txtChangeCount.setText("32764");
    countChange(gui.txtChangeCount);
    EXPECT_EQ(gui.txtChangeCount.text(), "32765");
}

TEST_F(StatusRecord, TheChangeCountGoesBackToZeroInsteadOf32766) {
    gui.txtChangeCount.setText("32765");
    countChange(gui.txtChangeCount);
    EXPECT_EQ(gui.txtChangeCount.text(), "0");
}

}  // namespace
}  // namespace quorrin
