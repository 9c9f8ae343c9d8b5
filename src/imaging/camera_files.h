// The fixed files of the camera chain, in the application folder.
//
// Names are written in several spellings by those who use these files ("Tempvb.jpg", "tempvb.jpg"); where the
// file system tells case apart these are the ones that all of them take.
#pragma once

#include <string>

namespace quorrin {

inline std::string savedFramePath(const std::string& applicationFolder) {
    return applicationFolder + "/tempImage.bmp";
}
// The picture for remote clients.
inline std::string videoJpegPath(const std::string& applicationFolder) {
    return applicationFolder + "/Tempvb.jpg";
}
// The picture for the archive.
inline std::string captureJpegPath(const std::string& applicationFolder) {
    return applicationFolder + "/Tempvb_P.jpg";
}

}  // namespace quorrin
