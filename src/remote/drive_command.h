// The drive command: eight decimal integers separated by ",", a client's whole joystick in one line.
//
//   steering,gas,brake,head up and down,head left and right,mouth,collision avoidance,counter
//
// A field is an optional sign and digits, with blanks around it allowed, and fits 16 bits. After each of the
// first seven as many characters are cut off the text as the value has in plain decimal form, and one for the
// comma; not up to the comma. So a field with a leading zero, a sign of plus or a blank shifts those behind
// it. This is how the channel works and clients send plain numbers.
//
// A field that does not convert, does not fit or has no comma behind it leaves its value as it was, and the
// cut is measured on that one. Nothing is an error.
#pragma once

#include <string_view>

#include "base/checked_int.h"

namespace quorrin {

struct DriveCommand {
    Integer steering;
    Integer gas;
    Integer brake;
    Integer headUpDown;
    Integer headLeftRight;
    Integer mouth;
    Integer avoidance;  // 1: on
    Integer count;

    // Levels above 10 ask for the JOY mode.
    bool asksForJoy() const { return steering > 10; }
};

// `values` comes in with what each variable holds, `avoidance` with 0.
void parseDriveCommand(std::string_view payload, DriveCommand& values);

}  // namespace quorrin
