// One figure of a benchmark: a line of JSON on standard output. tools/bench collects these lines.
//
// The baseline is what the value is held against, in the same unit: the plain loop's own time where there is
// such a loop, the aim otherwise; null where there is neither. Nothing here judges.
#pragma once

#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace quorrin::bench {

inline std::string figureLine(const std::string& name, double value, const std::string& unit,
                              std::optional<double> baseline) {
    nlohmann::ordered_json line = {{"name", name}, {"value", value}, {"unit", unit}, {"baseline", nullptr}};
    if (baseline) line["baseline"] = *baseline;
    return line.dump();
}

inline void printFigure(const std::string& name, double value, const std::string& unit,
                        std::optional<double> baseline = std::nullopt) {
    std::cout << figureLine(name, value, unit, baseline) << std::endl;
}

}  // namespace quorrin::bench
