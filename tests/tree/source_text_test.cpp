#include "tree/source_text.h"

#include <gmock/gmock.h>

namespace quorrin::tree {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(SourceText, FindsTheProjectsFilesAndLeavesBuildFoldersOut) {
    const auto files = projectFiles("src", {".h"});
    EXPECT_THAT(files, testing::Contains("src/base/form.h"));
    for (const auto& file : projectFiles("")) EXPECT_FALSE(startsWith(file, "build")) << file;
}

TEST(SourceText, CodeOnlyDropsBothKindsOfCommentAndKeepsLineNumbers) {
    EXPECT_EQ(codeOnly("a; // sleep\nb; /* two\nlines */ c;\n"), "a; \nb; \n c;\n");
}

TEST(SourceText, CodeOnlyEmptiesLiteralsAndIsNotFooledByTheirQuotes) {
    EXPECT_EQ(codeOnly(R"(x = "a // \" b"; y = '"'; z)"), R"(x = ""; y = ''; z)");
    EXPECT_EQ(codeOnly("x = R\"(one \" // two)\"; y"), "x = \"\"; y");
}

TEST(SourceText, CodeOnlyTakesDigitSeparatorsAsPartOfTheNumber) {
    EXPECT_EQ(codeOnly("x = 10'000; // it's"), "x = 10'000; ");
}

TEST(SourceText, ReadsQuotedAndSystemIncludesWithTheirLines) {
    const auto includes = includesOf("// #include no\n#include <vector>\n\n  #  include \"base/form.h\"\n");
    ASSERT_EQ(includes.size(), 2U);
    EXPECT_EQ(includes[0].path, "vector");
    EXPECT_TRUE(includes[0].system);
    EXPECT_EQ(includes[1].path, "base/form.h");
    EXPECT_FALSE(includes[1].system);
    EXPECT_EQ(includes[1].line, 4);
}

TEST(SourceText, MatchesAreNamedByLine) {
    EXPECT_THAT(matchesOf("one\ntwo\n", "tw."), ElementsAre("line 2: two"));
    EXPECT_THAT(matchesOf("one\n", "tw."), IsEmpty());
}

}  // namespace
}  // namespace quorrin::tree
