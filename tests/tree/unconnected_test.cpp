// What is built and stays unconnected: no part of the programs reaches for it.
#include <gtest/gtest.h>

#include "tree/source_text.h"

namespace quorrin::tree {
namespace {

const std::string kMarks = R"(\b(printBigPicture|printthumbnailPicture|setPictureCenter)\b)";

std::vector<std::string> usersOf(const std::string& expression) {
    std::vector<std::string> users;
    for (const std::string& path : projectFiles("src", {".h", ".cpp"})) {
        if (!matchesOf(codeOnly(readText(path)), expression).empty()) users.push_back(path);
    }
    return users;
}

TEST(Unconnected, NothingCallsTheMarksOfTheFloorPlan) {
    EXPECT_EQ(usersOf(kMarks),
              (std::vector<std::string>{"src/console/map_marks.cpp", "src/console/map_marks.h"}));
}

TEST(Unconnected, NoMarkOfTheFloorPlanIsCalledByAnother) {
    const std::string code = codeOnly(readText("src/console/map_marks.cpp"));
    EXPECT_EQ(matchesOf(code, kMarks).size(), 3U);
    EXPECT_EQ(matchesOf(code, "^void " + kMarks).size(), 3U);
}

}  // namespace
}  // namespace quorrin::tree
