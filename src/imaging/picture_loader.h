// Reads a picture file, by what is in it and not by its name: a 24-bit Windows bitmap or a JPEG. Faults are
// told, never thrown.
#pragma once

#include <string>

#include "imaging/picture.h"
#include "platform/files.h"

namespace quorrin {

LoadedPicture loadPicture(Files& files, const std::string& path);
// The same for a file's content.
LoadedPicture readPicture(std::string content);

}  // namespace quorrin
