// Listeners, accepting and refusing.
#include "remote/remote_connections.h"

#include "base/windows_text.h"
#include "remote/connection_list.h"
#include "sound/wave_resource.h"

namespace quorrin {

RemoteConnections::RemoteConnections(const RemoteParts& parts)
    : parts_(parts),
      wskCommand_(parts.sockets, kCommandChannel),
      wskSensor_(parts.sockets, kSensorChannel),
      wskVideo_(parts.sockets, kVideoChannel),
      wskAudio_(parts.sockets, kAudioChannel),
      wskSendVoice_(parts.sockets, kSendVoiceChannel),
      wskTTS_(parts.sockets, kTtsChannel),
      commands_(parts, [this] { dropRemoteSession(); }) {
    bindCommand();
    bindSideChannels();
    bindEnds();
    parts_.network.chkRemote.onChange = [this] { chkRemote_Change(); };
    parts_.network.tmrCheckConnection.setHandler([this] { tmrCheckConnection_Timer(); });
}

void RemoteConnections::bindCommand() {
    wskCommand_.onConnectionRequest = [this](std::int64_t request) { commandRequest(request); };
    wskCommand_.onDataArrival = [this](int index) { commandData(index); };
}

void RemoteConnections::bindSideChannels() {
    wskSensor_.onConnectionRequest = [this](std::int64_t request) {
        sideRequest(wskSensor_, request, [this] { parts_.form.sensorClientConnected = true; });
    };
    wskVideo_.onConnectionRequest = [this](std::int64_t request) {
        sideRequest(wskVideo_, request, [this] { parts_.values.videoClientConnected = true; });
    };
    for (SocketArray* array : {&wskAudio_, &wskSendVoice_, &wskTTS_})
        array->onConnectionRequest = [this, array](std::int64_t request) {
            sideRequest(*array, request, [] {});
        };
}

void RemoteConnections::startRemoteListeners() {
    parts_.values.remoteCommandsSeen = false;
    for (SocketArray* array : {&wskCommand_, &wskVideo_, &wskSensor_, &wskAudio_, &wskTTS_, &wskSendVoice_})
        array->startOnPort();
    noteListenProblems();
}

bool RemoteConnections::answered() {
    if (parts_.network.chkRemote.checked()) return true;
    return parts_.boxes.show("Incomming call from [" + callerName(wskCommand_.listener()) +
                                 "]...\r\nDo you wish to answer?",
                             "", BoxButtons::yesNo) == BoxAnswer::yes;
}

void RemoteConnections::commandRequest(std::int64_t request) {
    if (!answered()) return;
    parts_.values.callAccepted = true;
    parts_.network.chkRemote.setChecked(true);
    const int index = wskCommand_.acceptCall(request);
    if (index <= 0) return;
    addConnectionEntry(*wskCommand_.element(index), index, parts_.network.ConnectionList);
    playRingTone(kRingTone);
    parts_.network.imgStatus.setNumber(indicator::kCallAccepted);
}

void RemoteConnections::sideRequest(SocketArray& array, std::int64_t request,
                                    const std::function<void()>& accepted) {
    if (!parts_.values.callAccepted) return;
    if (array.acceptCall(request) > 0) accepted();
}

void RemoteConnections::commandData(int index) {
    Socket& socket = *wskCommand_.element(index);
    // "Quit" destroys the socket; the buffer is the channel's and lives on.
    commandRxBuffer_.take(socket.read(socket.bytesReceived()),
                          [this](const std::string& payload) { commands_.dispatchRemoteCommand(payload); });
}

void RemoteConnections::chkRemote_Change() {
    if (parts_.network.chkRemote.checked()) {
        parts_.network.imgNetwork.setNumber(indicator::kRemoteEnabled);
        return;
    }
    parts_.network.imgNetwork.setNumber(indicator::kRemoteDisabled);
    dropRemoteSession();
    parts_.values.callAccepted = false;
}

void RemoteConnections::playRingTone(int number) {
    const std::string* wav = waveResource(number);
    if (wav == nullptr) return;
    if (parts_.player != nullptr) parts_.player->play(*wav);
    parts_.clock.block(waveLengthMs(*wav));
}

void RemoteConnections::sendStatus(int element, const std::string& record) {
    if (Socket* socket = wskSensor_.element(element)) socket->send(windowsText(record));
}

void RemoteConnections::noteListenProblems() {
    std::string problems;
    for (const SocketArray* array :
         {&wskCommand_, &wskVideo_, &wskSensor_, &wskAudio_, &wskTTS_, &wskSendVoice_}) {
        const std::string problem = array->listener().listenError();
        if (!problem.empty()) problems += (problems.empty() ? "" : ", ") + problem;
    }
    parts_.values.listenProblem = problems;
}

}  // namespace quorrin
