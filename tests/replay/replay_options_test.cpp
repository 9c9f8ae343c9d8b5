#include "replay/replay_options.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

using testing::HasSubstr;

std::string complaint(const std::vector<std::string>& arguments) {
    std::string text;
    parseReplayOptions(arguments, text);
    return text;
}

TEST(ReplayOptions, TakesFolderDateAndScript) {
    std::string text;
    const ReplayOptions options =
        parseReplayOptions({"--app", "dir", "--date", "2024-02-29 23:59:58", "s.jsonl"}, text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(options.app, "dir");
    EXPECT_EQ(options.script, "s.jsonl");
    EXPECT_EQ(options.date, (CivilTime{2024, 2, 29, 23, 59, 58}));
}

TEST(ReplayOptions, StandsAtTheDocumentedDateWhenNoneIsGiven) {
    std::string text;
    const ReplayOptions options = parseReplayOptions({"-"}, text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(options.script, "-");
    EXPECT_EQ(options.date, (CivilTime{2026, 11, 20, 9, 0, 0}));
}

TEST(ReplayOptions, ComplainsAboutWhatItDoesNotKnow) {
    EXPECT_EQ(complaint({}), "no script given");
    EXPECT_EQ(complaint({"--fast", "s"}), "unknown option --fast");
    EXPECT_EQ(complaint({"a", "b"}), "more than one script: a and b");
    EXPECT_EQ(complaint({"s", "--app"}), "--app needs a value");
    EXPECT_THAT(complaint({"s", "--date", "today"}), HasSubstr("--date wants"));
    EXPECT_THAT(complaint({"s", "--report"}), HasSubstr("belong to --robot"));
    EXPECT_THAT(complaint({"--robot", "office"}), HasSubstr("--robot needs"));
    EXPECT_THAT(complaint({"--robot", "office", "--minutes", "0", "--report"}), HasSubstr("--minutes wants"));
    EXPECT_THAT(complaint({"--robot", "office", "--seed", "-1", "--minutes", "1", "--report"}),
                HasSubstr("--seed wants"));
}

TEST(ReplayOptions, TakesTheSimulatedRobotsOptions) {
    std::string text;
    const ReplayOptions options = parseReplayOptions(
        {"--robot", "office", "--seed", "7", "--scenario", "f", "--minutes", "1.5", "--report"}, text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(options.robotSite, "office");
    EXPECT_EQ(options.seed, 7U);
    EXPECT_EQ(options.scenario, "f");
    EXPECT_EQ(options.minutes, 1.5);
    EXPECT_TRUE(options.report);
}

TEST(ReplayOptions, ADateMustExist) {
    EXPECT_TRUE(parseDate("2026-11-20 09:00:00"));
    EXPECT_FALSE(parseDate("2026-02-30 09:00:00"));
    EXPECT_FALSE(parseDate("2026-13-01 09:00:00"));
    EXPECT_FALSE(parseDate("2026-11-20 24:00:00"));
    EXPECT_FALSE(parseDate("2026-11-20T09:00:00"));
    EXPECT_FALSE(parseDate("2026-11-20"));
    EXPECT_FALSE(parseDate("2026-11-20 09:00:0x"));
}

}  // namespace
}  // namespace quorrin
