// Reads the project's own files and looks at their text. The rules themselves are functions over text, so
// that each can be shown to fail on a planted violation; only projectFiles() and readText() touch the disk.
//
// Paths are relative to the project's root, "/" between folders.
#pragma once

#include <string>
#include <vector>

namespace quorrin::tree {

// All files below `folder` (relative to the root), sorted; build folders and hidden folders are left out.
// `endings` such as {".h", ".cpp"}; empty takes every file.
std::vector<std::string> projectFiles(const std::string& folder,
                                      const std::vector<std::string>& endings = {});
// The whole file. Throws std::runtime_error when it cannot be read.
std::string readText(const std::string& path);

bool startsWith(const std::string& text, const std::string& start);
bool endsWith(const std::string& text, const std::string& end);
std::vector<std::string> linesOf(const std::string& text);

// C++ text without its comments, and with the contents of its string and character literals removed. Lines
// keep their numbers.
std::string codeOnly(const std::string& text);

struct Include {
    std::string path;
    bool system = false;  // <path>
    int line = 0;
};
std::vector<Include> includesOf(const std::string& text);

// Every place where the extended regular expression matches a line: "line 3: the line".
std::vector<std::string> matchesOf(const std::string& text, const std::string& expression);

}  // namespace quorrin::tree
