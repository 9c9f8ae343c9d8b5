// The picture of a JPEG file, in colour whatever it was. Pure.
//
// A file whose data ends early or has a gap is a fault, though something could be shown of it: a photograph
// that is half grey is none.
#pragma once

#include <string_view>

#include "imaging/picture.h"

namespace quorrin {

// By its first two bytes.
bool looksLikeJpeg(std::string_view file);
LoadedPicture readJpeg(std::string_view file);

}  // namespace quorrin
