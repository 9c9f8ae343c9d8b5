#include "client/remote_driver.h"

#include "client/release_words.h"

namespace quorrin {

RemoteDriver::RemoteDriver(Clock& clock, RemoteLink& link)
    : link_(link), sender_(clock, link, clock.nowMs()), timer_(clock, [this] { step(stick_); }) {
    timer_.setInterval(kStepMs);
    sender_.onLetGo.add([this] { onChange.tell(); });
    link_.onState.add([this](RemoteChannel channel) { linkChanged(channel); });
    link_.onReport.add([this](const StatusReport&) { onChange.tell(); });
}

std::string RemoteDriver::releaseText() const {
    return releaseWords(connected(), holds(), knownMode());
}

HeldKeys RemoteDriver::keysThatCount() const {
    HeldKeys keys = keys_;
    if (keysMustRest_) keys.forward = keys.brake = keys.left = keys.right = false;
    return keys;
}

void RemoteDriver::setKeys(const HeldKeys& keys) {
    if (keys == keys_) return;
    keys_ = keys;
    if (!keys.drives()) keysMustRest_ = false;
    step(stick_);
}

void RemoteDriver::setStick(const JoystickState& stick) {
    const JoystickState before = stick_;
    stick_ = stick;
    if (stickTakesOver(stick)) stickDrives_ = true;
    if (stickLetsGo(stick)) stickDrives_ = false;
    if (stickRests(stick)) stickMustRest_ = false;
    step(before);
}

void RemoteDriver::step(const JoystickState& stickBefore) {
    const HeldKeys keys = keysThatCount();
    if (keys.drives()) stickMustRest_ = stickDrives_;
    const bool stick = stickDrives_ && !stickMustRest_;
    const DriveFields byKeys = stick ? trimByKeys(levels_, keys) : stepByKeys(levels_, keys);
    take(stepByStick(byKeys, stickBefore, stick_, stick));
    timer_.setEnabled(keys.drives() || keys.trims() || stickTrims(stick_));
}

void RemoteDriver::take(const DriveFields& levels) {
    if (levels != levels_ && sender_.drive(levels)) levels_ = levels;
    onChange.tell();
}

void RemoteDriver::setHeadUpDown(int value) {
    DriveFields levels = levels_;
    levels.headUpDown = value;
    take(limited(levels));
}

void RemoteDriver::setHeadLeftRight(int value) {
    DriveFields levels = levels_;
    levels.headLeftRight = value;
    take(limited(levels));
}

void RemoteDriver::setMouth(int value) {
    DriveFields levels = levels_;
    levels.mouth = value;
    take(limited(levels));
}

void RemoteDriver::setAvoidance(bool on) {
    DriveFields levels = levels_;
    levels.avoidance = on ? 1 : 0;
    take(levels);
}

void RemoteDriver::centreHead() {
    DriveFields levels = levels_;
    levels.headUpDown = levels.headLeftRight = kHeadAhead;
    take(levels);
}

void RemoteDriver::startAnew() {
    levels_ = neutral(levels_);
    keysMustRest_ = keys_.drives();
    stickMustRest_ = stickDrives_ && !stickRests(stick_);
    timer_.setEnabled(false);
}

void RemoteDriver::standStill() {
    take(neutral(levels_));
    keys_ = {};
    startAnew();
}

void RemoteDriver::stickLost() {
    stickDrives_ = false;
    stick_ = {};
    standStill();
}

void RemoteDriver::modeKey() {
    if (!sender_.mode()) return;
    startAnew();
    onChange.tell();
}

void RemoteDriver::release() {
    sender_.release();
    stickDrives_ = false;
    startAnew();
    onChange.tell();
}

void RemoteDriver::linkChanged(RemoteChannel channel) {
    if (channel == RemoteChannel::command) {
        startAnew();
        if (connected() && sender_.rolls()) sender_.drive(levels_);
    }
    onChange.tell();
}

}  // namespace quorrin
