// The file that a script is read from, which can be read twice.
//
// Standard input may be a pipe, which cannot go back: then it is copied into a file without a name first, up
// to its first line that cannot be used (nothing behind that one is ever run).
#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace quorrin {

struct CloseFile {
    void operator()(std::FILE* file) const {
        if (file != stdin) std::fclose(file);
    }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

// The script of that path, "-" for standard input. Null with a complaint where there is none.
OpenFile openScript(const std::string& script, std::string& complaint);

// `file` itself where it can go back, else a copy; null with a complaint where it cannot be made.
OpenFile readTwice(OpenFile file, std::string& complaint);

}  // namespace quorrin
