// A simulated robot in the place of the script's frames.
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "platform/host/posix_files.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

using Json = nlohmann::json;

struct RobotOutcome {
    ReplayEnd end = ReplayEnd::scriptEnded;
    ScriptError error;
    std::string output;
    Json report;
};

RobotOutcome runRobot(const std::string& script, double minutes, std::uint64_t seed = 7) {
    PosixFiles disk;
    ScriptRunner runner;
    RobotSetup setup;
    setup.site = loadSite("office", QUORRIN_SOURCE_DIR "/share/sites", disk);
    setup.seed = seed;
    std::string text = script + "\n";
    std::FILE* file = fmemopen(text.data(), text.size(), "rb");
    RobotOutcome outcome;
    {
        LineReader lines(file);
        ReplayRun run({runner.files,
                       {"/app", "/app/windows", "/app/tempVoice", "/p"},
                       runner.date,
                       "/scripts",
                       &setup,
                       static_cast<std::int64_t>(minutes * 60'000)},
                      lines, nullptr);
        outcome.end = run.run();
        outcome.error = run.error();
        outcome.output = run.output().text();
        outcome.report = Json::parse(run.robot()->report(2.0));
    }
    std::fclose(file);
    return outcome;
}

TEST(ReplayRobot, WandersByItselfAndReportsWhatItDid) {
    const RobotOutcome outcome = runRobot("", 1);
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded);
    EXPECT_EQ(outcome.output, "");
    const Json& report = outcome.report;
    EXPECT_GT(report.at("distance"), 5.0);
    EXPECT_EQ(report.at("contacts"), 0);
    EXPECT_DOUBLE_EQ(report.at("meanSpeed").get<double>(), report.at("distance").get<double>() / 60);
    EXPECT_DOUBLE_EQ(report.at("speedup"), 30.0);
    EXPECT_EQ(report.at("inStuck"), 0);
    double searching = 0;
    for (const char* finding : {"openfound", "totallyopen", "openwithnochange", "openwithchange", "stuck"})
        searching += report.at("caStatus").at(finding).get<double>();
    // It searches from the first "wondering" on, some ten seconds after the start.
    EXPECT_GT(searching, 40.0);
    EXPECT_LT(searching, 58.0);
}

TEST(ReplayRobot, IsTheSameTwiceAndAnotherWithAnotherSeed) {
    EXPECT_EQ(runRobot("", 1, 3).report, runRobot("", 1, 3).report);
    EXPECT_NE(runRobot("", 1, 3).report, runRobot("", 1, 4).report);
}

TEST(ReplayRobot, AScriptMayStillClick) {
    // Sent to "IDLE" after twenty seconds, it stands for the rest of the minute.
    const RobotOutcome free = runRobot("", 1);
    const RobotOutcome held = runRobot("{\"t\": 20000, \"click\": \"cmdChEn\"}", 1);
    EXPECT_EQ(held.end, ReplayEnd::scriptEnded);
    EXPECT_LT(held.report.at("distance").get<double>(), free.report.at("distance").get<double>() / 2);
}

TEST(ReplayRobot, LinesAfterTheTimeAreNotRun) {
    EXPECT_EQ(runRobot("{\"t\": 70000, \"click\": \"cmdNope\"}", 1).end, ReplayEnd::scriptEnded);
}

TEST(ReplayRobot, FramesOfAScriptAreRefused) {
    const RobotOutcome outcome =
        runRobot("{\"t\": 5, \"answer\": \"no\"}\n{\"t\": 500, \"frame\": \"IrFrame\"}", 1);
    EXPECT_EQ(outcome.end, ReplayEnd::badScript);
    EXPECT_EQ(outcome.error.line, 2);
    EXPECT_EQ(outcome.error.reason, "frames come from the simulated robot, not from the script");
}

}  // namespace
}  // namespace quorrin
