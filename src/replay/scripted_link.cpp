#include "replay/scripted_link.h"

#include <algorithm>
#include <utility>

#include "base/json_text.h"

namespace quorrin {

ScriptedLink::ScriptedLink(LinkName name, Output& output, Files& files, std::string applicationFolder)
    : name_(name), output_(output), files_(files), applicationFolder_(std::move(applicationFolder)) {}

void ScriptedLink::setProperties(const FrameLine& line) {
    for (int i = 0; i < kFrameProperties; ++i) {
        if (!line.has(i)) continue;
        const FrameProperty& entry = frameProperties()[static_cast<std::size_t>(i)];
        if (entry.value != nullptr) {
            this->*entry.value = Integer(line.values[static_cast<std::size_t>(i)]);
        } else {
            std::copy(line.sonarCm.begin(), line.sonarCm.end(), sonarCm.begin());
        }
    }
}

void ScriptedLink::setSound(std::string bytes) {
    sound_ = std::move(bytes);
    // A new handle for each buffer, so that a stale one can be told.
    SoundBufferAddress = Long(SoundBufferAddress.value() == INT32_MAX ? 1 : SoundBufferAddress.value() + 1);
    SoundBufferLength = Long(sound_.size());
}

std::string& ScriptedLink::begin(const char* operation) {
    // Fixed names that need no escaping.
    output_.begin();
    std::string& out = output_.addRaw("link");
    out += '"';
    out += linkText(name_);
    out += "\", \"op\": \"";
    out += operation;
    out += "\", \"args\": [";
    return out;
}

void ScriptedLink::end() {
    output_.addRawTail("]");
    output_.end();
}

void ScriptedLink::print(const char* operation, std::initializer_list<Integer> values) {
    std::string& out = begin(operation);
    bool first = true;
    for (const Integer value : values) {
        if (!std::exchange(first, false)) out += ", ";
        appendWhole(out, value.value());
    }
    end();
}

void ScriptedLink::printText(const char* operation, const std::string& text) {
    appendText(begin(operation), text);
    end();
}

std::string ScriptedLink::shortened(const std::string& path) const {
    std::string text = path;
    std::replace(text.begin(), text.end(), '\\', '/');
    const std::string folder = applicationFolder_ + "/";
    return text.rfind(folder, 0) == 0 ? text.substr(folder.size()) : text;
}

void ScriptedLink::BindGateway(const std::string& name) {
    printText("BindGateway", name);
}

void ScriptedLink::SetDriveControlMode(Integer channel, Integer mode) {
    print("SetDriveControlMode", {channel, mode});
}

void ScriptedLink::SetDriveVelocities(const SixValues& countsPerSecond) {
    print("SetDriveVelocities", {countsPerSecond[0], countsPerSecond[1], countsPerSecond[2],
                                 countsPerSecond[3], countsPerSecond[4], countsPerSecond[5]});
}

void ScriptedLink::MoveDrivesTimed(const SixValues& positions, Integer durationMs) {
    print("MoveDrivesTimed",
          {positions[0], positions[1], positions[2], positions[3], positions[4], positions[5], durationMs});
}

void ScriptedLink::MoveServosTimed(const SixValues& positions, Integer durationMs) {
    print("MoveServosTimed",
          {positions[0], positions[1], positions[2], positions[3], positions[4], positions[5], durationMs});
}

void ScriptedLink::SuspendDrive(Integer channel) {
    print("SuspendDrive", {channel});
}

void ScriptedLink::ShowLcdBitmap(const std::string& path) {
    printText("ShowLcdBitmap", shortened(path));
}

void ScriptedLink::SelectLandmarks(Integer first, Integer second, Integer third, Integer fourth) {
    print("SelectLandmarks", {first, second, third, fourth});
}

void ScriptedLink::WritePowerByte(Integer value) {
    print("WritePowerByte", {value});
}

void ScriptedLink::RequestImage() {
    print("RequestImage", {});
}

void ScriptedLink::SaveFrameToFile(const std::string& path) {
    printText("SaveFrameToFile", shortened(path));
    if (!bitmap_.empty()) files_.writeVolatile(path, bitmap_);
}

void ScriptedLink::PlaySoundFile(const std::string& path) {
    printText("PlaySoundFile", shortened(path));
}

void ScriptedLink::StartSoundCapture(Integer mode) {
    print("StartSoundCapture", {mode});
}

void ScriptedLink::StopSoundCapture() {
    print("StopSoundCapture", {});
}

void ScriptedLink::StopSoundPlayback() {
    print("StopSoundPlayback", {});
}

}  // namespace quorrin
