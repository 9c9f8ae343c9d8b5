// The station with windows on real clocks, links and gateways, against the simulated robot as a program.
#include "windows/real_windows.h"

namespace quorrin {
namespace {

TEST_F(RealWindows, TheOperatorLogsInByKeyboardSeesTheRobotWanderAndCloses) {
    RealStation real;
    ASSERT_EQ(real.missingFolder, "");
    ASSERT_TRUE(real.claim());
    real.firstStart();
    bool wandered = false;
    bool closed = false;
    RealSession session(real);
    const Station& station = session.station;
    const auto hand = [&] {
        if (closed || station.gui.txtRobotStatus.text() != "wondering") return;
        wandered = station.values.motLinkUp && station.values.tiLinkUp;
        closed = true;
        window("frmGUI")->close();
    };
    EXPECT_THROW(session.run(hand), ProgramEnd);
    EXPECT_TRUE(wandered);
    EXPECT_TRUE(eventually(
        [&] {
            return windowHolder(real.host.run, "Quorrin Gateway_MotionControl") == 0 &&
                   windowHolder(real.host.run, "Quorrin Gateway_Multimedia") == 0;
        },
        5))
        << "a gateway was left behind";
}

}  // namespace
}  // namespace quorrin
