// quorrin-replay as a function: options to exit status, with the host's files and folders.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace quorrin {

// Output goes to `out`, messages go to `err`, both not owned. `arguments` without the program's name.
int replayProgram(const std::vector<std::string>& arguments, std::FILE* out, std::FILE* err);

}  // namespace quorrin
