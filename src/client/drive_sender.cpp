#include "client/drive_sender.h"

namespace quorrin {

DriveSender::DriveSender(RemoteLink& link, std::int64_t seed)
    : link_(link), counter_(static_cast<int>((seed % kLastCount + kLastCount) % kLastCount)) {
    link_.onReport.add([this](const StatusReport& report) { tookReport(report); });
    link_.onState.add([this](RemoteChannel channel) {
        if (channel == RemoteChannel::command && !link_.connected(channel)) mode_.forget();
    });
}

bool DriveSender::drive(const DriveFields& fields) {
    const int next = counter_ % kLastCount + 1;
    if (!link_.command(driveText(fields, next))) return false;
    counter_ = next;
    sent_ = fields;
    if (!holds_) seenInJoy_ = mode_.now == "JOY";
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
    return holds_ && drive(neutral(sent_)) && clos();
}

void DriveSender::letGo() {
    holds_ = false;
    rolls_ = false;
}

void DriveSender::tookReport(const StatusReport& report) {
    mode_.take(report.mode);
    if (report.mode == "JOY") {
        seenInJoy_ = true;
    } else if (seenInJoy_) {
        letGo();
        seenInJoy_ = false;
    }
}

}  // namespace quorrin
