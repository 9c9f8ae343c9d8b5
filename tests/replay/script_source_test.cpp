#include "replay/script_source.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "replay/line_reader.h"

namespace quorrin {
namespace {

constexpr const char* kGood = "# one\n{\"t\": 1, \"answer\": \"no\"}\n\n{\"t\": 2, \"answer\": \"no\"}";

// A pipe from which `text` can be read and no more.
OpenFile pipeWith(const std::string& text) {
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    EXPECT_EQ(::write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
    ::close(ends[1]);
    return OpenFile(::fdopen(ends[0], "rb"));
}

std::vector<std::string> twice(std::FILE* file) {
    LineReader lines(file);
    std::vector<std::string> all;
    while (const auto line = lines.next()) all.emplace_back(*line);
    lines.rewind();
    std::vector<std::string> again;
    while (const auto line = lines.next()) again.emplace_back(*line);
    EXPECT_EQ(again, all);
    return all;
}

TEST(ScriptSource, AFileIsTakenAsItIs) {
    std::string text = kGood;
    std::FILE* memory = fmemopen(text.data(), text.size(), "rb");
    std::string complaint;
    const OpenFile file = readTwice(OpenFile(memory), complaint);
    EXPECT_EQ(file.get(), memory);
}

TEST(ScriptSource, APipeCanBeReadTwice) {
    std::string complaint;
    const OpenFile file = readTwice(pipeWith(kGood), complaint);
    ASSERT_TRUE(file) << complaint;
    EXPECT_EQ(twice(file.get()), (std::vector<std::string>{"# one", "{\"t\": 1, \"answer\": \"no\"}", "",
                                                           "{\"t\": 2, \"answer\": \"no\"}"}));
}

TEST(ScriptSource, OfAPipeNothingBehindALineThatCannotBeUsedIsKept) {
    std::string complaint;
    const OpenFile file = readTwice(pipeWith("rubbish\n{\"t\": 2, \"answer\": \"no\"}\n"), complaint);
    ASSERT_TRUE(file) << complaint;
    EXPECT_EQ(twice(file.get()), std::vector<std::string>{"rubbish"});
}

TEST(ScriptSource, AFileThatIsNotThereIsToldSo) {
    std::string complaint;
    EXPECT_EQ(openScript("/no/such/script", complaint), nullptr);
    EXPECT_EQ(complaint, "cannot be opened");
}

}  // namespace
}  // namespace quorrin
