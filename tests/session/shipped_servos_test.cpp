// The neutral positions that the installation ships: every look command stays inside the servos' range, and
// the eyes pass over to their stops without a jump.
#include <gtest/gtest.h>

#include <cstdlib>

#include "base/general_functions.h"
#include "base/number_text.h"
#include "platform/host/posix_files.h"
#include "robotlink/head_update.h"
#include "support/fake_link.h"

namespace quorrin {
namespace {

class ShippedServos : public ::testing::Test {
  protected:
    ShippedServos() {
        neutral = {shipped("servo1"), shipped("servo2"), shipped("servo3"), shipped("servo5"),
                   shipped("servo6")};
        servo.headCmdUpDown = servo.headCmdLeftRight = 2000;
        servo.mouthCmd = neutral.cMouthUpDown;
    }
    Integer shipped(const std::string& section) {
        const std::string text = ReadIni(section, "init", QUORRIN_SOURCE_DIR "/share/Quorrinsdk.ini", files);
        EXPECT_NE(text, "") << section;
        return numberToInteger(text);
    }
    // Looks there, and tells the servo outputs 1 to 6.
    std::array<int, 6> look(int upDown, int leftRight) {
        servo.headCmdUpDown = upDown;
        servo.headCmdLeftRight = leftRight;
        updateHead(servo, neutral, robot);
        return {servo.servoOut1, servo.servoOut2, servo.servoOut3,
                servo.servoOut4, servo.servoOut5, servo.servoOut6};
    }

    PosixFiles files;
    FakeLink robot;
    ServoValues servo;
    NeutralServoValues neutral;
};

TEST_F(ShippedServos, NoLookCommandLeavesTheServosRange) {
    for (int command = 1; command <= 4000; ++command) {
        const auto outputs = look(std::min(command, 3500), command);
        for (const int channel : {0, 1, 2, 4, 5}) {
            const int value = outputs[static_cast<std::size_t>(channel)];
            ASSERT_GE(value, 0) << "channel " << channel + 1 << " at " << command;
            ASSERT_LE(value, 4900) << "channel " << channel + 1 << " at " << command;
        }
    }
}

TEST_F(ShippedServos, EyesAndHeadMoveByOneUnitAStepOfTheCommand) {
    for (int command = 2; command <= 4000; ++command) {
        const auto before = look(std::min(command - 1, 3500), command - 1);
        const auto after = look(std::min(command, 3500), command);
        for (const std::size_t channel : {0U, 1U, 4U, 5U}) {
            ASSERT_LE(std::abs(after[channel] - before[channel]), 1)
                << "channel " << channel + 1 << " at " << command;
        }
    }
}

}  // namespace
}  // namespace quorrin
