// The frames of both links, bound to their handlers.
#include "robotlink/motion_intake.h"
#include "robotlink/multimedia_intake.h"
#include "session/main_form.h"
#include "session/tick_parts.h"

namespace quorrin {

void MainForm::bindFrames() {
    QuorrinSDK& mot = ports_.myRobot;
    QuorrinSDK& ti = ports_.robotTI;
    mot.SensorFrame.handler = [this] { onSensorFrame(ports_.myRobot, values_, values_, gui_); };
    mot.IrFrame.handler = [this] { onIrFrame(ports_.myRobot, values_); };
    mot.MotorFrame.handler = [this] { onMotorFrame(ports_.myRobot, values_, gui_, ports_.myRobot); };
    ti.PowerFrame.handler = [this] { PowerFrame(); };
    ti.ImageFrame.handler = [this] { onImageFrame(values_, gui_, seams_.image, ports_.robotTI); };
    ti.SoundFrame.handler = [this] { onSoundFrame(ports_.robotTI, values_, values_, gui_, seams_.sound); };
}

void MainForm::unbindFrames() {
    for (QuorrinSDK* link : {&ports_.myRobot, &ports_.robotTI})
        for (LinkEvent* event : {&link->SensorFrame, &link->IrFrame, &link->MotorFrame, &link->PowerFrame,
                                 &link->ImageFrame, &link->SoundFrame})
            event->handler = nullptr;
}

void MainForm::PowerFrame() {
    PowerHooks hooks;
    hooks.pressStart = [this] { gui_.cmdStart.click(); };
    hooks.suspendTeleoperation = [this] { suspendDriver(gui_); };
    hooks.formRunning = gui_.formRunning;
    onPowerFrame(ports_.robotTI, values_, values_, values_, gui_, gui_, hooks);
}

}  // namespace quorrin
