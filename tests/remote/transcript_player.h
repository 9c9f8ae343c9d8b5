// Plays a transcript on a station in virtual time, with a robot that stands far from everything.
//
// Bytes that may come in any pieces are cut by `cut`. The station's sends are compared byte for byte, in
// their order on each connection; a report that only repeats the last one may come at any time, as the
// document says. What is written of a robot is left to the player of real stations.
//
// Differences are told by failures of the running test.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "remote/transcript.h"
#include "replay/station_fields.h"
#include "support/remote_bench.h"

namespace quorrin {

using Cut = std::function<std::vector<std::string>(const std::string& bytes)>;

class TranscriptPlayer {
  public:
    TranscriptPlayer(const Transcript& transcript, Cut cut);
    void play();

  private:
    // One connection of a client, as the client sees it.
    struct Line {
        int element = 0;
        std::deque<std::string> sent;  // by the station, and not yet heard
        bool shut = false;
        std::string last;  // report
    };
    using Key = std::pair<int, int>;  // client and port

    void prepare();
    void perform(const TranscriptLine& line);
    bool connect(int client, int port);
    void connectMore(int count, int port);
    void send(const TranscriptLine& line, const std::vector<std::string>& pieces);
    void hear(const TranscriptLine& line);
    void expectClose(const TranscriptLine& line);
    void expectValue(const TranscriptLine& line);
    void operate(const TranscriptLine& line);
    void expectNothingMore();
    static void dropRepeats(Line& line, const std::string& but);
    // Lets time go on, with frames from the robot, until the condition holds.
    bool waitFor(const std::function<bool()>& condition, int ms);
    Line* find(const std::string& array, int element);

    const Transcript& transcript_;
    Cut cut_;
    RemoteBench bench_;
    StationFields fields_{bench_.station};
    std::map<Key, Line> lines_;
    int nextPort_ = 50000;
    int acceptedElement_ = 0;
    std::string lastReport_ = "0,0,0,4,wondering,0";
};

}  // namespace quorrin
