// Scripts of quorrin-remote, checked as a whole.
#include "client/script.h"

#include <gmock/gmock.h>

namespace quorrin {
namespace {

template <typename Step>
Step only(const std::string& text) {
    const RemoteScript script = parseRemoteScript(text);
    EXPECT_EQ(script.error, "");
    EXPECT_EQ(script.steps.size(), 1U) << text;
    return std::get<Step>(script.steps.at(0).what);
}
std::string fault(const std::string& text) {
    return parseRemoteScript(text).error;
}

TEST(RemoteScriptTest, NothingAndCommentsAreAUsableScriptWithoutLines) {
    EXPECT_TRUE(parseRemoteScript("").steps.empty());
    const RemoteScript script = parseRemoteScript("# a comment\n\n   \t\n  # another\r\n");
    EXPECT_TRUE(script.steps.empty());
    EXPECT_EQ(script.error, "");
}

TEST(RemoteScriptTest, LinesKeepTheirNumbersAndTheirText) {
    const RemoteScript script = parseRemoteScript("# first\n  connect \r\n\nquit");
    ASSERT_EQ(script.steps.size(), 2U);
    EXPECT_EQ(script.steps[0].line, 2);
    EXPECT_EQ(script.steps[0].text, "connect");
    EXPECT_EQ(script.steps[1].line, 4);
    EXPECT_TRUE(std::holds_alternative<step::Quit>(script.steps[1].what));
}

TEST(RemoteScriptTest, HangUpNamesAChannelOrNone) {
    EXPECT_FALSE(only<step::HangUp>("hangup").channel);
    EXPECT_EQ(only<step::HangUp>("hangup voice").channel, RemoteChannel::sendVoice);
    EXPECT_EQ(only<step::HangUp>("hangup speech").channel, RemoteChannel::tts);
    EXPECT_EQ(fault("hangup wskVideo"),
              "line 1: no channel \"wskVideo\"; there are command, sensor, video, audio, voice, speech");
}

TEST(RemoteScriptTest, DriveTakesSevenNumbersOf16Bits) {
    EXPECT_EQ(only<step::Drive>("drive -50 \t 1 2 3 4 5  32767").fields,
              (DriveFields{-50, 1, 2, 3, 4, 5, 32767}));
    EXPECT_EQ(fault("drive 1 2 3 4 5 6"), "line 1: drive needs seven numbers");
    EXPECT_EQ(fault("drive 1 2 3 4 5 6 7 8"), "line 1: what is \"8\"?");
    EXPECT_EQ(fault("drive 1 2 3 4 5 6 32768"), "line 1: \"32768\" is no whole number from -32768 to 32767");
    EXPECT_NE(fault("drive 1 2 3 4 5 6 x"), "");
    EXPECT_NE(fault("drive 1.5 2 3 4 5 6 7"), "");
    EXPECT_NE(fault("drive 1,2,3,4,5,6,7"), "");
}

TEST(RemoteScriptTest, WaitsHaveBounds) {
    EXPECT_EQ(only<step::Wait>("wait 0").ms, 0);
    EXPECT_EQ(only<step::Wait>("wait 3600000").ms, 3'600'000);
    for (const char* wrong : {"wait", "wait -1", "wait 3600001", "wait 1 2", "wait soon"})
        EXPECT_NE(fault(wrong), "") << wrong;
}

TEST(RemoteScriptTest, PingIsOnOrOff) {
    EXPECT_TRUE(only<step::Ping>("ping on").on);
    EXPECT_FALSE(only<step::Ping>("ping off").on);
    EXPECT_EQ(fault("ping"), "line 1: ping needs on or off");
    EXPECT_EQ(fault("ping ON"), "line 1: ping needs on or off");
}

TEST(RemoteScriptTest, AnExpressionMayHoldBlanksAndTheWordWithin) {
    const auto expect = only<step::Expect>("expect report ,comm wrong, within 100");
    EXPECT_EQ(expect.withinMs, 100);
    EXPECT_TRUE(std::regex_search("0,0,0,1,comm wrong,0", expect.expression));
    EXPECT_FALSE(std::regex_search("0,0,0,1,JOY,0", expect.expression));
    EXPECT_TRUE(
        std::regex_search("a within b", only<step::Expect>("expect report a within b within 7").expression));
}

TEST(RemoteScriptTest, AnExpectThatIsNoneIsRefused) {
    for (const char* wrong :
         {"expect", "expect report", "expect report JOY", "expect report within 100", "expect JOY within 100",
          "expect report JOY within", "expect report JOY within soon", "expect report JOY within -1",
          "expect reports JOY within 100"})
        EXPECT_NE(fault(wrong), "") << wrong;
    EXPECT_EQ(fault("expect report ( within 100"), "line 1: \"(\" is no regular expression");
}

TEST(RemoteScriptTest, SayTakesTheRestOfTheLineInWindows1252) {
    EXPECT_EQ(only<step::Say>("say  Good   morning # you ").bytes, "Good   morning # you");
    EXPECT_EQ(only<step::Say>("say \xC3\xBC").bytes, "\xFC");
    EXPECT_EQ(fault("say"), "line 1: say needs a text");
    EXPECT_EQ(fault("say \xCE\xB1"), "line 1: the text has a character that Windows-1252 has not");
}

TEST(RemoteScriptTest, WordsBehindAVerbThatTakesNoneAreRefused) {
    for (const char* verb : {"connect", "mode", "clos", "quit"}) {
        EXPECT_EQ(fault(verb), "") << verb;
        EXPECT_EQ(fault(std::string(verb) + " now"), "line 1: what is \"now\"?") << verb;
    }
}

TEST(RemoteScriptTest, OneWrongLineMakesTheWholeScriptUnusable) {
    const RemoteScript script = parseRemoteScript("connect\n# drive\ndrve 1\nquit\n");
    EXPECT_EQ(script.error, "line 3: no verb \"drve\"");
    EXPECT_TRUE(script.steps.empty());
}

TEST(RemoteScriptTest, AByteOrderMarkAndTheLineEndsOfOtherSystemsDoNotCount) {
    const RemoteScript script = parseRemoteScript("\xEF\xBB\xBFwait 10\r\nquit\r\n");
    EXPECT_EQ(script.error, "");
    EXPECT_EQ(script.steps.size(), 2U);
    EXPECT_EQ(fault("quit\n\xEF\xBB\xBFquit"), "line 2: no verb \"\xEF\xBB\xBFquit\"");
}

TEST(RemoteScriptTest, TabsStandBetweenTheWordsOfAnExpectToo) {
    const auto expect = only<step::Expect>("expect\treport\tcomm wrong\twithin\t100");
    EXPECT_TRUE(std::regex_search("0,0,0,4,comm wrong,0", expect.expression));
    EXPECT_EQ(expect.withinMs, 100);
}

TEST(RemoteScriptTest, AnExpressionHasALengthThatCanBeReadWithoutRunningOutOfStack) {
    const auto nested = [](std::size_t depth) {
        return "expect report " + std::string(depth, '(') + std::string(depth, ')') + " within 5";
    };
    EXPECT_EQ(fault(nested(250)), "");
    EXPECT_EQ(fault(nested(251)), "line 1: the expression is longer than 500 characters");
    EXPECT_NE(fault("expect report " + std::string(500, '(') + " within 5"), "");
}

TEST(RemoteScriptTest, AnExpressionThatCouldGoThroughAllWaysToMatchDoesNot) {
    const auto expect = only<step::Expect>("expect report ^(([0-9,]+)*)*!$ within 5");
    // Each further character would double some centuries.
    EXPECT_FALSE(std::regex_search(std::string(100, '0'), expect.expression));
}

TEST(RemoteScriptTest, AReferenceBackIsRefused) {
    EXPECT_EQ(fault("expect report (.),\\1 within 5"), "line 1: \"(.),\\1\" is no regular expression");
}

TEST(RemoteScriptTest, AFaultShowsControlCharactersAndALongLineCutShort) {
    EXPECT_EQ(fault("\x1B[2J"), "line 1: no verb \"\\x1B[2J\"");
    EXPECT_LT(fault(std::string(1'000'000, 'x')).size(), 500U);
}

}  // namespace
}  // namespace quorrin
