// Runs steps in order; a step that fails with a ProgramError is skipped and the next one runs.
//
// Only ProgramError is swallowed. Each step is one statement's worth: what a step did before it failed
// stands.
#pragma once

#include "base/program_error.h"

namespace quorrin {

template <typename... Steps>
void resumeOnError(Steps&&... steps) {
    const auto attempt = [](auto& step) {
        try {
            step();
        } catch (const ProgramError&) {
            // skipped by rule
        }
    };
    (attempt(steps), ...);
}

}  // namespace quorrin
