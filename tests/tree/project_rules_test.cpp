// The rules of the tree, applied to every file of the project.
#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

#include "tree/command.h"
#include "tree/forbidden.h"
#include "tree/layers.h"
#include "tree/source_text.h"

namespace quorrin::tree {
namespace {

using testing::IsEmpty;

const std::vector<std::string> kCpp = {".h", ".cpp"};

std::vector<std::string> codeFiles() {
    std::vector<std::string> files;
    for (const char* folder : {"src", "tests", "bench", "fuzz", "tools"}) {
        const auto more = projectFiles(folder, {".h", ".cpp", ".py", ".sh"});
        files.insert(files.end(), more.begin(), more.end());
    }
    return files;
}

std::size_t lineCount(const std::string& file) {
    return linesOf(readText(file)).size();
}

// Qt is known to its ports, to windows and to the mains that put a program together.
bool mayKnowQt(const std::string& pathInSrc) {
    return startsWith(pathInSrc, "platform/qt/") || startsWith(pathInSrc, "desktop/") ||
           startsWith(pathInSrc, "apps/") || startsWith(pathInSrc, "robot/window/") ||
           startsWith(pathInSrc, "client/window/");
}

TEST(ProjectRules, TheStationsFoldersIncludeNoQt) {
    int checked = 0;
    for (const auto& file : projectFiles("src", kCpp)) {
        const std::string inside = file.substr(4);
        if (mayKnowQt(inside)) continue;
        checked += isStationRoom(roomOf(inside)) ? 1 : 0;
        EXPECT_THAT(qtIncludes(readText(file)), IsEmpty()) << file;
    }
    EXPECT_GT(checked, 15);
}

TEST(ProjectRules, RealClocksTimersSleepsSocketsAndThreadsStayInThePorts) {
    for (const auto& file : projectFiles("src", kCpp)) {
        if (startsWith(file, "src/platform/host/") || startsWith(file, "src/platform/qt/")) continue;
        if (file == "src/platform/civil_time.cpp") continue;  // the calendar's sums, no clock
        const bool window = startsWith(file, "src/desktop/") || startsWith(file, "src/robot/window/") ||
                            startsWith(file, "src/client/window/");
        EXPECT_THAT(window ? hostCallsOfAWindow(readText(file)) : hostCalls(readText(file)), IsEmpty())
            << file;
    }
}

TEST(ProjectRules, NothingIsLeftOver) {
    for (const auto& file : projectFiles("")) {
        if (endsWith(file, ".bmp") || endsWith(file, ".wav") || endsWith(file, ".png")) continue;
        EXPECT_THAT(leftOvers(readText(file)), IsEmpty()) << file;
    }
}

TEST(ProjectRules, EveryHeaderBeginsByTellingWhatItIs) {
    for (const char* folder : {"src", "tests", "bench", "fuzz"}) {
        for (const auto& file : projectFiles(folder, {".h"}))
            EXPECT_TRUE(beginsWithComment(readText(file))) << file;
    }
}

TEST(ProjectRules, NoSourceFileIsLongerThan500Lines) {
    for (const auto& file : codeFiles()) EXPECT_LE(lineCount(file), 500U) << file;
}

TEST(ProjectRules, HalfTheFilesStayUnder120LinesAndNearlyAllUnder300) {
    std::vector<std::size_t> counts;
    for (const auto& file : codeFiles()) counts.push_back(lineCount(file));
    std::sort(counts.begin(), counts.end());
    ASSERT_FALSE(counts.empty());
    EXPECT_LT(counts[counts.size() / 2], 120U);
    const auto longOnes = counts.end() - std::upper_bound(counts.begin(), counts.end(), 300U);
    EXPECT_LE(longOnes * 20, static_cast<std::ptrdiff_t>(counts.size()))
        << longOnes << " of " << counts.size();
}

TEST(ProjectRules, TheCodeIsFormatted) {
    const Outcome outcome = runCommand("tools/lint");
    EXPECT_EQ(outcome.status, 0) << outcome.output;
}

TEST(ProjectRules, EveryShippedJsonFileParses) {
    for (const char* folder : {"share", "docs", "tools", "bench"}) {
        for (const auto& file : projectFiles(folder, {".json"}))
            EXPECT_EQ(jsonFault(readText(file)), "") << file;
        for (const auto& file : projectFiles(folder, {".jsonl"})) {
            EXPECT_EQ(jsonLinesFault(readText(file)), "") << file;
        }
    }
    EXPECT_EQ(jsonFault(readText("CMakePresets.json")), "");
}

TEST(ProjectRules, LinksInTheDocumentsPointToFilesThatExist) {
    const std::filesystem::path root = QUORRIN_SOURCE_DIR;
    for (const auto& file : projectFiles("", {".md"})) {
        const std::filesystem::path folder = (root / file).parent_path();
        for (const std::string& target : localLinks(readText(file))) {
            EXPECT_TRUE(std::filesystem::exists(folder / target)) << file << " links to " << target;
        }
    }
}

}  // namespace
}  // namespace quorrin::tree
