#include "console/glance_words.h"

#include <map>

namespace quorrin {

const std::string& glanceCaption(GlanceName name) {
    static const std::map<GlanceName, std::string> captions = {
        {GlanceName::mode, "Mode"},
        {GlanceName::holder, "Driver"},
        {GlanceName::motionLink, "Motion"},
        {GlanceName::multimediaLink, "Multimedia"},
        {GlanceName::battery1, "Battery 1"},
        {GlanceName::battery2, "Battery 2"},
        {GlanceName::leftDrive, "Left Drive"},
        {GlanceName::rightDrive, "Right Drive"},
        {GlanceName::remote, "Remote"},
        {GlanceName::stuck, "Wheels"},
    };
    return captions.at(name);
}

}  // namespace quorrin
