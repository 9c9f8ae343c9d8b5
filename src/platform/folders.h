// Where things lie on this machine. Absolute paths without a trailing "/".
#pragma once

#include <string>

namespace quorrin {

struct Folders {
    std::string application;  // the user's data folder: site pictures, sounds, archive
    std::string windows;      // profile files of the gateways
    std::string tempVoice;    // voice files on their way to the robot
    std::string programs;     // folder of this executable; the gateways lie beside it
};

}  // namespace quorrin
