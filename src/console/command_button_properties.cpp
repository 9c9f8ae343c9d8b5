#include "console/command_button_properties.h"

namespace quorrin {

CommandButtonProperties readCommandButton(const PropertyBag& bag) {
    CommandButtonProperties properties;
    properties.caption = bag.read("Caption", properties.caption);
    properties.enabled = bag.read("Enabled", properties.enabled);
    properties.font = bag.read("Font", properties.font);
    properties.fontColor = bag.read("FontColor", properties.fontColor);
    properties.buttonLook = bag.read("ButtonLook", properties.buttonLook);
    properties.icon = bag.read("Icon", properties.icon);
    properties.iconAlign = bag.read("IconAlign", properties.iconAlign);
    return properties;
}

void writeCommandButton(PropertyBag& bag, const CommandButtonProperties& properties) {
    const CommandButtonProperties fresh;
    bag.write("Caption", properties.caption, fresh.caption);
    bag.write("Enabled", properties.enabled, fresh.enabled);
    bag.write("Font", properties.font, fresh.font);
    bag.write("FontColor", properties.fontColor, fresh.fontColor);
    bag.write("ButtonLook", properties.buttonLook, fresh.buttonLook);
    bag.write("Icon", properties.icon, fresh.icon);
    bag.write("IconAlign", properties.iconAlign, fresh.iconAlign);
}

}  // namespace quorrin
