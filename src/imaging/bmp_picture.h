// The picture of a 24-bit Windows bitmap file, uncompressed. Pure.
//
// Rows from the bottom are used where they stand in the content; rows from the top (a negative height) are
// turned round. What the header says of the file's and the picture's bytes is not looked at: width, height
// and the rows' place tell them.
#pragma once

#include <string>

#include "imaging/picture.h"

namespace quorrin {

LoadedPicture readBmp24(std::string content);

}  // namespace quorrin
