#include "remote/command_channel.h"

#include <string_view>
#include <utility>

#include "base/number_text.h"
#include "base/resume_on_error.h"
#include "remote/drive_command.h"

namespace quorrin {

namespace {

constexpr std::size_t kKeyLength = 4;
constexpr std::size_t kShortestDriveCommand = 11;

void write(TextBox& box, Integer value) {
    box.setText(std::to_string(value.value()));
}

}  // namespace

CommandChannel::CommandChannel(const RemoteParts& parts, std::function<void()> dropRemoteSession)
    : parts_(parts), dropRemoteSession_(std::move(dropRemoteSession)) {
    parts_.network.txtCommandCount.onChange = [this] { countChanged(); };
    parts_.network.tmrCheckCommandArrival.setHandler([this] { tmrCheckCommandArrival_Timer(); });
}

void CommandChannel::dispatchRemoteCommand(const std::string& payload) {
    PublicValues& values = parts_.values;
    values.remoteCommandsSeen = true;
    values.remoteCommandActive = true;
    const std::string_view key = std::string_view(payload).substr(0, kKeyLength);
    if (key == "Mode") parts_.session.cmdChEn.click();
    if (key == "Clos") values.manualPanelActive = false;
    if (key == "Quit") dropRemoteSession_();
    if (key == "RLIS") listenToRobot();
    if (key == "NLIS") stopListening();
    if (key == "PING") parts_.form.connCheckTicks = 0;
    if (payload.size() >= kShortestDriveCommand) {
        values.remoteCommandActive = true;
        drive(payload);
    }
}

void CommandChannel::listenToRobot() {
    parts_.values.remoteListening = true;
    parts_.robotTI.StartSoundCapture(1);
    parts_.network.outLight.setNumber(indicator::kSoundOut);
}

void CommandChannel::stopListening() {
    parts_.values.remoteListening = false;
    if (parts_.stopVoiceRecording) parts_.stopVoiceRecording();
    parts_.network.outLight.setNumber(indicator::kNoSoundOut);
    // The operator may be listening, too.
    if (parts_.sound.cmdListen.caption() == "Start Listening") parts_.robotTI.StopSoundCapture();
}

void CommandChannel::drive(const std::string& payload) {
    PublicValues& values = parts_.values;
    DriveCommand command{values.steeringLevel,
                         values.gasLevel,
                         values.brakeLevel,
                         values.headCmdUpDown,
                         values.headCmdLeftRight,
                         values.mouthCmd,
                         0,
                         values.commandCount};
    parseDriveCommand(payload, command);
    if (command.asksForJoy()) {
        values.requestJoy = true;
        values.requestIdle = false;
        values.requestWander = false;
        values.joystickActive = false;
    }
    values.steeringLevel = command.steering;
    values.gasLevel = command.gas;
    values.brakeLevel = command.brake;
    values.headCmdUpDown = command.headUpDown;
    values.headCmdLeftRight = command.headLeftRight;
    values.mouthCmd = command.mouth;
    values.caEnabled = command.avoidance == 1;
    values.commandCount = command.count;

    NetworkControls& shown = parts_.network;
    resumeOnError([&] { write(shown.txtSteeringlevel, values.steeringLevel); },
                  [&] { write(shown.txtGaslevel, values.gasLevel); },
                  [&] { write(shown.txtBrakelevel, values.brakeLevel); },
                  [&] { write(shown.txtCommandCount, values.commandCount); },
                  [&] { write(shown.txtHeadLR, values.headCmdLeftRight); },
                  [&] { write(shown.txtHeadUD, values.headCmdUpDown); },
                  [&] { write(shown.txtMouthUD, values.mouthCmd); });
}

// Whoever steps the counter holds the robot. The operator may do it by hand.
void CommandChannel::countChanged() {
    parts_.values.lastCommandCount = numberToInteger(parts_.network.txtCommandCount.text());
    parts_.network.tmrCheckCommandArrival.setRunning(true);
    parts_.values.manualPanelActive = true;
}

void CommandChannel::tmrCheckCommandArrival_Timer() {
    NetworkControls& network = parts_.network;
    if (parts_.values.lastCommandCount != numberToInteger(network.txtCommandCount.text())) return;
    parts_.values.remoteCommandActive = false;
    network.tmrCheckCommandArrival.setRunning(false);
}

}  // namespace quorrin
