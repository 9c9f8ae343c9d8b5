// What a program without windows says on standard output: lines, and one live line at the bottom of a
// terminal.
//
// On a terminal the live line is rewritten in place and cut at the terminal's width; other lines push it
// down. Where the output is no terminal, every text is a line of its own. A reader that does not read costs
// lines, never time: what would block is dropped. One thread; no errors.
#pragma once

#include <string>

namespace quorrin {

class Terminal {
  public:
    // Ignores SIGPIPE for the process: a reader that goes away is no reason to end.
    explicit Terminal(int descriptor = 1);
    ~Terminal();
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    bool isTerminal() const { return isTerminal_; }
    void line(const std::string& text);
    void live(const std::string& text);

  private:
    void write(const std::string& text);
    std::size_t width() const;

    int descriptor_;
    bool isTerminal_;
    std::string live_;
};

}  // namespace quorrin
