#include "robot/truth.h"

#include <nlohmann/json.hpp>

#include "base/number_text.h"

namespace quorrin {

namespace {

std::string fixed(double value, int decimals) {
    std::string text = formatFixed(value, decimals);
    return text.find_first_not_of("-0.") == std::string::npos ? "0" : text;
}

}  // namespace

std::string truthLine(SimulatedRobot& robot) {
    const Body& body = robot.body();
    const Pose pose = body.pose();
    std::string line = "{\"t\": " + fixed(static_cast<double>(robot.nowMs()) / 1000.0, 2);
    line += ", \"x\": " + fixed(pose.at.x, 4) + ", \"y\": " + fixed(pose.at.y, 4);
    line += ", \"theta\": " + fixed(pose.heading, 5);
    line += ", \"v\": " + fixed(body.forward_mps(), 4) + ", \"w\": " + fixed(body.turn_radps(), 4);
    line += ", \"contacts\": " + std::to_string(body.contacts());
    line += ", \"distance\": " + fixed(body.distance_m(), 4) + ", \"servos\": [";
    for (std::size_t i = 0; i < 6; ++i)
        line += (i == 0 ? "" : ", ") + std::to_string(robot.servos().position(i));
    line += "], \"powerByte\": " + std::to_string(robot.powerByte());
    line += ", \"lcd\": \"" + robot.lcdSha256() + "\"";
    line += std::string(", \"modeLeft\": \"") + robot.drives().modeText(0) + "\"";
    line += std::string(", \"modeRight\": \"") + robot.drives().modeText(1) + "\", \"sounds\": [";
    bool first = true;
    for (const PlayedSound& sound : robot.takeSounds()) {
        // A name comes from outside and may hold anything.
        const nlohmann::json name = sound.name;
        line += (first ? "{\"name\": " : ", {\"name\": ") +
                name.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) +
                ", \"bytes\": " + std::to_string(sound.bytes) + ", \"sha256\": \"" + sound.sha256 + "\"}";
        first = false;
    }
    return line + "]}";
}

}  // namespace quorrin
