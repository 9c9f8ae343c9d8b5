// The main form's controls of a running session: mode key, start and stop keys, status texts, and the
// engineering read-outs of the control tick.
//
// txtRobotStatus holds the mode text ("IDLE", "wondering", "JOY", "comm wrong"); lblTest is the cache of the
// power byte last written to the robot, and so starts as "0".
#pragma once

#include "base/controls.h"

namespace quorrin {

struct SessionControls {
    SessionControls(Form& form, Clock& clock)
        : cmdChEn(form, "cmdChEn"),
          cmdStart(form, "cmdStart", "START"),
          cmdStop(form, "cmdStop", "Stop"),
          Stoprobot(form, "Stoprobot", "Stop Robot"),
          cmdTOB(form, "cmdTOB", "TOB"),
          cmdEnCA(form, "cmdEnCA", "Enable"),
          cmdExit(form, "cmdExit", "Exit"),
          cmdShowControlPanel(form, "cmdShowControlPanel", "Show Control"),
          txtRobotStatus(form, "txtRobotStatus"),
          txtRobotP2PTask(form, "txtRobotP2PTask"),
          txtRobotCurrX(form, "txtRobotCurrX", "0"),
          txtRobotCurrY(form, "txtRobotCurrY", "0"),
          txtRobotCurrZ(form, "txtRobotCurrZ", "0"),
          txtChangeCount(form, "txtChangeCount", "0", Accepts::integer),
          lblCom(form, "lblCom"),
          lblTest(form, "lblTest", "0"),
          lblJoy(form, "lblJoy"),
          lblth1(form, "lblth1"),
          lblth2(form, "lblth2"),
          lblCa(form, "lblCa"),
          IRT(form, "IRT", 1),
          SonarT(form, "SonarT", 0),
          tmrServoControl(form, "tmrServoControl", clock, 0),
          tmrStartJoystick(form, "tmrStartJoystick", clock, 500) {}

    CommandButton cmdChEn;  // mode switch; pictures 1 "wondering", 2 "IDLE", 3 "JOY"
    CommandButton cmdStart;
    CommandButton cmdStop;
    CommandButton Stoprobot;
    CommandButton cmdTOB;
    CommandButton cmdEnCA;  // caption says what the avoidance switch is
    CommandButton cmdExit;
    CommandButton cmdShowControlPanel;  // caption is the state: "Show Control" or "Hide Control"

    TextBox txtRobotStatus;
    TextBox txtRobotP2PTask;
    TextBox txtRobotCurrX;  // typed by the operator only, reported to clients as they read
    TextBox txtRobotCurrY;
    TextBox txtRobotCurrZ;
    TextBox txtChangeCount;  // running count of changes to the reported boxes

    Label lblCom;   // ticks since the last multimedia frame
    Label lblTest;  // power byte last written
    Label lblJoy;
    Label lblth1;
    Label lblth2;
    Label lblCa;
    ControlArray<TextBox, 7> IRT;     // 1 to 7, metres
    ControlArray<TextBox, 4> SonarT;  // 0 to 3, metres

    Timer tmrServoControl;   // never started, without a handler
    Timer tmrStartJoystick;  // never started
};

}  // namespace quorrin
