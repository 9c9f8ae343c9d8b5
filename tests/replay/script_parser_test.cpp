#include "replay/script_parser.h"

#include <gmock/gmock.h>

#include "replay/script_error.h"

namespace quorrin {
namespace {

using testing::HasSubstr;

ScriptLine parse(const std::string& text) {
    ScriptLine line;
    parseScriptLine(text, 7, line);
    return line;
}

// The reason for which the line is refused; empty when it is not.
std::string reason(const std::string& text) {
    try {
        parse(text);
    } catch (const ScriptError& error) {
        EXPECT_EQ(error.line, 7) << text;
        return error.reason;
    }
    return {};
}

TEST(ScriptParser, SkipsBlankLinesAndComments) {
    EXPECT_TRUE(isSkippedLine(""));
    EXPECT_TRUE(isSkippedLine(" \t\r"));
    EXPECT_TRUE(isSkippedLine("# {\"t\": 1}"));
    EXPECT_FALSE(isSkippedLine(" # not at the beginning"));
    EXPECT_FALSE(isSkippedLine("{}"));
}

TEST(ScriptParser, ReadsAFrameWithItsProperties) {
    const ScriptLine line =
        parse(R"({"t": 40, "frame": "SensorFrame", "IrAdc0": 310, "SonarCm": [88,120,90,-200]})");
    EXPECT_EQ(line.number, 7);
    EXPECT_EQ(line.timeMs, 40);
    const auto& frame = std::get<FrameLine>(line.what);
    EXPECT_STREQ(frameKinds()[static_cast<std::size_t>(frame.kind)].name, "SensorFrame");
    EXPECT_EQ(frame.values[static_cast<std::size_t>(findFrameProperty("IrAdc0"))], 310);
    EXPECT_TRUE(frame.has(findFrameProperty("SonarCm")));
    EXPECT_EQ(frame.sonarCm, (std::array<std::int16_t, 4>{88, 120, 90, -200}));
    EXPECT_FALSE(frame.has(findFrameProperty("IrAdcHead")));
}

TEST(ScriptParser, AFrameMayNameAnyPropertyOfItsLink) {
    EXPECT_EQ(reason(R"({"t": 1, "frame": "SensorFrame", "EncoderPositionLeft": 5})"), "");
    EXPECT_THAT(reason(R"({"t": 1, "frame": "SensorFrame", "Battery1Adc": 5})"),
                HasSubstr("\"Battery1Adc\" does not belong to myRobot"));
    EXPECT_THAT(reason(R"({"t": 1, "frame": "PowerFrame", "SonarCm": [1,2,3,4]})"),
                HasSubstr("\"SonarCm\" does not belong to robotTI"));
}

TEST(ScriptParser, KeysMayComeInAnyOrder) {
    const ScriptLine line = parse(R"({"IrAdc3": -1, "frame": "IrFrame", "t": 9})");
    EXPECT_EQ(line.timeMs, 9);
    EXPECT_EQ(std::get<FrameLine>(line.what).values[static_cast<std::size_t>(findFrameProperty("IrAdc3"))],
              -1);
}

TEST(ScriptParser, AnImageFrameMayCarryABitmapAndASoundFrameItsBytes) {
    const ScriptLine image = parse(R"({"t": 1, "frame": "ImageFrame", "bitmap": "a.bmp"})");
    EXPECT_EQ(std::get<FrameFileLine>(image.what).bitmap, "a.bmp");
    const ScriptLine sound = parse(R"({"t": 1, "frame": "SoundFrame", "hex": "00fF"})");
    EXPECT_EQ(std::get<FrameFileLine>(sound.what).soundBytes, std::string("\0\xFF", 2));
    const ScriptLine file = parse(R"({"t": 1, "frame": "SoundFrame", "file": "a.pcm"})");
    EXPECT_EQ(std::get<FrameFileLine>(file.what).soundFile, "a.pcm");
    EXPECT_THAT(reason(R"({"t": 1, "frame": "SoundFrame", "hex": "0"})"), HasSubstr("hex digits"));
    EXPECT_THAT(reason(R"({"t": 1, "frame": "SoundFrame", "hex": "00", "file": "a"})"), HasSubstr("both"));
    EXPECT_EQ(reason(R"({"t": 1, "frame": "PowerFrame", "bitmap": "a"})"), "unknown key \"bitmap\"");
    EXPECT_EQ(reason(R"({"t": 1, "frame": "ImageFrame", "hex": "00"})"), "unknown key \"hex\"");
}

TEST(ScriptParser, ReadsTheOperatorsLines) {
    EXPECT_EQ(std::get<ClickLine>(parse(R"({"t": 1, "click": "cmdChEn"})").what).control, "cmdChEn");
    EXPECT_TRUE(std::get<PressLine>(parse(R"({"t": 1, "press": "cmdTalk"})").what).down);
    EXPECT_FALSE(std::get<PressLine>(parse(R"({"t": 1, "release": "cmdTalk"})").what).down);
    const ScriptLine set = parse(R"({"t": 1, "set": "txtTh1", "to": "41"})");
    EXPECT_EQ(std::get<std::string>(std::get<SetLine>(set.what).to), "41");
    EXPECT_EQ(std::get<std::int64_t>(std::get<SetLine>(parse(R"({"t": 1, "set": "s", "to": 5})").what).to),
              5);
    EXPECT_TRUE(std::get<bool>(std::get<SetLine>(parse(R"({"t": 1, "set": "s", "to": true})").what).to));
    const ScriptLine key = parse(R"x({"t": 1, "keyDown": 8, "on": "frmLogin.txt_ip(1)"})x");
    EXPECT_EQ(std::get<KeyLine>(key.what).key, 8);
    EXPECT_EQ(std::get<KeyLine>(key.what).control, "frmLogin.txt_ip(1)");
    EXPECT_FALSE(std::get<KeyLine>(key.what).onPanel);
    const ScriptLine panelKey = parse(R"({"t": 1, "keyUp": 37})");
    EXPECT_EQ(std::get<KeyLine>(panelKey.what).key, 37);
    EXPECT_FALSE(std::get<KeyLine>(panelKey.what).down);
    EXPECT_TRUE(std::get<KeyLine>(panelKey.what).onPanel);
    EXPECT_EQ(std::get<FocusLine>(parse(R"({"t": 1, "focus": "a"})").what).control, "a");
    EXPECT_EQ(std::get<AnswerLine>(parse(R"({"t": 1, "answer": "yes"})").what).answer, "yes");
    EXPECT_EQ(std::get<UnloadLine>(parse(R"({"t": 1, "unload": true})").what).form, "");
    EXPECT_EQ(std::get<UnloadLine>(parse(R"({"t": 1, "unload": "frmX"})").what).form, "frmX");
    EXPECT_EQ(std::get<ActivateLine>(parse(R"({"t": 1, "activate": "frmX"})").what).form, "frmX");
    const ScriptLine watch = parse(R"({"t": 1, "watch": ["robotX", "txtCnt"], "every": 100})");
    EXPECT_EQ(std::get<WatchLine>(watch.what).names, (std::vector<std::string>{"robotX", "txtCnt"}));
    EXPECT_EQ(std::get<WatchLine>(watch.what).everyMs, 100);
    EXPECT_TRUE(std::holds_alternative<LoginLine>(parse(R"({"t": 0, "login": true})").what));
}

TEST(ScriptParser, ReadsWhatRemoteClientsDo) {
    const ScriptLine call = parse(R"({"t": 1, "connect": "wskCommand", "from": "10.0.0.5", "port": 40000})");
    EXPECT_EQ(std::get<ConnectLine>(call.what).array, "wskCommand");
    EXPECT_EQ(std::get<ConnectLine>(call.what).from, "10.0.0.5");
    EXPECT_EQ(std::get<ConnectLine>(call.what).port, 40000);
    const auto socket = [](const char* text) { return std::get<SocketLine>(parse(text).what); };
    const SocketLine text =
        socket(R"({"t": 1, "receive": "wskTTS", "element": 3, "text": "^\u0002\u00e4\r"})");
    EXPECT_EQ(text.what, SocketLine::What::receive);
    EXPECT_EQ(text.array, "wskTTS");
    EXPECT_EQ(text.element, 3);
    EXPECT_EQ(text.bytes, "^\x02\xE4\r");
    EXPECT_EQ(socket(R"({"t": 1, "receive": "wskTTS", "element": 3, "hex": "5E02fF"})").bytes, "^\x02\xFF");
    EXPECT_EQ(socket(R"({"t": 1, "hangup": "wskVideo", "element": 1})").what, SocketLine::What::hangup);
    EXPECT_EQ(socket(R"({"t": 1, "socketError": "wskVideo", "element": 99})").what,
              SocketLine::What::socketError);
}

TEST(ScriptParser, RefusesBadLinesOfRemoteClients) {
    EXPECT_EQ(reason(R"({"t": 1, "connect": "wskNope", "from": "a", "port": 1})"),
              "unknown socket array \"wskNope\"");
    EXPECT_EQ(reason(R"({"t": 1, "connect": "wskTTS", "from": "a", "port": 65536})"),
              "\"port\" must be from 0 to 65535");
    EXPECT_EQ(reason(R"({"t": 1, "connect": "wskTTS", "port": 1})"), "key \"from\" is missing");
    EXPECT_EQ(reason(R"({"t": 1, "hangup": "wskTTS"})"), "key \"element\" is missing");
    EXPECT_EQ(reason(R"({"t": 1, "receive": "wskTTS", "element": 1})"), "needs either \"text\" or \"hex\"");
    EXPECT_EQ(reason(R"({"t": 1, "receive": "wskTTS", "element": 1, "text": "a", "hex": "00"})"),
              "needs either \"text\" or \"hex\"");
    EXPECT_EQ(reason(R"({"t": 1, "receive": "wskTTS", "element": 1, "hex": "0"})"),
              "\"hex\" is no even number of hex digits");
    EXPECT_EQ(reason(R"({"t": 1, "receive": "wskTTS", "element": 1, "text": "\u20ac"})"),
              "\"text\" holds a character above U+00FF; give its bytes as \"hex\"");
    EXPECT_EQ(reason(R"({"t": 1, "hangup": "wskTTS", "element": 1, "text": "a"})"), "unknown key \"text\"");
}

TEST(ScriptParser, RefusesWhatTheStationDoesNotHaveYetByName) {
    for (const std::string kind : {"choose", "waveInDone", "waveOutDone"}) {
        EXPECT_EQ(reason("{\"t\": 1, \"" + kind + "\": 0}"), "\"" + kind + "\" is not built yet");
    }
}

TEST(ScriptParser, RefusesWhatIsNoObject) {
    EXPECT_THAT(reason("[1, 2]"), HasSubstr("no JSON object"));
    EXPECT_THAT(reason("{\"t\": 1, \"click\": \"a\"} {}"), HasSubstr("no valid JSON"));
    EXPECT_THAT(reason("{\"t\": 1, \"click\": \"a\""), HasSubstr("no valid JSON"));
    EXPECT_THAT(reason("nonsense"), HasSubstr("no valid JSON"));
    EXPECT_THAT(reason("{'t': 1}"), HasSubstr("no valid JSON"));
    EXPECT_THAT(reason("\xEF\xBB\xBF{\"t\": 1, \"click\": \"a\"}"), HasSubstr("byte order mark"));
}

TEST(ScriptParser, RefusesBytesThatAreNoUtf8) {
    EXPECT_THAT(reason("{\"t\": 1, \"click\": \"a\xFF\"}"), HasSubstr("no valid JSON"));
    EXPECT_THAT(reason("{\"t\": 1, \"frame\": \"SensorFrame\", \"IrAdc\xC3\": 1}"),
                HasSubstr("no valid JSON"));
}

TEST(ScriptParser, RefusesUnknownAndMissingKeys) {
    EXPECT_EQ(reason(R"({"t": 1, "click": "a", "twice": 1})"), "unknown key \"twice\"");
    EXPECT_EQ(reason(R"({"t": 1, "frame": "SensorFrame", "IrAdc9": 1})"), "unknown key \"IrAdc9\"");
    EXPECT_EQ(reason(R"({"t": 1, "frame": "TailFrame"})"), "unknown frame \"TailFrame\"");
    EXPECT_EQ(reason(R"({"t": 1, "jump": "a"})"), "no known kind of line, unknown key \"jump\"");
    EXPECT_EQ(reason(R"({"t": 1})"), "no known kind of line");
    EXPECT_EQ(reason(R"({"click": "a"})"), "key \"t\" is missing");
    EXPECT_EQ(reason(R"({"t": 1, "set": "a"})"), "key \"to\" is missing");
    EXPECT_EQ(reason(R"({"t": 1, "watch": ["a"]})"), "key \"every\" is missing");
    EXPECT_EQ(reason(R"({"t": 1, "click": "a", "focus": "b"})"), "is both \"click\" and \"focus\"");
}

TEST(ScriptParser, RefusesAKeyGivenTwice) {
    EXPECT_EQ(reason(R"({"t": 1, "click": "a", "click": "b"})"), "has the key \"click\" twice");
    EXPECT_EQ(reason(R"({"t": 1, "frame": "IrFrame", "IrAdc1": 1, "IrAdc1": 1})"),
              "has the key \"IrAdc1\" twice");
}

TEST(ScriptParser, RefusesValuesOfTheWrongType) {
    EXPECT_EQ(reason(R"({"t": "1", "click": "a"})"), "\"t\" must be a whole number");
    EXPECT_EQ(reason(R"({"t": 1.5, "click": "a"})"), "\"t\" must be a whole number");
    EXPECT_EQ(reason(R"({"t": -1, "click": "a"})"), "\"t\" is negative");
    EXPECT_EQ(reason(R"({"t": 1e3, "click": "a"})"), "\"t\" must be a whole number");
    EXPECT_EQ(reason(R"({"t": 99999999999999, "click": "a"})"), "\"t\" is too large");
    EXPECT_EQ(reason(R"({"t": 18446744073709551615, "click": "a"})"), "\"t\" must be a whole number");
    EXPECT_EQ(reason(R"({"t": 1, "click": 5})"), "\"click\" must be a text");
    EXPECT_EQ(reason(R"({"t": 1, "set": "a", "to": null})"),
              "\"to\" must be a text, a whole number, or true or false");
    EXPECT_EQ(reason(R"({"t": 1, "frame": "IrFrame", "IrAdc1": "5"})"),
              "property \"IrAdc1\" must be a whole number");
    EXPECT_EQ(reason(R"({"t": 1, "frame": "IrFrame", "IrAdc1": 32768})"),
              "property \"IrAdc1\": 32768 does not fit 16 bits");
    EXPECT_THAT(reason(R"({"t": 1, "frame": "SensorFrame", "SonarCm": [1,2,3]})"), HasSubstr("four"));
    EXPECT_THAT(reason(R"({"t": 1, "frame": "SensorFrame", "SonarCm": 1})"), HasSubstr("four"));
    EXPECT_THAT(reason(R"({"t": 1, "watch": "robotX", "every": 5})"), HasSubstr("list of texts"));
    EXPECT_EQ(reason(R"({"t": 1, "watch": ["robotX"], "every": 0})"), "\"every\" must be at least 1");
    EXPECT_EQ(reason(R"({"t": 1, "answer": "maybe"})"), "unknown answer \"maybe\"");
    EXPECT_EQ(reason(R"({"t": 1, "unload": false})"), "\"unload\" must be true or the name of a form");
    EXPECT_EQ(reason(R"({"t": 0, "login": false})"), "\"login\" must be true");
}

TEST(ScriptParser, TellsTheTimeOfALineThatIsOnlyOtherwiseBad) {
    ScriptLine line;
    EXPECT_THROW(parseScriptLine(R"({"t": 500, "jump": 1})", 1, line), ScriptError);
    EXPECT_EQ(line.timeMs, 500);
    EXPECT_THROW(parseScriptLine(R"({"t": x})", 1, line), ScriptError);
    EXPECT_EQ(line.timeMs, -1);
}

}  // namespace
}  // namespace quorrin
