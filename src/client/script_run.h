// One run of a script against a station: each line in its turn, what comes in told as it comes, and an
// orderly end.
//
// It holds when every line did what it says. A line that cannot (a connection that is not there within
// kConnectBoundMs, a command or a text without its connection, an expected report that does not come) ends
// the script, told with its number; the status is then kNotMet. A lost connection is not taken up again by
// itself.
//
// Reports count for an "expect" that have come since the last line that sent something, or since the last
// expect that was met, whichever is later; of more than kKeptReports the last, and of each kSearchedBytes. A
// read whose reports cannot be told apart counts as one text. Without its sensor connection an expect fails
// at once.
//
// However it ends, a robot that it still holds is let go (neutral, then "Clos"), the connections are closed
// in order, and what is under way gets its time to arrive. Where the command connection is gone by then, that
// the robot was not let go is told as a complaint, which does not change the status.
//
// What happens is told one line each to `say`, beginning with the seconds since the start: "0.250 connected
// sensor", "3.104 report 0,0,0,1,JOY,0". The link must be its own, outlive it, and run no more after it.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <string>

#include "client/drive_sender.h"
#include "client/remote_link.h"
#include "client/script.h"
#include "platform/timer_mm.h"

namespace quorrin {

class ScriptRun {
  public:
    static constexpr int kMet = 0;
    static constexpr int kNotMet = 1;
    static constexpr std::int64_t kConnectBoundMs = 10'000;
    // All six have to stand that long, since a station refuses by closing.
    static constexpr std::int64_t kSettleMs = 500;
    // Bounds for a station that talks without end.
    static constexpr std::size_t kKeptReports = 10'000;
    static constexpr std::size_t kSearchedBytes = 400;

    struct Ends {
        std::function<void(const std::string& line)> say;
        // Why the script did not hold.
        std::function<void(const std::string& why)> complain;
        // Called once, when all is closed.
        std::function<void(int status)> ended;
    };

    ScriptRun(Clock& clock, Calls& calls, RemoteLink& link, RemoteScript script, Ends ends);
    ScriptRun(const ScriptRun&) = delete;
    ScriptRun& operator=(const ScriptRun&) = delete;

    // Begins with the first line, as an event of its own.
    void start();
    // From outside, as by Ctrl-C: the script does not hold.
    void interrupt();

  private:
    void goOn();
    void next();
    // What a line does; false while it has to wait.
    bool carryOut(const RemoteStep& one);
    bool connect();
    bool hangUp(const step::HangUp& what);
    bool sent(bool done, RemoteChannel channel);
    bool expect(const step::Expect& what);
    void keepForExpect(const std::string& text);
    void seekReport();
    void waitFor(std::int64_t ms, std::function<void()> then);
    void failed(const std::string& why);
    void finish(int status);
    void awaitTheClose();
    void tell(const std::string& what);
    void linkChanged(RemoteChannel channel);
    void standsNow();

    Clock& clock_;
    Calls& calls_;
    RemoteLink& link_;
    RemoteScript script_;
    Ends ends_;
    DriveSender sender_;
    std::size_t at_ = 0;
    std::int64_t startMs_ = 0;
    TimerMM timer_;   // the bound of the line that waits
    TimerMM settle_;  // how long all six have stood
    TimerMM close_;
    std::int64_t closeUntilMs_ = 0;
    bool connecting_ = false;
    const step::Expect* expecting_ = nullptr;
    std::deque<std::string> reports_;
    std::string lastReport_;
    bool over_ = false;
    int status_ = kMet;
};

}  // namespace quorrin
