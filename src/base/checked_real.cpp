#include "base/checked_real.h"

#include <string>

#include "base/program_error.h"

namespace quorrin {

void throwFloatingFault(const char* where) {
    throw ProgramError(std::string("floating-point fault: ") + where);
}

}  // namespace quorrin
