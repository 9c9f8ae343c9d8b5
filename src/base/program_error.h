// The two ways in which a handler can leave the program's normal course.
#pragma once

#include <stdexcept>
#include <string>

namespace quorrin {

// A value that does not fit, a bad index, a floating-point fault, a text that is no number. Where no routine
// is meant to catch it, it ends the program.
class ProgramError : public std::runtime_error {
  public:
    explicit ProgramError(const std::string& what) : std::runtime_error(what) {}
};

// The program has asked to end. Deliberately no std::exception: nothing that skips failed steps swallows it.
struct ProgramEnd {};

}  // namespace quorrin
