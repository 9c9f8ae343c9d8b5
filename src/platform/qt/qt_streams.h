// TCP and local byte streams of the real machine.
//
// A local name is a socket file in the run folder that is given at the start, which belongs to the user alone
// and to one data folder. A socket file that a killed program left behind is taken over. A run folder whose
// path is too long for a socket's address is replaced by a short one under /tmp that is derived from it.
#pragma once

#include "platform/clock.h"
#include "platform/streams.h"

namespace quorrin {

class QtStreams : public Streams {
  public:
    QtStreams(Clock& clock, const std::string& runFolder);

    std::unique_ptr<Listener> listenTcp(const std::string& address, int port, std::string* error) override;
    std::unique_ptr<Connecting> connectTcp(const std::string& address, int port, ConnectHandler) override;
    std::unique_ptr<Listener> listenLocal(const std::string& name, std::string* error) override;
    std::unique_ptr<Connecting> connectLocal(const std::string& name, ConnectHandler) override;

  private:
    Clock& clock_;
    std::string folder_;
};

}  // namespace quorrin
