#include "session/main_form.h"

#include "console/floor_plan.h"
#include "console/fold_outs.h"
#include "console/music_choice.h"
#include "robotlink/head_update.h"
#include "robotlink/power.h"
#include "session/end_task.h"
#include "session/motion_session.h"
#include "session/status_record.h"

namespace quorrin {

MainForm::MainForm(const StationPorts& ports, PublicValues& values, frmGUI& gui, frmControlPanel& panel,
                   SessionSeams& seams)
    : ports_(ports),
      values_(values),
      gui_(gui),
      panel_(panel),
      seams_(seams),
      tick_({values, gui, panel, ports.clock, ports.programs, ports.myRobot, ports.robotTI,
             [this](const char* title) { closeGateway(title); }},
            seams.sendStatus) {
    bindKeys();
    bindCounters();
    bindFoldOuts(gui_);
    bindFloorPlan(gui_);
    bindMusicChoice(gui_);
}

MainForm::~MainForm() {
    unbindFrames();
}

void MainForm::bindKeys() {
    gui_.cmdStart.onClick = [this] { cmdStart_Click(); };
    gui_.cmdStop.onClick = [this] { stopDrives(ports_.myRobot); };
    gui_.Stoprobot.onClick = [this] { Stoprobot_Click(); };
    // The driver's next tick overwrites it.
    gui_.cmdTOB.onClick = [this] { values_.vfhActive = true; };
    gui_.cmdEnCA.onClick = [this] { cmdEnCA_Click(); };
    gui_.cmdChEn.onClick = [this] { cmdChEn_Click(); };
    gui_.cmdExit.onClick = [this] { shutdown(); };
    gui_.cmdStopChg.onClick = [this] { stopCharge(values_, ports_.robotTI); };
    gui_.tmrFlashRed.setHandler([this] { flashRed(values_, gui_); });
    gui_.tmrMouth.setHandler([this] { flapMouth(values_, gui_, gui_.tmrMouth); });
    gui_.onClose = [this] { Form_Unload(); };
}

void MainForm::bindCounters() {
    for (TextBox* box : {&gui_.txtHumanLocation, &gui_.txtRobotCurrX, &gui_.txtRobotCurrY,
                         &gui_.txtRobotCurrZ, &gui_.txtRobotStatus})
        box->onChange = [this] { countChange(gui_.txtChangeCount); };
    gui_.txtChangeCount.onChange = [this] { callSeam(seams_.changeCountChanged); };
}

void MainForm::closeGateway(const char* title) {
    EndTask(title, values_, ports_.programs, ports_.boxes, ports_.clock);
}

// The caption is "START" by design and never set to anything else, so a press always starts anew.
void MainForm::cmdStart_Click() {
    if (gui_.cmdStart.caption() == "START") {
        values_.robotMode = kModeStarting;
        runRobot(values_, gui_);
        gui_.cmdStart.setCaption("START");
    } else {
        values_.tickEnabled = false;
        gui_.cmdStart.setCaption("START");
        stopDrives(ports_.myRobot);
        values_.robotMode = kModeStarting;
        suspendRobot(values_, gui_, ports_.myRobot);
    }
}

void MainForm::cmdChEn_Click() {
    if (values_.robotMode == kModeIdle) {
        values_.requestWander = true;
        values_.requestIdle = false;
        values_.requestJoy = false;
        values_.joystickActive = false;
    } else {
        values_.requestIdle = true;
        values_.requestWander = false;
        values_.requestJoy = false;
    }
}

void MainForm::cmdEnCA_Click() {
    values_.caEnabled = !values_.caEnabled;
    gui_.cmdEnCA.setCaption(values_.caEnabled ? "Enable" : "Disable");
}

void MainForm::Stoprobot_Click() {
    stopDrives(ports_.myRobot);
    values_.robotX = 0;
    values_.robotY = 0;
    values_.robotTheta = 0;
}

}  // namespace quorrin
