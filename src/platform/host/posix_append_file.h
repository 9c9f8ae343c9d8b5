// Growing files of a POSIX machine. Each append goes to the system at once, so that what was appended
// outlives the program, if not the machine.
#pragma once

#include "platform/append_file.h"

namespace quorrin {

std::unique_ptr<AppendFile> createPosixAppendFile(const std::string& path);

}  // namespace quorrin
