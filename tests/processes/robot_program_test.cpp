// quorrin-robot as a program, alone and with a real station before it.
#include <gmock/gmock.h>

#include <cmath>
#include <nlohmann/json.hpp>

#include "processes/process_fixture.h"

namespace quorrin {
namespace {

using testing::HasSubstr;

class RobotProgram : public ProcessTest {
  protected:
    std::unique_ptr<Process> robot(std::vector<std::string> options,
                                   const std::string& outputName = "robot.out") {
        options.insert(options.begin(), {bin + "/quorrin-robot", "--headless"});
        return run(options, outputName);
    }
    const std::string truthFile = folder.path() + "/truth.jsonl";
    // The whole lines that are there by now.
    std::vector<nlohmann::json> truth() const {
        std::vector<nlohmann::json> lines;
        std::istringstream text(fileText(truthFile));
        for (std::string line; std::getline(text, line) && !text.eof();)
            lines.push_back(nlohmann::json::parse(line));
        return lines;
    }
};

TEST_F(RobotProgram, AnswersHelpAndVersionAndNamesAnUnknownOption) {
    auto help = robot({"--help"}, "help.out");
    EXPECT_EQ(help->ends(10), 0);
    EXPECT_THAT(help->output(), HasSubstr("--scenario"));
    auto version = robot({"--version"}, "version.out");
    EXPECT_EQ(version->ends(10), 0);
    EXPECT_THAT(version->output(), HasSubstr("quorrin-robot "));
    auto wrong = robot({"--sight", "hall"}, "wrong.out");
    EXPECT_EQ(wrong->ends(10), 2);
    EXPECT_THAT(wrong->output(), HasSubstr("unknown option --sight"));
}

TEST_F(RobotProgram, EndsWith2AndTheReasonWhenAFileCannotBeUsed) {
    auto site = robot({"--site", "cellar"}, "site.out");
    EXPECT_EQ(site->ends(10), 2);
    EXPECT_THAT(site->output(), HasSubstr("cellar.json"));
    files.writeWhole(folder.path() + "/s.jsonl", "{\"t\": 1, \"fault\": \"dock\", \"vlots\": 3}\n");
    auto scenario = robot({"--scenario", folder.path() + "/s.jsonl"}, "scenario.out");
    EXPECT_EQ(scenario->ends(10), 2);
    EXPECT_THAT(scenario->output(), HasSubstr("s.jsonl:1: unknown key \"vlots\""));
    auto truthless = robot({"--truth", folder.path() + "/no/such/folder"}, "truth.out");
    EXPECT_EQ(truthless->ends(10), 2);
    EXPECT_THAT(truthless->output(), HasSubstr("no/such/folder"));
}

TEST_F(RobotProgram, SaysWhenItsPortIsTaken) {
    auto first = robot({});
    ASSERT_TRUE(first->says("listening on 127.127.0.1 ports 10001 and 10002", 10));
    auto second = robot({}, "second.out");
    EXPECT_EQ(second->ends(10), 2);
    EXPECT_THAT(second->output(), HasSubstr("cannot listen on 127.127.0.1 port 10001"));
}

TEST_F(RobotProgram, WritesTheTruthTenTimesASecondAndEndsOnSigterm) {
    auto program = robot({"--site", "hall", "--truth", truthFile, "--seed", "5"});
    ASSERT_TRUE(eventually([&] { return truth().size() >= 15; }, 20));
    program->signal(SIGTERM);
    EXPECT_EQ(program->ends(10), 0);
    const auto lines = truth();
    for (std::size_t i = 0; i < lines.size(); ++i)
        EXPECT_NEAR(lines[i]["t"].get<double>(), 0.1 * static_cast<double>(i + 1), 1e-9);
    EXPECT_NEAR(lines[0]["x"].get<double>(), 1.5, 1e-3);
}

TEST_F(RobotProgram, WandersUnderARealStationAndStandsWithin600msOfItsMotionGatewaysDeath) {
    auto program = robot({"--truth", truthFile});
    ASSERT_TRUE(program->says("listening", 10));
    auto session = station();
    ASSERT_TRUE(eventually(
        [&] {
            const auto lines = truth();
            return !lines.empty() && lines.back()["v"].get<double>() > 0.15;
        },
        40));
    const double killed = truth().back()["t"].get<double>();
    ::kill(motionGateway(), SIGKILL);
    ASSERT_TRUE(eventually([&] { return truth().back()["t"].get<double>() > killed + 2.0; }, 20));
    for (const auto& line : truth()) {
        // A line more: the last one that was read may have been a tenth old.
        if (line["t"].get<double>() <= killed + 0.7) continue;
        EXPECT_LT(std::abs(line["v"].get<double>()), 0.001) << line["t"];
        EXPECT_LT(std::abs(line["w"].get<double>()), 0.001) << line["t"];
    }
    session->signal(SIGTERM);
    EXPECT_EQ(session->ends(20), 0);
}

}  // namespace
}  // namespace quorrin
