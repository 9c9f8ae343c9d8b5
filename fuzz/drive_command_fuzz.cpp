// A drive command of anybody's making: each variable holds afterwards what plain steps on cut texts make of
// it (a field that failed has left its own, the cuts are measured on the values), nothing is thrown, nothing
// outside the text is read, and numbers in plain form come through unchanged.
//
// Input: seven numbers of 16 bits, low byte first, for what the variables hold before (steering, gas, brake,
// head up and down, head left and right, mouth, counter), then the payload.
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "expect.h"
#include "plain_drive.h"
#include "remote/drive_command.h"

namespace {

using quorrin::DriveCommand;
using quorrin::fuzz::DriveValues;
using quorrin::fuzz::expect;

constexpr std::size_t kNumbers = 7;
constexpr std::size_t kHead = kNumbers * 2;

DriveValues valuesOf(const DriveCommand& command) {
    return {command.steering,      command.gas,   command.brake,     command.headUpDown,
            command.headLeftRight, command.mouth, command.avoidance, command.count};
}

DriveCommand commandOf(const DriveValues& values) {
    return {values[0], values[1], values[2], values[3], values[4], values[5], values[6], values[7]};
}

DriveValues readHead(const std::uint8_t* data, std::size_t size) {
    std::uint8_t head[kHead] = {};
    if (size > 0) std::memcpy(head, data, size < kHead ? size : kHead);
    DriveValues values{};
    for (std::size_t i = 0; i < kNumbers; ++i)
        // The avoidance has no variable: the counter comes seventh here and stands eighth there.
        values[i < 6 ? i : 7] = static_cast<std::int16_t>(head[2 * i] | (head[2 * i + 1] << 8));
    return values;
}

void judgePlainForm(const DriveValues& values) {
    std::string text;
    for (const int value : values) text += (text.empty() ? "" : ",") + std::to_string(value);
    DriveCommand command{1, 22, 333, 4444, -5, -66, 0, -777};
    quorrin::parseDriveCommand(text, command);
    expect(valuesOf(command) == values, "numbers in plain form come through");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    DriveValues plain = readHead(data, size);
    judgePlainForm(plain);
    DriveCommand command = commandOf(plain);
    // Not copied, so that the sanitizer sees a read beyond its end.
    const std::string_view payload =
        size > kHead ? std::string_view(reinterpret_cast<const char*>(data) + kHead, size - kHead) : "";
    quorrin::parseDriveCommand(payload, command);
    quorrin::fuzz::plainDrive(std::string(payload), plain);
    expect(valuesOf(command) == plain, "the variables hold what the plain steps leave in them");
    expect(command.asksForJoy() == (plain[0] > 10), "steering above 10 asks for JOY");
    return 0;
}
