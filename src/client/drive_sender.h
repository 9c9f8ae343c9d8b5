// The commands of one client: drive commands with the counter that steps itself, the mode key, and letting
// go.
//
// The station takes a drive command for a claim on the robot only when its counter differs from the one
// before, whoever sent that. So the counter steps on each command, in 1 to 32767 and round again, and its
// beginning should differ from one run of the program to the next.
//
// holds(): a drive command has gone out since the robot was last let go. The hold outlives a lost connection,
// as it does at the station; it ends by letting go, by the mode key, and when a report shows that the robot,
// which was in JOY, is not any more. rolls(): the last command that went out did not let the robot stand.
//
// Letting go takes a claim that the station's control tick has seen: "Clos" right behind a first drive
// command would leave the robot standing in JOY, held by nobody. So release() sends neutral at once, and
// "Clos" once the hold is kSeenMs old and the robot is in JOY, or is kClaimMs old. Until then it is
// releasing(), and still holds.
//
// All else is sent at once or not at all (false: the command connection does not stand); nothing is kept.
#pragma once

#include <cstdint>

#include "client/drive_fields.h"
#include "client/known_mode.h"
#include "client/remote_link.h"

namespace quorrin {

class DriveSender {
  public:
    static constexpr int kLastCount = 32767;
    static constexpr std::int64_t kSeenMs = 300;  // three control ticks
    static constexpr std::int64_t kClaimMs =
        1000;  // a robot that is IDLE takes longer to JOY than is worth it

    // Listens to the link. `seed` gives the counter its beginning; any number.
    DriveSender(Clock& clock, RemoteLink& link, std::int64_t seed);
    DriveSender(const DriveSender&) = delete;
    DriveSender& operator=(const DriveSender&) = delete;

    bool drive(const DriveFields& fields);
    // The mode key: IDLE where the robot is in another mode, else it wanders.
    bool mode();
    // The station's word for letting go, alone; a robot that rolls goes on under whatever drives it next.
    bool clos();
    // Neutral, then "Clos". Only while this client holds the robot: else it would take it from whoever does.
    // A drive command meanwhile calls it off.
    bool release();
    bool releasing() const { return closTimer_.enabled(); }

    bool holds() const { return holds_; }
    bool rolls() const { return rolls_; }
    // What went out last; the counter with it.
    const DriveFields& sent() const { return sent_; }
    int counter() const { return counter_; }
    const KnownMode& knownMode() const { return mode_; }

    // "Clos" has gone out, or the hold is over for another reason.
    Listeners<> onLetGo;

  private:
    void letGo();
    void closWhenSeen();
    void tookReport(const StatusReport& report);

    Clock& clock_;
    RemoteLink& link_;
    TimerMM closTimer_;
    int counter_;
    DriveFields sent_;
    bool holds_ = false;
    bool rolls_ = false;
    bool seenInJoy_ = false;  // since the hold began
    std::int64_t heldSinceMs_ = 0;
    KnownMode mode_;
};

}  // namespace quorrin
