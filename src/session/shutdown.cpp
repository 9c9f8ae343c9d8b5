// The ways out of the main form: unload, and the shutdown routine that ends the program.
#include "base/program_error.h"
#include "session/main_form.h"
#include "session/motion_session.h"
#include "session/record/general_constants.h"

namespace quorrin {

void MainForm::Form_Unload() {
    if (closing_) return;
    if (values_.motLinkUp) {
        stopDrives(ports_.myRobot);
        suspendRobot(values_, gui_, ports_.myRobot);
    }
    if (values_.aboutOpen) {
        callSeam(seams_.closeAbout);
        values_.aboutOpen = false;
    }
    if (values_.zoomCameraOpen) {
        callSeam(seams_.closeZoomCamera);
        values_.zoomCameraOpen = false;
    }
    panel_.close();
    values_.manualPanelActive = false;
    gui_.teleoperationtask.reset();
    shutdown();
}

void MainForm::shutdown() {
    if (closing_) return;
    closing_ = true;

    values_.videoClientConnected = false;
    gui_.formRunning = false;
    ports_.robotTI.StopSoundPlayback();
    if (values_.motLinkUp) {
        constexpr int kBetweenStopsMs = 200;
        stopDrives(ports_.myRobot);
        ports_.clock.block(kBetweenStopsMs);
        stopDrives(ports_.myRobot);
    }
    endTasks();
    callSeam(seams_.dropRemoteSession);
    callSeam(seams_.closeAllSockets);

    constexpr int kBeforeClosingGatewaysMs = 1000;
    ports_.clock.block(kBeforeClosingGatewaysMs);
    closeGateway(GeneralConstants::kMotionGatewayTitle);
    closeGateway(GeneralConstants::kMultimediaGatewayTitle);
    if (ports_.endProgram) ports_.endProgram();
    throw ProgramEnd{};
}

void MainForm::endTasks() {
    if (antiStuckTask_) antiStuckTask_->task_end();
    if (driver_) driver_->task_end();
    if (sensorMapBuilderTask_) sensorMapBuilderTask_->task_end();
    if (GPSUnit_) GPSUnit_->task_end();

    for (std::unique_ptr<TimerMM>* timer : {&tmrComping_, &tmrControl_, &displayTimer_}) {
        if (*timer) (*timer)->setEnabled(false);
        timer->reset();
    }

    antiStuckTask_.reset();
    gui_.teleoperationtask.reset();
    driver_.reset();
    sensorMapBuilderTask_.reset();
    GPSUnit_.reset();
}

}  // namespace quorrin
