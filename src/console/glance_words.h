// The captions of what the dashboard tells at a glance. Texts only.
#pragma once

#include <string>

namespace quorrin {

enum class GlanceName {
    mode,
    holder,
    motionLink,
    multimediaLink,
    battery1,
    battery2,
    leftDrive,
    rightDrive,
    remote,
    stuck
};

const std::string& glanceCaption(GlanceName name);

}  // namespace quorrin
