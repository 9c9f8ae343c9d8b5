// What differs between the two gateway programs. Constants only.
#pragma once

#include <string>

#include "robot.pb.h"

namespace quorrin {

struct GatewayKind {
    std::string program;
    wire::Role role;
    std::string endpoint;  // the local name that the station binds its link to
    std::string title;     // of the window
    std::string profile;   // file in the folder of profile files
};

inline const GatewayKind kMotionGateway{"QuorrinGatewaymot", wire::ROLE_MOT, "motcom",
                                        "Quorrin Gateway_MotionControl", "gateway_mot.ini"};
inline const GatewayKind kMultimediaGateway{"QuorrinGatewayTI", wire::ROLE_TI, "ticom",
                                            "Quorrin Gateway_Multimedia", "gateway_ti.ini"};

}  // namespace quorrin
