#include "remote/drive_command.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "base/number_text.h"

namespace quorrin {

namespace {

void convert(std::string_view text, Integer& value) {
    const auto whole = parseWhole(text);
    if (whole && *whole >= INT16_MIN && *whole <= INT16_MAX) value = Integer(*whole);
}

// The field at the front of `rest`, which is cut by the value that then stands.
void takeField(std::string_view& rest, Integer& value) {
    const std::size_t comma = rest.find(',');
    if (comma != std::string_view::npos) convert(rest.substr(0, comma), value);
    const std::size_t cut = std::to_string(value.value()).size() + 1;
    rest.remove_prefix(std::min(cut, rest.size()));
}

}  // namespace

void parseDriveCommand(std::string_view payload, DriveCommand& values) {
    std::string_view rest = payload;
    for (Integer* field : {&values.steering, &values.gas, &values.brake, &values.headUpDown,
                           &values.headLeftRight, &values.mouth, &values.avoidance})
        takeField(rest, *field);
    convert(rest, values.count);
}

}  // namespace quorrin
