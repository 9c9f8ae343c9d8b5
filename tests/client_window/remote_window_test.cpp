// The client's window: each binding once, what it says, and its end.
#include "client/window/remote_window.h"

#include <gtest/gtest.h>

#include "client_window/remote_window_bench.h"

namespace quorrin {
namespace {

using RemoteWindowTest = RemoteWindowBench;

TEST_F(RemoteWindowTest, BeginsWithTheAddressAndEnterConnects) {
    bench.load();
    open();
    EXPECT_EQ(find<QLineEdit>("host").text(), QStringLiteral("station"));
    ASSERT_TRUE(find("host").hasFocus());
    key(Qt::Key_Return);
    after(2000);
    EXPECT_TRUE(bench.desk.link().allConnected());
}

TEST_F(RemoteWindowTest, TheAddressThatWasTypedIsCalled) {
    bench.load();
    open();
    find<QLineEdit>("host").setText(QStringLiteral(" robot.local "));
    click("connect");
    EXPECT_EQ(bench.desk.link().host(), "robot.local");
    EXPECT_TRUE(bench.desk.started());
}

TEST_F(RemoteWindowTest, ConnectedTheKeysAreTheRobots) {
    openConnected();
    EXPECT_TRUE(find("drive").hasFocus());
    EXPECT_FALSE(find("host").isEnabled());
}

TEST_F(RemoteWindowTest, TheSameButtonDisconnectsAndItsKeyIsTheSame) {
    openConnected();
    EXPECT_EQ(find<QPushButton>("connect").text(), QStringLiteral("Disconnect"));
    key(Qt::Key_F2);
    after(10);
    EXPECT_FALSE(bench.desk.started());
    EXPECT_EQ(find<QPushButton>("connect").text(), QStringLiteral("Connect"));
    key(Qt::Key_F2);
    EXPECT_TRUE(bench.desk.started());
}

TEST_F(RemoteWindowTest, WithoutAConnectionNothingCanBeDriven) {
    open();
    for (const char* name :
         {"mode", "release", "avoidance", "headAhead", "headUpDown", "headLeftRight", "mouth", "cap.Up"})
        EXPECT_FALSE(find(name).isEnabled()) << name;
}

TEST_F(RemoteWindowTest, ConnectedAllButTheReleaseCanBeUsed) {
    openConnected();
    for (const char* name :
         {"mode", "avoidance", "headAhead", "headUpDown", "headLeftRight", "mouth", "cap.Up"})
        EXPECT_TRUE(find(name).isEnabled()) << name;
    EXPECT_FALSE(find("release").isEnabled()) << "it does not hold the robot";
}

TEST_F(RemoteWindowTest, TheModeKeyIsTheStations) {
    openConnected();
    bench.values.robotMode = kModeWondering;
    key(Qt::Key_F5);
    EXPECT_TRUE(values().requestIdle);
}

TEST_F(RemoteWindowTest, LettingGoSendsNeutralAndGivesTheRobotBack) {
    openConnected();
    down(Qt::Key_Up);
    after(300);
    key(Qt::Key_F6);
    EXPECT_EQ(values().gasLevel, 10000);
    after(DriveSender::kClaimMs);
    EXPECT_FALSE(values().manualPanelActive);
}

TEST_F(RemoteWindowTest, ItSaysWhatLettingGoMeans) {
    openConnected();
    bench.modeBecomes("IDLE");
    down(Qt::Key_Up);
    bench.modeBecomes("JOY");
    after(0);
    EXPECT_EQ(find<QLabel>("releaseText").text(),
              QStringLiteral("The robot stops, and its motion link is closed (IDLE)."));
}

TEST_F(RemoteWindowTest, TheSwitchOfTheAvoidanceGoesOutWithACommand) {
    openConnected();
    ASSERT_TRUE(find<QCheckBox>("avoidance").isChecked());
    key(Qt::Key_F7);
    EXPECT_FALSE(values().caEnabled);
    key(Qt::Key_F7);
    EXPECT_TRUE(values().caEnabled);
}

TEST_F(RemoteWindowTest, SlidersMoveHeadAndMouth) {
    openConnected();
    find<QSlider>("headUpDown").setValue(3000);
    settle();
    EXPECT_EQ(values().headCmdUpDown, 3000);
    find<QSlider>("headLeftRight").setValue(1000);
    settle();
    EXPECT_EQ(values().headCmdLeftRight, 1000);
    find<QSlider>("mouth").setValue(2700);
    settle();
    EXPECT_EQ(values().mouthCmd, 2700);
}

TEST_F(RemoteWindowTest, TheHeadLooksAheadByItsKey) {
    openConnected();
    find<QSlider>("headUpDown").setValue(3000);
    settle();
    key(Qt::Key_C);
    EXPECT_EQ(values().headCmdUpDown, 2000);
    after(0);
    EXPECT_EQ(find<QSlider>("headUpDown").value(), 2000);
}

TEST_F(RemoteWindowTest, ASliderInTheHandIsNotMovedUnderIt) {
    openConnected();
    auto& slider = find<QSlider>("mouth");
    slider.setSliderDown(true);
    slider.setSliderPosition(2800);
    window->refresh();
    EXPECT_EQ(slider.sliderPosition(), 2800);
}

TEST_F(RemoteWindowTest, TilesAndConnectionsShowTheFace) {
    openConnected();
    bench.modeBecomes("wondering");
    after(0);
    const ClientFace face = bench.face();
    const Glance* const kTiles[] = {&face.mode,     &face.holder,  &face.person,
                                    &face.position, &face.linkAge, &face.roundTrip};
    for (std::size_t i = 0; i < std::size(kTiles); ++i)
        EXPECT_EQ(find<GlanceTile>("tile." + std::to_string(i)).glance().word, kTiles[i]->word);
    for (const RemoteChannel channel : kRemoteChannels)
        EXPECT_EQ(find<GlanceTile>("channel." + std::string(nameOf(channel))).glance().word, "connected");
}

TEST_F(RemoteWindowTest, TheLookChangesByItsKey) {
    open();
    ASSERT_FALSE(currentTheme().dark);
    key(Qt::Key_F8);
    EXPECT_TRUE(currentTheme().dark);
}

TEST_F(RemoteWindowTest, ClosingSendsNeutralThenClosAndEndsOnceAllIsOut) {
    openConnected();
    down(Qt::Key_Up);
    after(300);
    window->close();
    EXPECT_EQ(ended, 0);
    settle();
    bench.run(DriveSender::kClaimMs + ClientDesk::kEndMs);
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(values().gasLevel, 10000);
    EXPECT_FALSE(values().manualPanelActive);
    EXPECT_EQ(bench.gui.ConnectionList.count(), 0U);
}

TEST_F(RemoteWindowTest, ClosingWithoutAConnectionEnds) {
    open();
    window->close();
    settle();
    bench.run(50);
    EXPECT_EQ(ended, 1);
}

TEST_F(RemoteWindowTest, AStickThatIsPulledOutForgetsTheHeldKeysToo) {
    bench.clientSticks.attach();
    bench.run(StickWatch::kSearchMs);
    openConnected();
    down(Qt::Key_Up);
    bench.clientSticks.setPluggedIn(false);
    after(10);
    EXPECT_EQ(values().gasLevel, 10000);
    EXPECT_FALSE(find<KeyCap>("cap.Up").lit());
    down(Qt::Key_Left);
    EXPECT_EQ(values().gasLevel, 10000);
    EXPECT_LT(values().steeringLevel, 5000);
}

}  // namespace
}  // namespace quorrin
