// A program error of the station with windows, while the robot drives: somebody at the keyboard, whose robot
// has a stored servo value that is out of all bounds, so that looking up is too much for a number.
#include <algorithm>
#include <sstream>

#include "processes/process_fixture.h"
#include "support/vnc_keyboard.h"

namespace quorrin {
namespace {

struct DesktopCrash : ProcessTest {
    DesktopCrash() {
        files.createFolder(folder.path() + "/d/quorrin");
        files.writeWhole(folder.path() + "/d/quorrin/Quorrinsdk.ini", "[servo5]\ninit=32767\n");
    }
    // A robot that writes down what its drives are told.
    std::unique_ptr<Process> tellingRobot() {
        return run({"python3", "-c",
                    "import sys, threading\n"
                    "sys.path.insert(0, '" +
                        source +
                        "/examples')\n"
                        "sys.dont_write_bytecode = True\n"
                        "import robot as r\n"
                        "class Told(r.Robot):\n"
                        "    def obey(self, kind, body):\n"
                        "        if kind == r.SUSPEND_DRIVE: print('suspend', body.get(1, 0), flush=True)\n"
                        "        if kind == r.SET_DRIVE_VELOCITIES: print('drive', body.get(1, 0), "
                        "flush=True)\n"
                        "        super().obey(kind, body)\n"
                        "told, ti = Told(), ('127.127.0.1', 10002)\n"
                        "threading.Thread(target=r.serve, args=(told, r.TI, *ti), daemon=True).start()\n"
                        "r.serve(told, r.MOT, '127.127.0.1', 10001)\n"},
                   "robot.out");
    }
    std::unique_ptr<Process> windows() {
        // Qt's platform keeps what it made for its screen.
        files.writeWhole(folder.path() + "/kept", "leak:libqvnc\n");
        return run({"env", "QT_QPA_PLATFORM=vnc:size=1400x900",
                    "LSAN_OPTIONS=print_suppressions=0:suppressions=" + folder.path() + "/kept",
                    bin + "/quorrin-station"},
                   "windows.out");
    }
    std::string recording() const { return fileText(folder.path() + "/s/quorrin/flight-1.jsonl"); }
    std::vector<std::string> told() const {
        std::vector<std::string> lines;
        std::istringstream text(robot->output());
        for (std::string line; std::getline(text, line);) lines.push_back(line);
        return lines;
    }
    // The robot's drives have been told to turn last.
    bool drives() const {
        const auto lines = told();
        return !lines.empty() && lines.back().rfind("drive", 0) == 0 && lines.back() != "drive 0";
    }
    bool stands() const { return told().back() == "drive 0"; }

    std::unique_ptr<Process> robot;
};

TEST_F(DesktopCrash, SuspendsTheDrivesBeforeItTellsAndEndsWith3OnceItIsRead) {
    robot = tellingRobot();
    const auto theStation = windows();
    VncKeyboard keyboard;
    ASSERT_TRUE(keyboard.connects(15)) << theStation->output();
    ASSERT_TRUE(eventually([&] { return recording().find("\"login\"") != std::string::npos; }, 20));
    // From box to box, and OK.
    for (int i = 0; i < 4; ++i) keyboard.press(VncKeyboard::enter);
    ASSERT_TRUE(eventually([&] { return drives(); }, 40)) << theStation->output() << robot->output();
    keyboard.press(VncKeyboard::f4);
    ASSERT_TRUE(eventually([&] { return stands(); }, 10)) << "the panel takes the robot without gas";
    keyboard.press(VncKeyboard::up);
    keyboard.press(VncKeyboard::up);
    ASSERT_TRUE(eventually([&] { return drives(); }, 10)) << robot->output();

    keyboard.press(VncKeyboard::home);
    ASSERT_TRUE(theStation->says("quorrin-station: program error in tmrControl_Timer: value 32867", 10))
        << theStation->output();
    // The station stands at its box; nothing comes behind the stop of both drives.
    const auto suspended = [&] {
        const auto lines = told();
        return lines.size() > 2 && lines.back() == "suspend 1" && lines[lines.size() - 2] == "suspend 0";
    };
    EXPECT_TRUE(eventually(suspended, 5)) << robot->output();
    EXPECT_TRUE(theStation->running());

    keyboard.press(VncKeyboard::enter);
    EXPECT_EQ(theStation->ends(15), 3) << theStation->output();
    EXPECT_TRUE(suspended()) << robot->output();
    EXPECT_TRUE(gatewaysGone(5));
}

}  // namespace
}  // namespace quorrin
