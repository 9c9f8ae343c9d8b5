// The two profile helpers that the whole program and its gateways use.
//
// Files are read and replaced as a whole: a crash while writing leaves the old file or the new one.
#pragma once

#include <string>

#include "platform/files.h"

namespace quorrin {

// The value of a key: at most 128 characters, cut at the first NUL, without blanks around it. A missing file,
// section or key gives an empty text.
std::string ReadIni(const std::string& section, const std::string& key, const std::string& file,
                    Files& files);

// Writes one value and creates file and section where they are missing. The value ends at its first NUL; no
// NUL gets into the file. False when the file could not be read or written, for an empty name, and for a name
// or value with a line break in it; the file is then as it was.
bool WriteIni(const std::string& section, const std::string& key, const std::string& value,
              const std::string& file, Files& files);

}  // namespace quorrin
