// The connections of remote clients: six independent channels, their listeners, accepting and refusing,
// ConnectionList, the indicators, supervision, and the ends of a session.
//
// The station only listens. A call on the command channel is answered (by itself while chkRemote is checked,
// else by the operator), the other five accept while callAccepted. Elements of a client on different channels
// are not tied together: whoever sends takes line j of ConnectionList for element j + 1.
//
// Lost clients are found by close and error events and by the silence of "PING": about 30 s, counted all the
// time and not from a connection. Nothing is reported to clients, nor to the operator but by the indicators.
//
// It owns the socket arrays; the ports and the forms must outlive it. Everything runs on the one thread. The
// ring holds it for its length.
#pragma once

#include <functional>
#include <string>

#include "remote/command_channel.h"
#include "remote/frame_codec.h"
#include "remote/remote_parts.h"
#include "remote/socket_array.h"

namespace quorrin {

class RemoteConnections {
  public:
    // Takes the handlers of chkRemote and tmrCheckConnection.
    explicit RemoteConnections(const RemoteParts& parts);
    RemoteConnections(const RemoteConnections&) = delete;
    RemoteConnections& operator=(const RemoteConnections&) = delete;

    void startRemoteListeners();
    // Ends all clients and keeps the listeners. callAccepted stays, so that a client may come back.
    void dropRemoteSession();
    // At the program's end.
    void closeAllSockets();

    // A status record to one element of wskSensor, in bytes of one character each; lost where there is no
    // connected one.
    void sendStatus(int element, const std::string& record);

  private:
    // remote_connections.cpp
    void bindCommand();
    void bindSideChannels();
    void commandRequest(std::int64_t request);
    bool answered();
    void sideRequest(SocketArray& array, std::int64_t request, const std::function<void()>& accepted);
    void commandData(int index);
    void chkRemote_Change();
    void playRingTone(int number);
    void noteListenProblems();
    // connection_ends.cpp
    void bindEnds();
    void commandClosed(int index);
    void errorEvent(SocketArray& array, int index);
    void forgetRemoteFlags();
    // connection_check.cpp
    void tmrCheckConnection_Timer();
    void showStates();
    void countSilence();

    RemoteParts parts_;
    SocketArray wskCommand_;
    SocketArray wskSensor_;
    SocketArray wskVideo_;
    SocketArray wskAudio_;
    SocketArray wskSendVoice_;
    SocketArray wskTTS_;
    CommandChannel commands_;
    FrameBuffer commandRxBuffer_{4095, FrameRule::equalLength};
};

}  // namespace quorrin
