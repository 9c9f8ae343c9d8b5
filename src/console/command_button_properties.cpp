#include "console/command_button_properties.h"

namespace quorrin {

namespace {

// The names of the stored form; the one list for reading and writing.
template <typename Properties, typename Each>
void eachProperty(Properties& properties, Each each) {
    const CommandButtonProperties fresh;
    each("Caption", properties.caption, fresh.caption);
    each("Enabled", properties.enabled, fresh.enabled);
    each("Font", properties.font, fresh.font);
    each("FontColor", properties.fontColor, fresh.fontColor);
    each("ButtonLook", properties.buttonLook, fresh.buttonLook);
    each("Icon", properties.icon, fresh.icon);
    each("IconAlign", properties.iconAlign, fresh.iconAlign);
}

}  // namespace

CommandButtonProperties readCommandButton(const PropertyBag& bag) {
    CommandButtonProperties properties;
    eachProperty(properties, FromBag{bag});
    return properties;
}

void writeCommandButton(PropertyBag& bag, const CommandButtonProperties& properties) {
    eachProperty(properties, IntoBag{bag});
}

}  // namespace quorrin
