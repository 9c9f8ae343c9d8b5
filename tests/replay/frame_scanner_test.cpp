// The scanner is a shortcut: what it understands must mean the same to the parser, and what it does not
// understand must be left to it. A frame line whose keys are in another order goes the parser's way.
#include "replay/frame_scanner.h"

#include <gtest/gtest.h>

#include "replay/script_error.h"
#include "replay/script_parser.h"

namespace quorrin {
namespace {

TEST(FrameScanner, UnderstandsTheCommonForm) {
    ScriptLine line;
    EXPECT_TRUE(scanFrameLine(R"({"t": 0, "frame": "PowerFrame"})", line));
    EXPECT_TRUE(scanFrameLine(R"( {"t":1,"frame":"IrFrame" , "IrAdc6":-0 } )", line));
    EXPECT_TRUE(scanFrameLine("{\"t\": 12, \"frame\": \"SensorFrame\", \"SonarCm\": [1, 2,3 ,4]}\r", line));
    EXPECT_EQ(std::get<FrameLine>(line.what).sonarCm, (std::array<std::int16_t, 4>{1, 2, 3, 4}));
}

TEST(FrameScanner, LeavesEverythingElseToTheParser) {
    ScriptLine line;
    for (const char* text : {
             R"({"t": 1, "click": "cmdChEn"})",
             R"({"frame": "IrFrame", "t": 1})",
             R"({"t": 1, "frame": "ImageFrame", "bitmap": "a"})",
             R"({"t": 01, "frame": "IrFrame"})",
             R"({"t": 1.0, "frame": "IrFrame"})",
             R"({"t": 1, "frame": "IrFrame", "IrAdc1": 32768})",
             R"({"t": 1, "frame": "IrFrame", "IrAdc1": 1, "IrAdc1": 1})",
             R"({"t": 1, "frame": "IrFrame", "Battery1Adc": 1})",
             R"({"t": 1, "frame": "IrFr\u0061me"})",
             R"({"t": 1, "frame": "IrFrame",})",
             R"({"t": 1, "frame": "IrFrame"} x)",
             R"({"t": 1, "frame": "IrFrame")",
             R"({"t": 99999999999999999, "frame": "IrFrame"})",
             R"({"t": -1, "frame": "IrFrame"})",
             "",
         }) {
        EXPECT_FALSE(scanFrameLine(text, line)) << text;
    }
}

TEST(FrameScanner, MeansTheSameAsTheParser) {
    // The same frame twice: in the scanner's order of keys, and in an order that only the parser takes.
    const std::string members =
        R"("IrAdc0": 7, "SonarCm": [4, 3, 2, 1], "HumanAdc2": -32768, "IrAdc6": 32767)";
    ScriptLine quick;
    ASSERT_TRUE(scanFrameLine(R"({"t": 55, "frame": "SensorFrame", )" + members + "}", quick));
    ScriptLine slow;
    const std::string reordered = "{" + members + R"(, "frame": "SensorFrame", "t": 55})";
    ASSERT_FALSE(scanFrameLine(reordered, slow));
    parseScriptLine(reordered, 1, slow);
    const auto& a = std::get<FrameLine>(quick.what);
    const auto& b = std::get<FrameLine>(slow.what);
    EXPECT_EQ(quick.timeMs, slow.timeMs);
    EXPECT_EQ(a.kind, b.kind);
    EXPECT_EQ(a.named, b.named);
    EXPECT_EQ(a.sonarCm, b.sonarCm);
    for (int i = 0; i < kFrameProperties; ++i) {
        if (!a.has(i)) continue;
        EXPECT_EQ(a.values[static_cast<std::size_t>(i)], b.values[static_cast<std::size_t>(i)]);
    }
}

TEST(FrameScanner, AReusedLineForgetsTheFrameBefore) {
    ScriptLine line;
    ASSERT_TRUE(scanFrameLine(R"({"t": 1, "frame": "IrFrame", "IrAdc1": 5})", line));
    ASSERT_TRUE(scanFrameLine(R"({"t": 2, "frame": "IrFrame", "IrAdc2": 6})", line));
    EXPECT_FALSE(std::get<FrameLine>(line.what).has(findFrameProperty("IrAdc1")));
}

}  // namespace
}  // namespace quorrin
