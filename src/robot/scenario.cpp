#include "robot/scenario.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

#include "robot/strict_json.h"

namespace quorrin {

namespace {

constexpr double kForEver_s = 1e9;
constexpr double kLatest_s = 1e8;

constexpr std::array<const char*, 15> kSensorNames{"ir0",    "ir1",    "ir2",    "ir3",       "ir4",
                                                   "ir5",    "ir6",    "irHead", "irDisplay", "sonar0",
                                                   "sonar1", "sonar2", "sonar3", "human1",    "human2"};

constexpr std::array<std::pair<const char*, FaultKind>, 9> kKinds{
    {{"silence", FaultKind::silence},
     {"drop", FaultKind::drop},
     {"stallWheel", FaultKind::stallWheel},
     {"deadSensor", FaultKind::deadSensor},
     {"frozenEncoder", FaultKind::frozenEncoder},
     {"hotBattery", FaultKind::hotBattery},
     {"dock", FaultKind::dock},
     {"undock", FaultKind::undock},
     {"person", FaultKind::person}}};

// The one of `first` and `second` that the key says: 0 or 1.
std::size_t oneOf(StrictObject& line, const char* key, const char* first, const char* second) {
    const std::string value = line.text(key);
    if (value == first) return 0;
    if (value == second) return 1;
    line.fail(std::string("\"") + key + "\" must be \"" + first + "\" or \"" + second + "\"");
}

Fault faultOf(StrictObject& line) {
    Fault fault;
    fault.t_s = line.number("t", 0, kLatest_s);
    const std::string kind = line.text("fault");
    const auto place =
        std::find_if(kKinds.begin(), kKinds.end(), [&](const auto& entry) { return kind == entry.first; });
    if (place == kKinds.end()) line.fail("unknown fault \"" + kind + "\"");
    fault.kind = place->second;
    const bool lasts = fault.kind != FaultKind::undock;
    if (lasts)
        fault.for_s = line.numberOr("for", fault.kind == FaultKind::drop ? 0 : kForEver_s, 0, kForEver_s);
    switch (fault.kind) {
        case FaultKind::silence:
        case FaultKind::drop:
            fault.link = oneOf(line, "link", "mot", "ti") == 0 ? RobotLink::mot : RobotLink::ti;
            break;
        case FaultKind::stallWheel:
        case FaultKind::frozenEncoder:
            fault.side = oneOf(line, "side", "left", "right");
            break;
        case FaultKind::deadSensor: {
            const std::string name = line.text("sensor");
            const auto number = sensorNumber(name);
            if (!number) line.fail("unknown sensor \"" + name + "\"");
            fault.sensor = *number;
            break;
        }
        case FaultKind::hotBattery: {
            const double battery = line.number("battery", 1, 2);
            if (battery != 1 && battery != 2) line.fail("\"battery\" must be 1 or 2");
            fault.battery = battery == 1 ? 0 : 1;
            break;
        }
        case FaultKind::dock:
            fault.volts = line.numberOr("volts", fault.volts, 0, 25);
            break;
        case FaultKind::undock:
            break;
        case FaultKind::person:
            if (line.has("at")) fault.at = line.point("at");
            if (line.has("to")) fault.to = line.point("to");
            fault.speed_mps = line.numberOr("speed", fault.speed_mps, 0.05, 3);
            break;
    }
    line.finish();
    return fault;
}

}  // namespace

std::optional<std::size_t> sensorNumber(const std::string& name) {
    const auto place = std::find(kSensorNames.begin(), kSensorNames.end(), name);
    if (place == kSensorNames.end()) return std::nullopt;
    return static_cast<std::size_t>(place - kSensorNames.begin());
}

std::vector<Fault> parseScenario(const std::string& text, const std::string& name) {
    std::vector<Fault> faults;
    std::istringstream lines(text);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const std::size_t first = line.find_first_not_of(" \t\r");
        if (first == std::string::npos || line[first] == '#') continue;
        const std::string where = name + ":" + std::to_string(number);
        const nlohmann::json json = parseJson(line, where);
        StrictObject object(json, where);
        faults.push_back(faultOf(object));
    }
    std::stable_sort(faults.begin(), faults.end(),
                     [](const Fault& a, const Fault& b) { return a.t_s < b.t_s; });
    return faults;
}

}  // namespace quorrin
