#include "base/checked_int.h"

#include <string>

#include "base/program_error.h"

namespace quorrin {

void throwDoesNotFit(const char* type, std::int64_t value) {
    throw ProgramError("value " + std::to_string(value) + " does not fit " + type);
}

void throwDoesNotFit(const char* type, double value) {
    throw ProgramError("value " + std::to_string(value) + " does not fit " + type);
}

void throwDivisionByZero() {
    throw ProgramError("division by zero");
}

}  // namespace quorrin
