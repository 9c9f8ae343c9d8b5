#include "client/drive_fields.h"

#include <algorithm>

namespace quorrin {

namespace {

constexpr int kMovesAbove = 9000;

int within(int value, const Scale& scale) {
    return std::clamp(value, scale.lowest, scale.highest);
}

}  // namespace

DriveFields limited(DriveFields fields) {
    fields.steering = within(fields.steering, kSteeringScale);
    fields.gas = within(fields.gas, kLevelScale);
    fields.brake = within(fields.brake, kLevelScale);
    fields.headUpDown = within(fields.headUpDown, kHeadUpDownScale);
    fields.headLeftRight = within(fields.headLeftRight, kHeadLeftRightScale);
    fields.mouth = within(fields.mouth, kMouthScale);
    fields.avoidance = fields.avoidance == 1 ? 1 : 0;
    return fields;
}

DriveFields neutral(DriveFields fields) {
    fields.steering = kStraight;
    fields.gas = kNoGas;
    fields.brake = kBrakeReleased;
    return fields;
}

bool stands(const DriveFields& fields) {
    return fields.gas == kNoGas || fields.brake <= kMovesAbove;
}

std::string driveText(const DriveFields& fields, int counter) {
    std::string text;
    for (const int field : {fields.steering, fields.gas, fields.brake, fields.headUpDown,
                            fields.headLeftRight, fields.mouth, fields.avoidance})
        text += std::to_string(field) + ",";
    return text + std::to_string(counter);
}

}  // namespace quorrin
