#include "replay/scripted_link.h"

#include <gtest/gtest.h>

#include "platform/virtual/memory_files.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

class ScriptedLinkTest : public testing::Test {
  protected:
    std::string printed() const { return output.text(); }

    VirtualClock clock;
    Output output{clock, nullptr};
    MemoryFiles files;
    ScriptedLink myRobot{LinkName::myRobot, output, files, "/home/u/app"};
    ScriptedLink robotTI{LinkName::robotTI, output, files, "/home/u/app"};
};

TEST_F(ScriptedLinkTest, PrintsAnOperationWithItsArgumentsInOrder) {
    clock.runUntil(1200);
    myRobot.SetDriveVelocities({-120, 120, -32768, -32768, -32768, -32768});
    EXPECT_EQ(printed(),
              "{\"t\": 1200, \"link\": \"myRobot\", \"op\": \"SetDriveVelocities\", "
              "\"args\": [-120, 120, -32768, -32768, -32768, -32768]}\n");
}

TEST_F(ScriptedLinkTest, PrintsEveryOperationUnderItsOwnName) {
    myRobot.BindGateway("motcom");
    myRobot.SetDriveControlMode(1, 2);
    myRobot.MoveDrivesTimed({1, 2, 3, 4, 5, 6}, 700);
    myRobot.MoveServosTimed({1, 2, 3, 4, 5, 6}, 500);
    myRobot.SuspendDrive(0);
    myRobot.SelectLandmarks(1, 2, 3, 4);
    robotTI.WritePowerByte(63);
    robotTI.RequestImage();
    robotTI.StartSoundCapture(1);
    robotTI.StopSoundCapture();
    robotTI.StopSoundPlayback();
    EXPECT_EQ(
        printed(),
        "{\"t\": 0, \"link\": \"myRobot\", \"op\": \"BindGateway\", \"args\": [\"motcom\"]}\n"
        "{\"t\": 0, \"link\": \"myRobot\", \"op\": \"SetDriveControlMode\", \"args\": [1, 2]}\n"
        "{\"t\": 0, \"link\": \"myRobot\", \"op\": \"MoveDrivesTimed\", \"args\": [1, 2, 3, 4, 5, 6, 700]}\n"
        "{\"t\": 0, \"link\": \"myRobot\", \"op\": \"MoveServosTimed\", \"args\": [1, 2, 3, 4, 5, 6, 500]}\n"
        "{\"t\": 0, \"link\": \"myRobot\", \"op\": \"SuspendDrive\", \"args\": [0]}\n"
        "{\"t\": 0, \"link\": \"myRobot\", \"op\": \"SelectLandmarks\", \"args\": [1, 2, 3, 4]}\n"
        "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"WritePowerByte\", \"args\": [63]}\n"
        "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"RequestImage\", \"args\": []}\n"
        "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"StartSoundCapture\", \"args\": [1]}\n"
        "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"StopSoundCapture\", \"args\": []}\n"
        "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"StopSoundPlayback\", \"args\": []}\n");
}

TEST_F(ScriptedLinkTest, PathsUnderTheApplicationFolderPrintRelativeToIt) {
    myRobot.ShowLcdBitmap("/home/u/app/quorrin128.bmp");
    robotTI.PlaySoundFile("/home/u/app/tempVoice/VtoR0.wavEOF");
    robotTI.PlaySoundFile("/home/u/app\\sounds\\one.wav");
    robotTI.PlaySoundFile("/home/u/apple/other.wav");
    EXPECT_EQ(printed(),
              "{\"t\": 0, \"link\": \"myRobot\", \"op\": \"ShowLcdBitmap\", \"args\": [\"quorrin128.bmp\"]}\n"
              "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"PlaySoundFile\", \"args\": "
              "[\"tempVoice/VtoR0.wavEOF\"]}\n"
              "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"PlaySoundFile\", \"args\": [\"sounds/one.wav\"]}\n"
              "{\"t\": 0, \"link\": \"robotTI\", \"op\": \"PlaySoundFile\", \"args\": "
              "[\"/home/u/apple/other.wav\"]}\n");
}

TEST_F(ScriptedLinkTest, AFrameSetsOnlyThePropertiesThatItNames) {
    FrameLine frame;
    frame.set(findFrameProperty("IrAdc0"), 310);
    frame.set(findFrameProperty("SonarCm"), 0);
    frame.sonarCm = {1, 2, 3, 4};
    myRobot.setProperties(frame);
    FrameLine second;
    second.set(findFrameProperty("IrAdcHead"), 9);
    myRobot.setProperties(second);
    EXPECT_EQ(myRobot.IrAdc0, Integer(310));
    EXPECT_EQ(myRobot.IrAdcHead, Integer(9));
    EXPECT_EQ(myRobot.SonarCm(3), Integer(4));
    EXPECT_EQ(myRobot.HumanAdc1, Integer(0));
}

TEST_F(ScriptedLinkTest, TheFramesBitmapIsWhatIsSaved) {
    files.createFolder("/home/u/app");
    robotTI.SaveFrameToFile("/home/u/app/tempImage.bmp");
    EXPECT_FALSE(files.fileExists("/home/u/app/tempImage.bmp"));
    robotTI.setBitmap("BM");
    robotTI.SaveFrameToFile("/home/u/app/tempImage.bmp");
    EXPECT_EQ(files.read("/home/u/app/tempImage.bmp"), "BM");
}

TEST_F(ScriptedLinkTest, ASoundBufferHasALengthAndANewHandle) {
    robotTI.setSound("abc");
    const Long first = robotTI.SoundBufferAddress;
    EXPECT_EQ(robotTI.SoundBufferLength, Long(3));
    robotTI.setSound("de");
    EXPECT_NE(robotTI.SoundBufferAddress, first);
    EXPECT_EQ(robotTI.soundBytes(), "de");
}

}  // namespace
}  // namespace quorrin
