#include "console/frm_gui.h"

#include <gtest/gtest.h>

#include "console/frm_control_panel.h"
#include "console/frm_login.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

// Two controls of one name would throw in the constructor.
TEST(Forms, EveryControlHasANameOfItsOwn) {
    VirtualClock clock;
    EXPECT_NO_THROW(frmGUI gui(clock));
    EXPECT_NO_THROW(frmLogin login(clock));
    EXPECT_NO_THROW(frmControlPanel panel(clock));
}

TEST(Forms, ControlsAreFoundByName) {
    VirtualClock clock;
    const frmGUI gui(clock);
    for (const char* name :
         {"cmdChEn", "txtTh4", "IRT(1)", "IRT(7)", "SonarT(0)", "SonarT(3)", "shpBatteryStatus(6)",
          "chkRemote", "ConnectionList", "tmrImage", "cobAvailDate", "tbaMusic.Play", "HScroll1"})
        EXPECT_NE(gui.find(name), nullptr) << name;
    EXPECT_EQ(gui.find("IRT(8)"), nullptr);
}

TEST(Forms, NoTimerOfTheMainFormRunsBeforeItLoads) {
    VirtualClock clock;
    const frmGUI gui(clock);
    for (const Control* control : gui.controls()) {
        const auto* timer = dynamic_cast<const Timer*>(control);
        if (timer != nullptr) {
            EXPECT_FALSE(timer->running()) << timer->name();
        }
    }
}

}  // namespace
}  // namespace quorrin
