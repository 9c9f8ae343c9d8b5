#include "replay/line_reader.h"

#include <gtest/gtest.h>

#include <string>

namespace quorrin {
namespace {

std::vector<std::string> readAll(std::string text) {
    std::FILE* file = fmemopen(text.data(), text.size(), "rb");
    LineReader reader(file);
    std::vector<std::string> lines;
    while (const auto line = reader.next()) lines.emplace_back(*line);
    EXPECT_TRUE(reader.good());
    EXPECT_EQ(reader.lineNumber(), static_cast<std::int64_t>(lines.size()));
    std::fclose(file);
    return lines;
}

TEST(LineReader, GivesTheLinesWithoutTheirLineFeeds) {
    EXPECT_EQ(readAll("one\n\nthree\n"), (std::vector<std::string>{"one", "", "three"}));
}

TEST(LineReader, TheLastLineNeedsNoLineFeed) {
    EXPECT_EQ(readAll("one\ntwo"), (std::vector<std::string>{"one", "two"}));
}

TEST(LineReader, LinesLongerThanThePieceAndAcrossItsEdgeComeWhole) {
    std::vector<std::string> lines;
    std::string text;
    for (std::size_t i = 0; i < 40; ++i) {
        lines.emplace_back(i * 4001 + (i % 7 == 0 ? 600'000 : 0), static_cast<char>('a' + i % 26));
        text += lines.back() + "\n";
    }
    EXPECT_EQ(readAll(text), lines);
}

TEST(LineReader, BeginsAnewWhereItBegan) {
    std::string text = "passed over\none\ntwo";
    std::FILE* file = fmemopen(text.data(), text.size(), "rb");
    std::fseek(file, 12, SEEK_SET);
    LineReader reader(file);
    while (reader.next()) {
    }
    reader.rewind();
    EXPECT_EQ(reader.next(), "one");
    EXPECT_EQ(reader.lineNumber(), 1);
    reader.rewind();
    EXPECT_EQ(reader.next(), "one");
    EXPECT_EQ(reader.next(), "two");
    EXPECT_EQ(reader.next(), std::nullopt);
    EXPECT_TRUE(reader.good());
    std::fclose(file);
}

TEST(LineReader, AFileThatIsNotThereReadsNothingAndIsNotGood) {
    LineReader reader(nullptr);
    EXPECT_FALSE(reader.good());
    EXPECT_FALSE(reader.next().has_value());
}

}  // namespace
}  // namespace quorrin
