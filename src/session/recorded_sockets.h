// Sockets whose clients are written down before the station sees them; what the station asks passes through.
//
// Written are calls (also those that are refused), bytes of the channels that read any, closes by the client
// and errors of clients' elements. A listener that fails is not: a replay has its ports to itself, and shows
// that listener up.
//
// Bytes are taken from the inner socket as they are written down, so that each read of the session is one
// line, and the same read in a replay.
#pragma once

#include <memory>
#include <string>

#include "platform/sockets.h"
#include "session/flight_recorder.h"

namespace quorrin {

class RecordedSockets : public Sockets {
  public:
    // Both must outlive it and its sockets.
    RecordedSockets(Sockets& inner, FlightRecorder& recorder) : inner_(inner), recorder_(recorder) {}
    std::unique_ptr<Socket> create(const std::string& array, int element) override;

  private:
    Sockets& inner_;
    FlightRecorder& recorder_;
};

}  // namespace quorrin
