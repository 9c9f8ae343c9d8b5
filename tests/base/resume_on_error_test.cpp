#include "base/resume_on_error.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace quorrin {
namespace {

TEST(ResumeOnError, RunsEveryStepInOrder) {
    std::vector<int> steps;
    resumeOnError([&] { steps.push_back(1); }, [&] { steps.push_back(2); }, [&] { steps.push_back(3); });
    EXPECT_EQ(steps, (std::vector<int>{1, 2, 3}));
}

TEST(ResumeOnError, GoesOnBehindAStepThatFails) {
    std::vector<int> steps;
    resumeOnError(
        [&] {
            steps.push_back(1);
            throw ProgramError("broken");
        },
        [&] { throw ProgramError("broken, too"); }, [&] { steps.push_back(3); });
    EXPECT_EQ(steps, (std::vector<int>{1, 3}));  // what a step did before it failed stands
}

TEST(ResumeOnError, LetsTheEndOfTheProgramThrough) {
    bool later = false;
    EXPECT_THROW(resumeOnError([] { throw ProgramEnd{}; }, [&] { later = true; }), ProgramEnd);
    EXPECT_FALSE(later);
}

TEST(ResumeOnError, LetsOtherFailuresThrough) {
    EXPECT_THROW(resumeOnError([] { throw std::logic_error("a bug"); }), std::logic_error);
}

}  // namespace
}  // namespace quorrin
