// Remote clients in a replay: the lines that they are written with, and what the station asks of its sockets.
#include <gmock/gmock.h>

#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kCall =
    "{\"t\": 2000, \"connect\": \"wskCommand\", \"from\": \"10.0.0.5\", \"port\": 40000}\n";
const std::string kSensor =
    "{\"t\": 3000, \"connect\": \"wskSensor\", \"from\": \"10.0.0.5\", \"port\": 40001}\n";

// What the outcome prints of sockets and boxes after the load.
std::vector<std::string> remote(const ScriptOutcome& outcome) {
    std::vector<std::string> some;
    for (const std::string& line : outcome.lines()) {
        if (line.rfind("{\"t\": 1000,", 0) == 0) continue;
        for (const char* kind :
             {"\"listen\"", "\"accept\"", "\"shut\"", "\"send\"", "\"wave\"", "\"box\"", "\"state\""})
            if (line.find(kind) != std::string::npos) some.push_back(line);
    }
    return some;
}

TEST(ReplayRemote, ACallIsAcceptedAndRings) {
    EXPECT_THAT(remote(runScript(kCall + kSensor)),
                ElementsAre("{\"t\": 2000, \"accept\": \"wskCommand\", \"element\": 1}",
                            "{\"t\": 2000, \"wave\": \"sndPlaySoundA\"}",
                            "{\"t\": 3000, \"accept\": \"wskSensor\", \"element\": 1}"));
}

TEST(ReplayRemote, TheRingHoldsTheStationFor907Milliseconds) {
    const ScriptOutcome outcome =
        runScript(kCall + "{\"t\": 2001, \"connect\": \"wskSensor\", \"from\": \"10.0.0.5\", \"port\": 1}\n");
    EXPECT_THAT(remote(outcome).back(), "{\"t\": 2907, \"accept\": \"wskSensor\", \"element\": 1}");
}

TEST(ReplayRemote, ARefusedCallPrintsItsQuestionOnly) {
    const ScriptOutcome outcome =
        runScript("{\"t\": 1500, \"set\": \"chkRemote\", \"to\": false}\n" + kCall + kSensor);
    EXPECT_THAT(
        remote(outcome),
        ElementsAre(
            "{\"t\": 2000, \"box\": \"Incomming call from [10.0.0.5]...\\r\\nDo you wish to answer?\", "
            "\"title\": \"\", \"answer\": \"no\"}"));
}

TEST(ReplayRemote, ReportsAreSentAsHex) {
    const ScriptOutcome outcome = runScript(
        kCall + kSensor +
        "{\"t\": 3100, \"receive\": \"wskCommand\", \"element\": 1, \"text\": \"^\\u0002PING^\\r\"}\n"
        "{\"t\": 3200, \"set\": \"txtRobotCurrX\", \"to\": \"1.5\"}\n");
    EXPECT_THAT(
        remote(outcome).back(),
        "{\"t\": 3200, \"send\": \"wskSensor\", \"element\": 1, \"hex\": \"312e352c302c302c2c2c30\"}");
}

TEST(ReplayRemote, LongSendsAreToldByTheirEnds) {
    const auto sent = [](std::size_t length) {
        return remote(runScript(kCall + kSensor +
                                "{\"t\": 3100, \"receive\": \"wskCommand\", \"element\": 1, \"hex\": "
                                "\"5e0250494e475e0d\"}\n"
                                "{\"t\": 3200, \"set\": \"txtRobotCurrX\", \"to\": \"" +
                                std::string(length - 8, 'x') + "\"}\n"))
            .back();
    };
    EXPECT_THAT(sent(256), HasSubstr("\"hex\": \"7878"));
    EXPECT_EQ(sent(257),
              "{\"t\": 3200, \"send\": \"wskSensor\", \"element\": 1, \"bytes\": 257, \"head\": "
              "\"78787878787878787878787878787878\", \"tail\": \"78787878787878782c302c302c2c2c30\"}");
}

TEST(ReplayRemote, EndsShutTheirElements) {
    EXPECT_THAT(remote(runScript(kCall + kSensor +
                                 "{\"t\": 3100, \"hangup\": \"wskCommand\", \"element\": 1}\n"
                                 "{\"t\": 3200, \"socketError\": \"wskSensor\", \"element\": 1}\n"
                                 "{\"t\": 3300, \"socketError\": \"wskSensor\", \"element\": 1}\n")),
                testing::Contains("{\"t\": 3200, \"shut\": \"wskSensor\", \"element\": 1}"));
    EXPECT_EQ(runScript(kCall + kSensor +
                        "{\"t\": 3200, \"socketError\": \"wskSensor\", \"element\": 1}\n"
                        "{\"t\": 3300, \"socketError\": \"wskSensor\", \"element\": 1}\n")
                  .linesWith("\"shut\"")
                  .size(),
              1U);
}

TEST(ReplayRemote, NothingHappensOnAnElementThatIsNotConnected) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1500, \"receive\": \"wskCommand\", \"element\": 1, \"text\": \"^\\u0002Mode^\\r\"}\n"
        "{\"t\": 1500, \"hangup\": \"wskCommand\", \"element\": 0}\n"
        "{\"t\": 1500, \"socketError\": \"wskCommand\", \"element\": 0}\n"
        "{\"t\": 1500, \"hangup\": \"wskCommand\", \"element\": 70000}\n"
        "{\"t\": 1500, \"hangup\": \"wskCommand\", \"element\": -1}\n"
        "{\"t\": 1600, \"watch\": [\"remoteCommandsSeen\"], \"every\": 100}\n");
    EXPECT_THAT(remote(outcome), ElementsAre("{\"t\": 1600, \"state\": {\"remoteCommandsSeen\": false}}"));
}

TEST(ReplayRemote, ACallAheadOfTheMainFormIsNotHeard) {
    EXPECT_THAT(remote(runScript("{\"t\": 0, \"login\": true}\n" + kCall)), IsEmpty());
}

TEST(ReplayRemote, CommandsOfOneInstantAreHandledInTheirOrder) {
    const ScriptOutcome outcome = runScript(kCall +
                                            "{\"t\": 3000, \"receive\": \"wskCommand\", \"element\": 1, "
                                            "\"text\": \"^\\u00020,0,0,0,0,0,1,5^\\r\"}\n"
                                            "{\"t\": 3000, \"receive\": \"wskCommand\", \"element\": 1, "
                                            "\"text\": \"^\\u00021,0,0,0,0,0,1,6^\\r\"}\n"
                                            "{\"t\": 3000, \"watch\": [\"steeringLevel\", \"commandCount\", "
                                            "\"lastCommandCount\"], \"every\": 100}\n");
    EXPECT_THAT(
        remote(outcome).back(),
        "{\"t\": 3000, \"state\": {\"steeringLevel\": 1, \"commandCount\": 6, \"lastCommandCount\": 6}}");
}

}  // namespace
}  // namespace quorrin
