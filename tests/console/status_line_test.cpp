#include "console/status_line.h"

#include <gtest/gtest.h>

#include <memory>

#include "session/sensor_tables.h"

namespace quorrin {
namespace {

struct StatusLineTest : ::testing::Test {
    StatusLineTest() { fillSensorTables(*values); }
    std::string field(const std::string& name) const {
        const std::string line = " " + statusLine(*values, "wondering", false, 12.34);
        const auto start = line.find(" " + name + "=") + name.size() + 2;
        return line.substr(start, line.find(' ', start) - start);
    }
    std::unique_ptr<PublicValues> values = std::make_unique<PublicValues>();
};

TEST_F(StatusLineTest, TellsEverythingInItsOrder) {
    values->motLinkUp = true;
    values->robotX = 1.23456;
    values->robotTheta = -0.5;
    values->wheelCmdLeft = -318.4;
    values->wheelCmdRight = 318.4;
    values->battery1Volts = 12.004;
    EXPECT_EQ(
        statusLine(*values, "JOY", true, 7.06),
        "t=7.1 mode=JOY mot=1 ti=0 x=1.235 y=0.000 theta=-0.500 front=- left=- right=- cmdL=-318 cmdR=318 "
        "bat1=12.00 bat2=0.00 dc=0.00 remote=1");
}

TEST_F(StatusLineTest, TellsBehindItAllWhyClientsCannotCall) {
    values->listenProblem = "port 7060 is in use";
    const std::string line = statusLine(*values, "JOY", false, 1);
    EXPECT_EQ(line.substr(line.find(" remote=")), " remote=0 (port 7060 is in use)");
}

TEST_F(StatusLineTest, GivesTheNearestRangeOfEachSide) {
    values->irRange = {0.9, 0.8, 0.7, 0.95, 0.6, 0.5, 0.4, 0.3, 0.3, 0.3};
    values->sonarRange = {0.35, 0.65, 0.45, 0.2, 0, 0};
    EXPECT_EQ(field("front"), "0.65");
    EXPECT_EQ(field("left"), "0.35");
    EXPECT_EQ(field("right"), "0.45");
}

TEST_F(StatusLineTest, PassesOverARangeThatWasNeverMeasured) {
    values->irRange[6] = 0.42;
    EXPECT_EQ(field("left"), "0.42");
    EXPECT_EQ(field("front"), "-");
}

}  // namespace
}  // namespace quorrin
