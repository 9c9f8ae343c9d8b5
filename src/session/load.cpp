// The main form's load, step by step in its order. Nothing moves yet when it is done: the session begins with
// the eleventh PowerFrame.
#include "base/general_functions.h"
#include "base/number_text.h"
#include "base/rounding.h"
#include "console/floor_plan.h"
#include "console/fold_outs.h"
#include "imaging/archive_names.h"
#include "session/main_form.h"
#include "session/mode_steps.h"
#include "session/motion_session.h"
#include "session/power_bits.h"
#include "session/sensor_tables.h"

namespace quorrin {

void MainForm::Form_Load() {
    bindFrames();
    callSeam(seams_.createWaveStream);

    gui_.Record_Flag = 0;
    values_.motLinkUp = false;
    values_.tiLinkUp = false;
    values_.tiWarmupCount = 0;
    values_.motWarmupCount = 0;
    gui_.sensorClientConnected = false;
    values_.frameWatchdog = 0;

    gui_.imgStatus.setNumber(3);
    gui_.inLight.setNumber(9);
    gui_.outLight.setNumber(6);
    gui_.imgNetwork.setNumber(4);
    gui_.chkRemote.setChecked(true);

    startMultimediaGateway();
    setStartValues();
    fillSensorTables(values_);
    readNeutralServos();

    ports_.robotTI.BindGateway("ticom");
    ports_.myRobot.BindGateway("motcom");

    values_.videoClientReady = true;
    values_.headCmdUpDown = 2000;
    values_.headCmdLeftRight = 2000;
    values_.mouthCmd = gui_.cMouthUpDown;
    values_.eyeUpDownInit = gui_.cEyeUpDown;
    values_.eyeLeftRightInit = gui_.cEyeLeftRight;
    gui_.lblImageQuality.setCaption(std::to_string(gui_.sldImageQuality.value()) + "%");
    values_.jpegQuality = gui_.sldImageQuality.value();

    callSeam(seams_.setUpJoystick);
    createTimers();
    startTasks();
    loadFloorPlan(gui_, values_.applicationFolder, ports_.files);
    setDashboardDefaults();
    suspendRobot(values_, gui_, ports_.myRobot);
    setUpRemoteAndSound();

    for (int days = 7; days >= 1; --days) gui_.cobStoreDay.addItem(std::to_string(days));
    gui_.formRunning = true;

    fillDates();
    startFormTimers();
}

// The multimedia gateway thus runs before anything else of the link is touched; the tick starts the other
// one.
void MainForm::startMultimediaGateway() {
    constexpr int kStartMs = 1000;
    ports_.programs.start(values_.gatewayTiExePath);
    ports_.clock.block(kStartMs);
}

void MainForm::setStartValues() {
    values_.motionInhibit = false;
    values_.autoStartPending = true;
    values_.powerByte = kPowerAtStart;
    values_.startStep = 0;
    values_.chargeFlash = false;
    values_.battery1Flash = false;
    values_.battery2Flash = false;
    gui_.statusBroadcastTicks = 0;
    gui_.statusRecordTail = 0;
    values_.previousMode = kModeWondering;
    setWanderThresholds(gui_);
    values_.caEnabled = true;
    values_.landmarkSelectPending = false;
}

// A key that is missing, or holds no number, reads 0.
void MainForm::readNeutralServos() {
    const auto neutral = [this](const char* section) {
        return roundToInteger(
            parseNumber(ReadIni(section, "init", values_.sdkIniPath, ports_.files)).value_or(0));
    };
    gui_.cHeadUpDown = neutral("servo1");
    gui_.cHeadLeftRight = neutral("servo2");
    gui_.cMouthUpDown = neutral("servo3");
    gui_.cEyeUpDown = neutral("servo5");
    gui_.cEyeLeftRight = neutral("servo6");
}

void MainForm::createTimers() {
    constexpr int kResolutionMs = 5;
    const auto make = [this](const char* name, int intervalMs, void (ControlTick::*handler)()) {
        auto timer = std::make_unique<TimerMM>(ports_.clock, [this, handler] { (tick_.*handler)(); });
        timer->setName(name);
        timer->setPeriodic(true);
        timer->setInterval(intervalMs);
        timer->setResolution(kResolutionMs);
        return timer;
    };
    tmrComping_ = make("tmrComPing_Timer", 100, &ControlTick::tmrComPing_Timer);
    values_.pingEnabled = false;
    tmrControl_ = make("tmrControl_Timer", 100, &ControlTick::tmrControl_Timer);
    tmrControl_->setEnabled(true);
    values_.tickEnabled = false;
    displayTimer_ = make("displayTimer_Timer", 700, &ControlTick::displayTimer_Timer);
    displayTimer_->setEnabled(true);
    values_.displayEnabled = false;
}

void MainForm::startTasks() {
    GPSUnit_ = std::make_unique<GPS>(ports_.clock, values_, values_);
    GPSUnit_->EstInterval = 50;
    GPSUnit_->run();

    sensorMapBuilderTask_ = std::make_unique<SensorMapBuilder>(ports_.clock, values_, values_, values_, gui_);
    sensorMapBuilderTask_->timeInterval = 100;
    sensorMapBuilderTask_->run();

    values_.antiStuckEnabled = true;
    values_.stuckRatioLimit = 0.38;
    antiStuckTask_ = std::make_unique<AntiStuck>(ports_.clock, values_, values_, ports_.myRobot);
    antiStuckTask_->timeInterval = 200;
    antiStuckTask_->run();
    values_.antiStuckEnabled = false;

    driver_ = std::make_shared<Teleoperation>(ports_.clock, values_, gui_, ports_.myRobot);
    gui_.teleoperationtask = driver_;
    driver_->targetDistance = 1.0;
    driver_->timeInterval = 100;
    driver_->run();
    driver_->suspend();
    values_.useWanderInput = false;
}

void MainForm::setDashboardDefaults() {
    gui_.tbaMusicPlay.setEnabled(false);
    gui_.tbaMusicStop.setEnabled(false);
    gui_.txtMusicName.setText(values_.applicationFolder + "/happy8k.wav");
    hideFoldOuts(gui_);
    gui_.cmdExpandSetting.setCaption("Open Setting");
    values_.aboutOpen = false;
    values_.manualPanelActive = false;
    values_.zoomCameraOpen = false;
    gui_.tmrStartJoystick.setRunning(false);
}

void MainForm::setUpRemoteAndSound() {
    callSeam(seams_.setUpSockets);
    ports_.robotTI.StopSoundCapture();
    values_.remoteListening = false;
    values_.videoClientConnected = false;
    values_.remoteCommandActive = false;
    callSeam(seams_.setUpLocalPlayback);
}

// The days of the last year that have a folder in the archive, newest first.
void MainForm::fillDates() {
    const auto hasFolder = [this](const std::string& day) {
        return ports_.files.folderExists(archiveDayFolder(values_.applicationFolder, day));
    };
    for (const std::string& day : archivedDays(ports_.clock.wallTime(), hasFolder))
        gui_.cobAvailDate.addItem(day);
    for (CommandButton* key :
         {&gui_.cmdPlay, &gui_.cmdPause, &gui_.cmdStopReview, &gui_.cmdForward, &gui_.cmdBackward})
        key->setEnabled(false);
    gui_.fileTolNum = 0;
    gui_.playingNumber = 0;
    gui_.VideoPlayMode.clear();
}

void MainForm::startFormTimers() {
    gui_.tmrCatchPhoto.setRunning(true);
    gui_.tmrCheckConnection.setRunning(true);
    gui_.tmrFlashRed.setRunning(true);
    gui_.tmrImage.setRunning(true);
}

}  // namespace quorrin
