// What a remote client's commands do: the control words and the drive command.
//
// The station answers nothing here. A payload is tested against each word, one after the other, and its
// length alone makes it a drive command as well. "Quit" destroys the socket that the command came on.
//
// A client that falls silent leaves its last levels in force, and the robot held, until "Clos" or until its
// session is dropped.
#pragma once

#include <functional>
#include <string>

#include "remote/remote_parts.h"

namespace quorrin {

class CommandChannel {
  public:
    // Takes the handlers of txtCommandCount and tmrCheckCommandArrival. The parts must outlive it.
    CommandChannel(const RemoteParts& parts, std::function<void()> dropRemoteSession);
    CommandChannel(const CommandChannel&) = delete;
    CommandChannel& operator=(const CommandChannel&) = delete;

    void dispatchRemoteCommand(const std::string& payload);

  private:
    void listenToRobot();
    void stopListening();
    void drive(const std::string& payload);
    void countChanged();
    void tmrCheckCommandArrival_Timer();

    RemoteParts parts_;
    std::function<void()> dropRemoteSession_;
};

}  // namespace quorrin
