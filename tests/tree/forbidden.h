// Words that must not stand in certain files, as functions over text. Each returns what it found, a line
// each.
#pragma once

#include <string>
#include <vector>

namespace quorrin::tree {

// Real clocks, timers, sleeps, sockets, threads, files of the machine: they belong behind the ports.
// Comments and literals do not count.
std::vector<std::string> hostCalls(const std::string& source);
// The same list without Qt's timers, which a window may use for drawing.
std::vector<std::string> hostCallsOfAWindow(const std::string& source);

// Includes of Qt's headers.
std::vector<std::string> qtIncludes(const std::string& source);

// What is left over from work not finished: notes to oneself, tests that are switched off.
std::vector<std::string> leftOvers(const std::string& text);

// A header begins with a comment that says what its thing is.
bool beginsWithComment(const std::string& header);

// Empty when the text is one JSON value, or (each line of JSON Lines, "#" lines and blank ones left out)
// many; else the reason.
std::string jsonFault(const std::string& text);
std::string jsonLinesFault(const std::string& text);

// Targets of the links in a Markdown text that point into the project, "#..." cut off.
std::vector<std::string> localLinks(const std::string& markdown);

}  // namespace quorrin::tree
