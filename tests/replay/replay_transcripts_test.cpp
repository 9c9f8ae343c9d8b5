// Whole replays, byte for byte.
#include <gmock/gmock.h>

#include "support/load_transcript.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

constexpr const char* kFirstPowerWrite =
    "{\"t\": 1100, \"link\": \"robotTI\", \"op\": \"WritePowerByte\", \"args\": [63]}\n";

TEST(ReplayTranscripts, AnEmptyScriptLoadsTheMainFormAndEnds) {
    const ScriptOutcome outcome = runScript("# nothing happens\n\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_EQ(outcome.output, loadTranscript());
}

TEST(ReplayTranscripts, TheFirstTickAfterTheLoadWritesThePowerByte) {
    EXPECT_EQ(runScript("{\"t\": 1100, \"answer\": \"no\"}\n").output, loadTranscript() + kFirstPowerWrite);
    EXPECT_EQ(runScript("{\"t\": 1099, \"answer\": \"no\"}\n").output, loadTranscript());
}

TEST(ReplayTranscripts, TheLoginHandsOverAndTheExitKeyEndsTheStation) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 0, \"login\": true}\n"
        "{\"t\": 150, \"focus\": \"frmLogin.txt_ip(3)\"}\n"
        "{\"t\": 160, \"set\": \"frmLogin.txt_ip(3)\", \"to\": \"9\"}\n"
        "{\"t\": 300, \"click\": \"frmLogin.cmdOK\"}\n"
        "{\"t\": 300, \"watch\": [\"robotIp\", \"robotPort\"], \"every\": 5000}\n"
        "{\"t\": 1350, \"click\": \"cmdExit\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_EQ(outcome.output,
              "{\"t\": 300, \"close\": \"Quorrin Gateway_MotionControl\", \"found\": false}\n"
              "{\"t\": 300, \"close\": \"Quorrin Gateway_Multimedia\", \"found\": false}\n" +
                  loadTranscript(300) +
                  "{\"t\": 1300, \"state\": {\"robotIp\": \"127.127.0.9\", \"robotPort\": \"10001\"}}\n"
                  "{\"t\": 1350, \"link\": \"robotTI\", \"op\": \"StopSoundPlayback\", \"args\": []}\n" +
                  listenersShut(1350) +
                  "{\"t\": 2350, \"close\": \"Quorrin Gateway_MotionControl\", \"found\": false}\n"
                  "{\"t\": 2350, \"close\": \"Quorrin Gateway_Multimedia\", \"found\": true}\n"
                  "{\"t\": 2350, \"ended\": true}\n");
}

TEST(ReplayTranscripts, CancellingTheLoginEndsTheRun) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 0, \"login\": true}\n"
        "{\"t\": 5, \"click\": \"frmLogin.cmdCancel\"}\n"
        "{\"t\": 50, \"click\": \"no control\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_EQ(outcome.output, "{\"t\": 5, \"ended\": true}\n");
}

TEST(ReplayTranscripts, AProgramErrorEndsTheRunAndNothingIsPrintedAfterIt) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1100, \"frame\": \"MotorFrame\", \"EncoderSpeedLeft\": -1, \"DriveCurrentLeft\": 100}\n"
        "{\"t\": 3000, \"click\": \"cmdStart\"}\n"
        "{\"t\": 4000, \"click\": \"no control\"}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::programError);
    EXPECT_EQ(outcome.output,
              loadTranscript() + kFirstPowerWrite +
                  "{\"t\": 3000, \"link\": \"myRobot\", \"op\": \"SuspendDrive\", \"args\": [0]}\n"
                  "{\"t\": 3000, \"link\": \"myRobot\", \"op\": \"SuspendDrive\", \"args\": [1]}\n"
                  "{\"t\": 3000, \"link\": \"myRobot\", \"op\": \"SuspendDrive\", \"args\": [0]}\n"
                  "{\"t\": 3000, \"link\": \"myRobot\", \"op\": \"SuspendDrive\", \"args\": [1]}\n"
                  "{\"t\": 3000, \"start\": \"QuorrinGatewaymot\"}\n"
                  "{\"t\": 3000, \"fatal\": \"floating-point fault: stuck ratio\"}\n");
}

TEST(ReplayTranscripts, AMessageBoxIsAnsweredAtOnce) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 0, \"login\": true}\n"
        "{\"t\": 50, \"set\": \"frmLogin.txt_ip(2)\", \"to\": \"300\"}\n"
        "{\"t\": 199, \"answer\": \"ok\"}\n");
    EXPECT_EQ(outcome.output,
              "{\"t\": 100, \"box\": \"No valid IP-address\", \"title\": \"\", \"answer\": \"ok\"}\n");
}

TEST(ReplayTranscripts, TheSameScriptGivesTheSameBytes) {
    std::string script =
        "{\"t\": 0, \"watch\": [\"robotX\", \"certaintyGrid\", \"txtRobotStatus\"], \"every\": 70}\n";
    for (int t = 1000; t < 15000; t += 100) {
        const std::string time = "{\"t\": " + std::to_string(t) + ", \"frame\": ";
        script += time +
                  "\"PowerFrame\", \"PowerRefAdc\": 2400, \"Battery1Adc\": " + std::to_string(3000 + t % 13) +
                  "}\n";
        script += time + "\"SensorFrame\", \"IrAdc0\": " + std::to_string(300 + t % 700) +
                  ", \"SonarCm\": [88, 120, 90, 200]}\n";
        script += time + "\"MotorFrame\", \"EncoderPositionLeft\": " + std::to_string(30000 - t / 2) +
                  ", \"EncoderPositionRight\": " + std::to_string(t / 2) + "}\n";
    }
    const ScriptOutcome first = runScript(script);
    EXPECT_GT(first.lines().size(), 200U);
    EXPECT_FALSE(first.linesWith("SetDriveVelocities").empty());
    EXPECT_EQ(first.output, runScript(script).output);
}

}  // namespace
}  // namespace quorrin
