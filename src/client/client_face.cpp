#include "client/client_face.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"
#include "client/link_face.h"

namespace quorrin {

namespace {

std::string percent(double share) {
    constexpr double kPercent = 100;
    return std::to_string(static_cast<int>(roundHalfEven(share * kPercent))) + " %";
}

Glance modeGlance(const RemoteDriver& driver) {
    const std::string& mode = driver.knownMode().now;
    if (!driver.connected()) return {"not known", "Not connected.", Tone::off};
    if (mode.empty()) return {"not known", "No report has told it yet.", Tone::busy};
    if (mode == "IDLE") return {mode, "The robot sits; its motion link is closed.", Tone::off};
    if (mode == "wondering") return {mode, "The robot drives by itself.", Tone::good};
    if (mode == "JOY") return {mode, "The robot follows whoever drives it.", Tone::good};
    if (mode == "comm wrong") return {mode, "The station has lost its robot and starts anew.", Tone::bad};
    return {shown(mode), "", Tone::warning};
}

ModePicture pictureOf(const std::string& mode) {
    if (mode == "IDLE") return ModePicture::idle;
    if (mode == "wondering") return ModePicture::wandering;
    return mode == "JOY" ? ModePicture::joystick : ModePicture::none;
}

Glance holderGlance(const RemoteDriver& driver) {
    const std::string& mode = driver.knownMode().now;
    if (!driver.connected()) {
        if (!driver.holds()) return {"not known", "", Tone::off};
        return {"you, cut off", "The robot stays held until the station drops you, or you are back.",
                Tone::bad};
    }
    if (driver.holds()) {
        if (driver.releasing()) return {"you", "It is being let go.", Tone::busy};
        if (driver.waitsForRest())
            return {"you", "Let keys and stick go before you drive on.", Tone::warning};
        if (mode != "JOY") return {"you", "The robot is not in JOY yet.", Tone::busy};
        return {"you", stands(driver.levels()) ? "The robot stands and waits." : "You drive.", Tone::good};
    }
    if (mode == "JOY") return {"not you", "Its panel, its joystick or another client.", Tone::warning};
    if (mode == "wondering") return {"nobody", "The robot wanders.", Tone::off};
    return {"nobody", "", Tone::off};
}

Glance personGlance(const RemoteLink& link) {
    if (!link.report()) return {"not known", "", Tone::off};
    const std::string& place = link.report()->person;
    if (place == "1") return {"right", "Somebody is near.", Tone::warning};
    if (place == "2") return {"left", "Somebody is near.", Tone::warning};
    if (place == "3") return {"near", "Somebody is near the robot.", Tone::warning};
    if (place == "4") return {"nobody", "", Tone::good};
    if (place.empty()) return {"not known", "The robot has not told yet.", Tone::off};
    return {shown(place), "", Tone::warning};
}

Glance positionGlance(const RemoteLink& link) {
    if (!link.report()) return {"not known", "", Tone::off};
    const StatusReport& report = *link.report();
    return {shown(report.x + ", " + report.y + ", " + report.z),
            "X " + shown(report.x) + "  Y " + shown(report.y) + "  Z " + shown(report.z) +
                ", as typed at the station",
            Tone::off};
}

std::string drivingText(const ClientDesk& desk, bool arrowsElsewhere) {
    const RemoteDriver& driver = desk.driver();
    if (desk.leaving()) return "Letting the robot go.";
    if (!driver.connected()) return desk.started() ? "Waiting for the station." : "Connect, to drive.";
    if (arrowsElsewhere) return "The arrow keys move the slider. Esc gives them to the robot.";
    if (driver.waitsForRest()) return "Let all keys and the stick go first.";
    if (driver.stickDrives()) return "The joystick drives; arrow keys go before it.";
    return driver.holds() ? "Hold the arrow keys to drive. Let go and it stands."
                          : "Hold an arrow key to take the robot and drive.";
}

std::string stickText(const ClientDesk& desk) {
    if (!desk.stick().present()) return "No joystick.";
    if (desk.driver().stickDrives()) return "Joystick drives. Buttons 1 and 6 give it back.";
    return "Joystick: trigger and button 6 take over.";
}

std::string steeringText(double steering) {
    if (steering == 0) return "straight";
    return percent(std::abs(steering)) + (steering < 0 ? " left" : " right");
}

}  // namespace

std::string shown(const std::string& fromStation) {
    std::string text;
    for (const char one : fromStation) text += one >= ' ' && one <= '~' ? one : '?';
    if (text.size() > kWordLength) text.replace(kWordLength - 3, std::string::npos, "...");
    return text;
}

ClientFace faceOf(const ClientDesk& desk, bool arrowsElsewhere) {
    const RemoteLink& link = desk.link();
    const RemoteDriver& driver = desk.driver();
    ClientFace face;
    face.mode = modeGlance(driver);
    face.modePicture = driver.connected() ? pictureOf(driver.knownMode().now) : ModePicture::none;
    face.holder = holderGlance(driver);
    face.person = personGlance(link);
    face.position = positionGlance(link);
    face.linkAge = linkAgeGlance(link);
    face.roundTrip = roundTripGlance(link);
    for (const RemoteChannel channel : kRemoteChannels)
        face.channels[static_cast<std::size_t>(channel)] = channelGlance(link, channel);
    face.started = desk.started();
    face.connectCaption = face.started ? "Disconnect" : "Connect";
    face.releaseText = driver.releaseText();
    face.drivingText = drivingText(desk, arrowsElsewhere);
    face.stickText = stickText(desk);
    face.canDrive = desk.canDrive();
    face.canRelease = face.canDrive && driver.holds();
    face.levels = driver.levels();
    face.gas = static_cast<double>(kNoGas - face.levels.gas) / kNoGas;
    face.steering = std::clamp(static_cast<double>(face.levels.steering - kStraight) / kStraight, -1.0, 1.0);
    face.brake = face.levels.brake < kBrakeReleased;
    face.gasText = percent(face.gas);
    face.steeringText = steeringText(face.steering);
    return face;
}

}  // namespace quorrin
