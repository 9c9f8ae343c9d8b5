// Conversations between remote clients and a station, as docs/remote-protocol.md and the files in
// transcripts/ write them down; the document tells the notation.
//
// Only the text: transcript_player.h plays them on a station in virtual time,
// tests/processes/play_transcripts.py on a real one.
#pragma once

#include <cstdint>
#include <istream>
#include <string>
#include <vector>

namespace quorrin {

enum class Deed : std::uint8_t {
    connects,
    isRefused,
    moreConnect,  // `count` further clients on that port
    sends,        // in any pieces
    sendsAtOnce,  // as one read
    hangsUp,
    resets,
    hears,      // the station sends `bytes`
    seesClose,  // the station closes
    waits,      // `count` milliseconds
    has,        // the station's value `name` reads `value`
    operatorSets,
    robot,  // what can be seen of a robot; `value`
};

struct TranscriptLine {
    Deed deed = Deed::waits;
    char client = 'C';
    int port = 0;
    int count = 0;
    std::string bytes;
    std::string name;
    std::string value;
    std::string text;  // as written
};

struct Transcript {
    std::string title;
    bool fresh = false;   // nobody has ever called this station
    bool liveToo = true;  // may be played on a station without an operator
    std::vector<TranscriptLine> lines;
};

// Errors of both: std::runtime_error with the line.
std::vector<Transcript> transcriptsIn(std::istream& text);
// Of a text file, or those within a document's fences.
std::vector<Transcript> readTranscripts(const std::string& path);

// "5E 02 "PING" 5E 0D" as bytes; "x"*20 is twenty times that.
std::string transcriptBytes(const std::string& text);

}  // namespace quorrin
