#include "replay/field_table.h"

#include <charconv>
#include <cmath>

#include "base/json_text.h"

namespace quorrin {

void appendField(std::string& out, double value) {
    appendDouble(out, value);
}

void appendField(std::string& out, float value) {
    // The shortest text for the 32-bit value, not for its 64-bit neighbour.
    if (!std::isfinite(value)) {
        out += "null";
        return;
    }
    char text[24];
    const auto result = std::to_chars(text, text + sizeof text, value);
    out.append(text, result.ptr);
}

void appendField(std::string& out, bool value) {
    appendBoolean(out, value);
}

void appendField(std::string& out, std::int16_t value) {
    appendWhole(out, value);
}

void appendField(std::string& out, Integer value) {
    appendWhole(out, value.value());
}

void appendField(std::string& out, Long value) {
    appendWhole(out, value.value());
}

void appendField(std::string& out, Byte value) {
    appendWhole(out, value.value());
}

void appendField(std::string& out, const std::string& value) {
    appendText(out, value);
}

std::vector<std::string> FieldTable::names() const {
    std::vector<std::string> all;
    for (const auto& [name, printer] : fields_) all.push_back(name);
    return all;
}

}  // namespace quorrin
