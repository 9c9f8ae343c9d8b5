// Capture and review in a script: the archive's files, what the keys do, what a watch tells.
#include <gmock/gmock.h>

#include "support/picture_files.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct ReplayArchive : testing::Test {
    ReplayArchive() { runner.files.put("/app/Tempvb_P.jpg", picture); }

    static std::string line(int t, const std::string& what) {
        return "{\"t\": " + std::to_string(t) + ", " + what + "}\n";
    }
    static std::string click(int t, const std::string& control) {
        return line(t, "\"click\": \"" + control + "\"");
    }
    static std::string choose(int t, const std::string& day) {
        return line(t, "\"set\": \"cobAvailDate\", \"to\": \"" + day + "\"");
    }
    // What `names` hold at `t`, behind the script.
    std::string at(int t, const std::string& names, const std::string& script) {
        const ScriptOutcome outcome =
            runner.run(script + line(t, "\"watch\": [" + names + "], \"every\": 1000000"));
        EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
        const auto states = outcome.linesWith("\"state\": ");
        return states.empty() ? "" : states.back().substr(states.back().find("\"state\": ") + 9);
    }
    void putDay(const std::string& day, const std::vector<std::string>& names) {
        for (const std::string& name : names) runner.files.put("/app/catchdata/" + day + "/" + name, picture);
    }

    ScriptRunner runner;
    std::string picture = jpegFile(*cornersPicture(16, 8), 75);
};

TEST_F(ReplayArchive, ACaptureStoresPicturesUntilItIsStopped) {
    EXPECT_EQ(at(9000, "\"cmdCatch\", \"tmrCatchPhoto\", \"lblCaptureNote\"",
                 click(1100, "cmdCatch") + click(4500, "cmdCatch")),
              "{\"cmdCatch\": \"Start Capture\", \"tmrCatchPhoto\": false, \"lblCaptureNote\": \"\"}}");
    EXPECT_THAT(runner.files.filesIn("/app/catchdata/2026-11-20"),
                ElementsAre("46346_0.375023148148148_1.jpg", "46346_0.375034722222222_2.jpg",
                            "46346_0.375046296296296_3.jpg"));
}

TEST_F(ReplayArchive, TheTimerIsEnabledFromStartUpOnAndDoesNotFire) {
    EXPECT_EQ(at(60'000, "\"tmrCatchPhoto\", \"cmdCatch\"", ""),
              "{\"tmrCatchPhoto\": true, \"cmdCatch\": \"Start Capture\"}}");
    EXPECT_THAT(runner.files.filesIn("/app/catchdata/2026-11-20"), IsEmpty());
}

TEST_F(ReplayArchive, TheFasterRateIsChosenByItsOption) {
    at(3100, "\"cmdCatch\"", click(1050, "optFramesPerSec(0)") + click(1100, "cmdCatch"));
    EXPECT_EQ(runner.files.filesIn("/app/catchdata/2026-11-20").size(), 6U);
}

TEST_F(ReplayArchive, ADayThatIsMadeDuringTheRunIsOfferedBehindTheOthers) {
    putDay("2026-11-18", {"46344_0.5_1.jpg"});
    putDay("2026-11-19", {"46345_0.5_1.jpg"});
    EXPECT_EQ(at(9000, "\"cobAvailDate\", \"lblDateValue\", \"fileTolNum\"",
                 click(1100, "cmdCatch") + click(4500, "cmdCatch") + choose(5000, "2026-11-20")),
              "{\"cobAvailDate\": \"2026-11-20\", \"lblDateValue\": \"Nov 20, 2026\", \"fileTolNum\": 3}}");
}

TEST_F(ReplayArchive, AFailedStepStopsTheCaptureAndSaysWhy) {
    runner.files.remove("/app/Tempvb_P.jpg");
    EXPECT_EQ(at(9000, "\"cmdCatch\", \"tmrCatchPhoto\", \"lblCaptureNote\"", click(1100, "cmdCatch")),
              "{\"cmdCatch\": \"Start Capture\", \"tmrCatchPhoto\": false, "
              "\"lblCaptureNote\": \"Capture stopped: the camera has given no picture.\"}}");
}

TEST_F(ReplayArchive, AChosenDayPlays) {
    putDay("2026-11-19", {"46345_0.25_1.jpg", "46345_0.5_2.jpg"});
    const std::string names =
        "\"lblTimeValue\", \"lblPlayingNumber\", \"picPlayVideo\", \"playingNumber\", "
        "\"CurrRuningFolderName\"";
    EXPECT_EQ(at(2650, names, choose(2000, "2026-11-19")),
              "{\"lblTimeValue\": \"12:00:00\", \"lblPlayingNumber\": \"2/2\", "
              "\"picPlayVideo\": \"/app/catchdata/2026-11-19/46345_0.5_2.jpg\", \"playingNumber\": 0, "
              "\"CurrRuningFolderName\": \"/app/catchdata/2026-11-19\"}}");
    EXPECT_EQ(at(2650, "\"lstPlayVideo\"", choose(2000, "2026-11-19")),
              "{\"lstPlayVideo\": \"46345_0.25_1.jpg\\n46345_0.5_2.jpg\"}}");
}

TEST_F(ReplayArchive, TheFastKeysSpoolFromPressToRelease) {
    putDay("2026-11-19", {"46345_0.1_1.jpg", "46345_0.2_2.jpg", "46345_0.3_3.jpg", "46345_0.4_4.jpg"});
    const std::string names = "\"lblPlayingNumber\", \"VideoPlayMode\", \"tmrPlayVideo\"";
    const std::string forward = choose(2000, "2026-11-19") + line(2010, "\"press\": \"cmdForward\"");
    EXPECT_EQ(at(2320, names, forward),
              "{\"lblPlayingNumber\": \"3/4\", \"VideoPlayMode\": \"\", \"tmrPlayVideo\": true}}");
    EXPECT_EQ(at(9000, names, forward + line(2330, "\"release\": \"cmdForward\"")),
              "{\"lblPlayingNumber\": \"3/4\", \"VideoPlayMode\": \"\", \"tmrPlayVideo\": false}}");
    EXPECT_EQ(at(2220, names, choose(2000, "2026-11-19") + line(2010, "\"press\": \"cmdBackward\"")),
              "{\"lblPlayingNumber\": \"4/4\", \"VideoPlayMode\": \"BACK\", \"tmrPlayVideo\": true}}");
}

TEST_F(ReplayArchive, TheFastKeysAreDeadBeforeADayIsChosen) {
    putDay("2026-11-19", {"46345_0.1_1.jpg"});
    EXPECT_EQ(at(9000, "\"tmrPlayVideo\", \"VideoPlayMode\"",
                 line(2010, "\"press\": \"cmdBackward\"") + line(2510, "\"release\": \"cmdBackward\"") +
                     click(2600, "cmdPlay")),
              "{\"tmrPlayVideo\": false, \"VideoPlayMode\": \"\"}}");
}

TEST_F(ReplayArchive, ADayThatIsChosenAgainIsReadAgain) {
    putDay("2026-11-20", {"46346_0.1_1.jpg"});
    const std::string script = choose(2000, "2026-11-20") + click(2100, "cmdCatch") + click(5500, "cmdCatch");
    EXPECT_EQ(at(6000, "\"fileTolNum\"", script), "{\"fileTolNum\": 1}}");
    EXPECT_EQ(at(6000, "\"fileTolNum\"", choose(2000, "2026-11-20") + choose(5600, "2026-11-20")),
              "{\"fileTolNum\": 4}}");
}

TEST_F(ReplayArchive, APictureThatIsNoneIsNamedAndTheReviewGoesOn) {
    putDay("2026-11-19", {"46345_0.25_1.jpg", "46345_0.5_2.jpg"});
    runner.files.put("/app/catchdata/2026-11-19/46345_0.25_1.jpg", "no picture");
    EXPECT_EQ(at(2350, "\"lblReviewNote\", \"picPlayVideo\", \"tmrPlayVideo\"", choose(2000, "2026-11-19")),
              "{\"lblReviewNote\": \"46345_0.25_1.jpg: the file is neither a bitmap nor a JPEG.\", "
              "\"picPlayVideo\": 0, \"tmrPlayVideo\": true}}");
    EXPECT_EQ(at(2650, "\"lblReviewNote\"", choose(2000, "2026-11-19")), "{\"lblReviewNote\": \"\"}}");
}

TEST_F(ReplayArchive, TheDaysToKeepAreOfferedAndReadByNothing) {
    EXPECT_EQ(at(9000, "\"cobStoreDay\"", line(2000, "\"set\": \"cobStoreDay\", \"to\": 1")),
              "{\"cobStoreDay\": \"1\"}}");
}

}  // namespace
}  // namespace quorrin
