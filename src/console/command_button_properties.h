// What a form stores of a skinned push button, under the names of the stored form.
#pragma once

#include <cstdint>
#include <string>

#include "base/controls.h"
#include "console/property_bag.h"

namespace quorrin {

// The values are those of a button that was just put on a form.
struct CommandButtonProperties {
    std::string caption = "XpButton1";
    bool enabled = true;          // a disabled button shows it and takes no input
    FontChoice font;              // ambient
    Colour fontColor = 0;         // of the caption
    std::int32_t buttonLook = 0;  // which skin of the strip
    std::int32_t icon = 0;        // number of the picture beside the caption; 0 is none
    std::int32_t iconAlign = 0;   // see button_face.h
};

CommandButtonProperties readCommandButton(const PropertyBag& bag);
void writeCommandButton(PropertyBag& bag, const CommandButtonProperties& properties);

}  // namespace quorrin
