// The supervision of the connections, every 300 ms: states, silence, and the two flags that say who is
// there.
#include "remote/remote_connections.h"

namespace quorrin {

namespace {

constexpr int kTickLimit = 32765;
constexpr int kSilentTicks = 100;

void showState(Label& label, const SocketArray& array) {
    label.setCaption(std::to_string(static_cast<int>(array.listener().state())));
}

}  // namespace

void RemoteConnections::tmrCheckConnection_Timer() {
    showStates();
    countSilence();
    if (wskSensor_.anyConnected()) parts_.form.sensorClientConnected = true;
    if (wskVideo_.anyConnected()) parts_.values.videoClientConnected = true;
}

void RemoteConnections::showStates() {
    NetworkControls& network = parts_.network;
    showState(network.lblWskCmd, wskCommand_);
    showState(network.lblWskAudio, wskAudio_);
    showState(network.lblWskSendVoice, wskSendVoice_);
    showState(network.lblWskSensor, wskSensor_);
    showState(network.lblWskTTS, wskTTS_);
    showState(network.lblWskVideo, wskVideo_);
}

void RemoteConnections::countSilence() {
    Integer& ticks = parts_.form.connCheckTicks;
    ticks = ticks < kTickLimit ? ticks + 1 : Integer(0);
    if (ticks <= kSilentTicks) return;
    if (parts_.values.callAccepted) {
        const bool somebody = parts_.network.ConnectionList.count() > 0;
        dropRemoteSession();
        // A client that fell silent holds the robot no longer; an operator at the panel does.
        if (somebody && !(parts_.panelShowing && parts_.panelShowing()))
            parts_.values.manualPanelActive = false;
    }
    ticks = 0;
}

}  // namespace quorrin
