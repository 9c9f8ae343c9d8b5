// One list names every package; the scripts and the presets take them from there.
#include <gmock/gmock.h>

#include <algorithm>

#include "tree/command.h"
#include "tree/source_text.h"

namespace quorrin::tree {
namespace {

using testing::Contains;
using testing::HasSubstr;

TEST(Dependencies, TheInstallScriptListsThePackagesOfAGroupWithoutTheirComments) {
    const Outcome build = runCommand("packaging/install-dependencies --list build");
    EXPECT_EQ(build.status, 0) << build.output;
    EXPECT_THAT(linesOf(build.output), Contains("qt6-base-dev"));
    EXPECT_THAT(linesOf(build.output), testing::Not(Contains("libgtest-dev")));
    EXPECT_THAT(build.output, testing::Not(HasSubstr("#")));
}

TEST(Dependencies, AGroupThatIsNotInTheListIsRefusedByName) {
    const Outcome outcome = runCommand("packaging/install-dependencies --list kitchen");
    EXPECT_NE(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("no group \"kitchen\""));
}

TEST(Dependencies, NothingIsAskedForWhereEverythingIsInstalled) {
    const Outcome outcome = runCommand("packaging/install-dependencies build test");
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_EQ(outcome.output, "");
}

TEST(Dependencies, NoPackageIsNamedTwice) {
    auto packages = linesOf(runCommand("packaging/install-dependencies --list").output);
    EXPECT_GT(packages.size(), 10U);
    std::sort(packages.begin(), packages.end());
    EXPECT_EQ(std::adjacent_find(packages.begin(), packages.end()), packages.end());
}

TEST(Dependencies, EveryScriptIsSoundBash) {
    for (const char* script : {"run", "test", ".ci/run", "packaging/install-dependencies", "tools/lint"}) {
        const Outcome outcome = runCommand(std::string("bash -n ") + script);
        EXPECT_EQ(outcome.status, 0) << script << ": " << outcome.output;
    }
}

}  // namespace
}  // namespace quorrin::tree
