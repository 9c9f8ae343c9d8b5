#include "client/drive_sender.h"

namespace quorrin {

DriveSender::DriveSender(Clock& clock, RemoteLink& link, std::int64_t seed)
    : clock_(clock),
      link_(link),
      closTimer_(clock, [this] { clos(); }),
      counter_(static_cast<int>((seed % kLastCount + kLastCount) % kLastCount)) {
    closTimer_.setPeriodic(false);
    link_.onReport.add([this](const StatusReport& report) { tookReport(report); });
    link_.onState.add([this](RemoteChannel channel) {
        if (channel != RemoteChannel::command || link_.connected(channel)) return;
        mode_.forget();
        closTimer_.setEnabled(false);
    });
}

bool DriveSender::drive(const DriveFields& fields) {
    const int next = counter_ % kLastCount + 1;
    if (!link_.command(driveText(fields, next))) return false;
    closTimer_.setEnabled(false);
    counter_ = next;
    sent_ = fields;
    if (!holds_) {
        seenInJoy_ = mode_.now == "JOY";
        heldSinceMs_ = clock_.nowMs();
    }
    holds_ = true;
    rolls_ = !stands(fields);
    return true;
}

bool DriveSender::mode() {
    if (!link_.command("Mode")) return false;
    // From JOY the key leads to IDLE, which nobody holds; from IDLE it leads away from whatever was asked
    // for.
    letGo();
    return true;
}

bool DriveSender::clos() {
    if (!link_.command("Clos")) return false;
    letGo();
    return true;
}

bool DriveSender::release() {
    if (!holds_ || !drive(neutral(sent_))) return false;
    closWhenSeen();
    return true;
}

void DriveSender::closWhenSeen() {
    const std::int64_t wait = heldSinceMs_ + (seenInJoy_ ? kSeenMs : kClaimMs) - clock_.nowMs();
    closTimer_.setEnabled(false);
    if (wait <= 0) {
        clos();
        return;
    }
    closTimer_.setInterval(wait);
    closTimer_.setEnabled(true);
}

void DriveSender::letGo() {
    closTimer_.setEnabled(false);
    holds_ = false;
    rolls_ = false;
    onLetGo.tell();
}

void DriveSender::tookReport(const StatusReport& report) {
    mode_.take(report.mode);
    if (report.mode == "JOY") {
        seenInJoy_ = true;
        if (releasing()) closWhenSeen();
    } else if (seenInJoy_) {
        letGo();
        seenInJoy_ = false;
    }
}

}  // namespace quorrin
