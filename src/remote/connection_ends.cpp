// How connections end: by the client's close, by an error, by the station.
#include "remote/connection_list.h"
#include "remote/remote_connections.h"

namespace quorrin {

void RemoteConnections::bindEnds() {
    wskCommand_.onClose = [this](int index) { commandClosed(index); };
    wskSensor_.onClose = [this](int index) {
        parts_.form.sensorClientConnected = false;
        closeSocket(*wskSensor_.element(index));
        wskSensor_.destroy(index);
    };
    wskVideo_.onClose = [this](int index) {
        parts_.values.videoClientConnected = false;
        closeSocket(*wskVideo_.element(index));
        wskVideo_.destroy(index);
    };
    wskAudio_.onClose = [this](int index) {
        parts_.network.inLight.setNumber(indicator::kNoVoiceIn);
        closeSocket(*wskAudio_.element(index));
        wskAudio_.destroy(index);
    };
    wskSendVoice_.onClose = [this](int index) {
        parts_.values.remoteListening = false;
        closeSocket(*wskSendVoice_.element(index));
        wskSendVoice_.destroy(index);
        parts_.network.outLight.setNumber(indicator::kNoSoundOut);
    };
    wskTTS_.onClose = [this](int index) {
        closeSocket(*wskTTS_.element(index));
        wskTTS_.destroy(index);
    };

    for (SocketArray* array : {&wskCommand_, &wskAudio_, &wskTTS_})
        array->onError = [this, array](int index) { errorEvent(*array, index); };
    wskSensor_.onError = [this](int index) {
        errorEvent(wskSensor_, index);
        parts_.form.sensorClientConnected = false;
    };
    wskVideo_.onError = [this](int index) {
        errorEvent(wskVideo_, index);
        parts_.values.videoClientConnected = false;
    };
    wskSendVoice_.onError = [this](int index) {
        errorEvent(wskSendVoice_, index);
        parts_.values.remoteListening = false;
    };
}

void RemoteConnections::commandClosed(int index) {
    Socket& socket = *wskCommand_.element(index);
    removeConnectionEntry(socket, parts_.network.ConnectionList);
    closeSocket(socket);
    parts_.network.inLight.setNumber(indicator::kNoVoiceIn);
    parts_.network.outLight.setNumber(indicator::kNoSoundOut);
    parts_.network.imgStatus.setNumber(indicator::kCallEnded);
    wskCommand_.destroy(index);
}

// A broken element stays in its place, closed, and its line in the list, until the session is dropped.
void RemoteConnections::errorEvent(SocketArray& array, int index) {
    Socket& socket = *array.element(index);
    socket.close();
    if (index > 0) return;
    socket.listen();
    noteListenProblems();
}

// The two flags of the commands are set, and stay so after the session: a client that comes back gets reports
// of changes before its first command.
void RemoteConnections::forgetRemoteFlags() {
    PublicValues& values = parts_.values;
    values.remoteListening = false;
    values.videoClientConnected = false;
    values.remoteCommandsSeen = true;
    values.remoteCommandActive = true;
}

void RemoteConnections::dropRemoteSession() {
    forgetRemoteFlags();
    parts_.network.imgStatus.setNumber(indicator::kCallEnded);
    ListBox& list = parts_.network.ConnectionList;
    const int lines = static_cast<int>(list.count());
    for (int j = 0; j < lines; ++j) {
        // Lines and elements may have come apart: a line without its element stays.
        if (const Socket* socket = wskCommand_.element(j + 1)) removeConnectionEntry(*socket, list);
    }
    for (SocketArray* array : {&wskAudio_, &wskTTS_, &wskSendVoice_, &wskSensor_, &wskVideo_, &wskCommand_})
        array->destroyClients();
}

void RemoteConnections::closeAllSockets() {
    forgetRemoteFlags();
    for (SocketArray* array : {&wskCommand_, &wskVideo_, &wskAudio_, &wskSensor_, &wskTTS_, &wskSendVoice_})
        array->closeAll();
}

}  // namespace quorrin
