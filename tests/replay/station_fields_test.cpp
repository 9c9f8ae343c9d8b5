// The names that a watch knows. The lists stand here a second time on purpose: a field that is renamed or
// lost breaks scripts that people keep.
#include "replay/station_fields.h"

#include <gmock/gmock.h>

#include "replay/record_fields.h"
#include "support/replay_script.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

constexpr const char* kSession[] = {"robotMode",
                                    "previousMode",
                                    "requestIdle",
                                    "requestWander",
                                    "requestJoy",
                                    "startStep",
                                    "joyOverride",
                                    "tickEnabled",
                                    "displayEnabled",
                                    "pingEnabled",
                                    "autoStartPending",
                                    "manualPanelActive",
                                    "joystickActive",
                                    "aboutOpen",
                                    "zoomCameraOpen",
                                    "motLinkUp",
                                    "tiLinkUp",
                                    "motWarmupCount",
                                    "tiWarmupCount",
                                    "motSilentTicks",
                                    "tiSilentTicks",
                                    "steeringLevel",
                                    "gasLevel",
                                    "brakeLevel",
                                    "joystickY",
                                    "useWanderInput",
                                    "caEnabled",
                                    "densityThreshold",
                                    "speedSaturation",
                                    "sideClearance",
                                    "minGapSectors",
                                    "gatewayMotIniPath",
                                    "gatewayTiIniPath",
                                    "gatewayTiExePath",
                                    "gatewayMotExePath",
                                    "robotIp",
                                    "robotPort",
                                    "sdkIniPath",
                                    "gatewayWindowTitle",
                                    "remoteCommandsSeen",
                                    "remoteCommandActive",
                                    "remoteListening",
                                    "callAccepted",
                                    "videoClientConnected",
                                    "videoClientReady",
                                    "videoWaitFrames",
                                    "frameWatchdog",
                                    "jpegQuality",
                                    "voiceChained",
                                    "playbackOpen",
                                    "playbackBlockCount",
                                    "voiceBufferIndex",
                                    "voiceQuietTicks",
                                    "joystickGear",
                                    "joystickDriveLatch"};

constexpr const char* kRobot[] = {
    "powerByte",        "refVolts",       "battery1Volts",    "battery2Volts",    "dcInVolts",
    "battery1Temp",     "battery2Temp",   "chargerStatus",    "chargerFlags",     "chargeFlash",
    "battery1Flash",    "battery2Flash",  "noPowerVolts",     "headCmdUpDown",    "headCmdLeftRight",
    "mouthCmd",         "eyeUpDownInit",  "eyeLeftRightInit", "servoOut1",        "servoOut2",
    "servoOut3",        "servoOut4",      "servoOut5",        "servoOut6",        "mouthSteps",
    "irRange",          "irRadius",       "irAngle",          "sonarRange",       "sonarRadius",
    "sonarAngle",       "humanRaw",       "humanFlags",       "humanLocation",    "encoderLeft",
    "encoderRight",     "wheelSpeedLeft", "wheelSpeedRight",  "motorCurrentLeft", "motorCurrentRight",
    "encoderDataValid", "motorHeatLeft",  "motorHeatRight",   "motionInhibit"};

constexpr const char* kNavigation[] = {"robotX",           "robotY",
                                       "robotTheta",       "thetaStep",
                                       "wheelCmdLeft",     "wheelCmdRight",
                                       "vfhActive",        "reverseDrive",
                                       "inStuck",          "stuckLeft",
                                       "stuckRight",       "antiStuckEnabled",
                                       "stuckRatioLimit",  "landmarkRunEnabled",
                                       "landmarkLocked",   "landmarkSelectPending",
                                       "landmarkHold",     "lostFixCount",
                                       "finishCount",      "landmarkPos",
                                       "landmarkRangeA",   "landmarkRangeB",
                                       "landmarkCount",    "landmarkPairTable",
                                       "pairA1",           "pairA2",
                                       "pairB1",           "pairB2",
                                       "zoneRow",          "zoneChangeCount",
                                       "certaintyGrid",    "polarHistogram",
                                       "binaryHistogram",  "sectorCells",
                                       "displayHeadingDeg"};

constexpr const char* kMainForm[] = {"alarmCnt",         "alarmEnd",
                                     "iniPar",           "resetCnt",
                                     "resetMOTTI",       "Record_Flag",
                                     "fileTolNum",       "CurrRuningFolderName",
                                     "playingNumber",    "VideoPlayMode",
                                     "cHeadUpDown",      "cHeadLeftRight",
                                     "cMouthUpDown",     "cEyeUpDown",
                                     "cEyeLeftRight",    "sensorClientConnected",
                                     "statusRecordTail", "statusBroadcastTicks",
                                     "formRunning",      "connCheckTicks",
                                     "joystickRunning",  "joystickEventHandle",
                                     "lButtons",         "AxisPresent"};

constexpr const char* kTasks[] = {"GPS.SonarGPSInterval",
                                  "GPS.EstInterval",
                                  "GPS.tolerance",
                                  "GPS.Status",
                                  "GPS.previousEncoderLeft",
                                  "GPS.previousEncoderRight",
                                  "GPS.firstSample",
                                  "GPS.stepLeft",
                                  "GPS.stepRight",
                                  "SSGPS.Status",
                                  "SSGPS.tolerance",
                                  "SSGPS.SonarGPSInterval",
                                  "SSGPS.enable",
                                  "SensorMapBuilder.Status",
                                  "SensorMapBuilder.timeInterval",
                                  "SensorMapBuilder.decayCountdown",
                                  "speedP2PVFH.TargetX",
                                  "speedP2PVFH.TargetY",
                                  "speedP2PVFH.TargetAngel",
                                  "speedP2PVFH.TargetForwardspeed",
                                  "speedP2PVFH.maxTurnspeed",
                                  "speedP2PVFH.forgetable",
                                  "speedP2PVFH.nonstop",
                                  "speedP2PVFH.finalPosture",
                                  "speedP2PVFH.targettime",
                                  "speedP2PVFH.timeInterval",
                                  "speedP2PVFH.lowerTolerance",
                                  "speedP2PVFH.upperTolerance",
                                  "speedP2PVFH.Status",
                                  "speedP2PVFH.CAStatus",
                                  "speedP2PVFH.forwardSpeed",
                                  "speedP2PVFH.turnSpeed",
                                  "speedP2PVFH.desiredHeading",
                                  "speedP2PVFH.headingError",
                                  "speedP2PVFH.targetDistanceM",
                                  "speedP2PVFH.tickCount",
                                  "speedP2PVFH.toleranceNow",
                                  "speedP2PVFH.tickLimit",
                                  "speedP2PVFH.turnDoneFlag",
                                  "speedP2PVFH.referenceHeading",
                                  "speedP2PVFH.reverseFlag",
                                  "AntiStuck.timeInterval",
                                  "AntiStuck.filteredRatioLeft",
                                  "AntiStuck.filteredRatioRight",
                                  "AntiStuck.stuckCountLeft",
                                  "AntiStuck.stuckCountRight",
                                  "Teleoperation.timeInterval",
                                  "Teleoperation.targetDistance",
                                  "Teleoperation.maxforwardspeed",
                                  "Teleoperation.maxTurnspeed",
                                  "Teleoperation.speedFraction",
                                  "Teleoperation.steerFraction"};

// The value of one name after the load, as it prints.
std::string valueOf(const std::string& name) {
    const ScriptOutcome outcome = runScript("{\"t\": 1000, \"watch\": [\"" + name + "\"], \"every\": 1}\n");
    EXPECT_EQ(outcome.end, ReplayEnd::scriptEnded) << outcome.error.reason;
    const auto states = outcome.linesWith("\"state\": {\"" + name + "\": ");
    if (states.size() != 1) return "";
    const std::string start = "{\"t\": 1000, \"state\": {\"" + name + "\": ";
    return states[0].substr(start.size(), states[0].size() - start.size() - 2);
}

template <std::size_t count>
void expectKnown(const char* const (&names)[count]) {
    for (const char* name : names) EXPECT_NE(valueOf(name), "") << name;
}

TEST(StationFields, KnowEverySharedField) {
    expectKnown(kSession);
    expectKnown(kRobot);
    expectKnown(kNavigation);
    expectKnown(kMainForm);
}

TEST(StationFields, KnowEveryFieldOfTheTasks) {
    expectKnown(kTasks);
}

TEST(StationFields, PrintNumbersTruthsAndTexts) {
    EXPECT_EQ(valueOf("powerByte"), "63");
    EXPECT_EQ(valueOf("stuckRatioLimit"), "0.38");
    EXPECT_EQ(valueOf("caEnabled"), "true");
    EXPECT_EQ(valueOf("SensorMapBuilder.Status"), "\"go\"");
    EXPECT_EQ(valueOf("GPS.EstInterval"), "50");
    EXPECT_EQ(valueOf("Teleoperation.maxforwardspeed"), "0.6");
    EXPECT_EQ(valueOf("cHeadUpDown"), "2100");
}

TEST(StationFields, PrintAStoredTruthValueAsTruth) {
    PublicValues values;
    FieldTable table;
    addNavigationFields(table, values);
    const auto printed = [&] {
        std::string out;
        (*table.find("landmarkHold"))(out);
        return out;
    };
    EXPECT_EQ(printed(), "false");
    values.landmarkHold = -1;
    EXPECT_EQ(printed(), "true");
    values.landmarkHold = 2;
    EXPECT_EQ(printed(), "2");
}

TEST(StationFields, PrintArraysFromTheTablesFirstIndex) {
    EXPECT_EQ(valueOf("irRadius"), "[0.18, 0.18, 0.18, 0.18, 0.12, 0.18, 0.12, 0, 0, 0]");
    EXPECT_EQ(valueOf("sonarAngle"), "[0.78539815, 0, -0.78539815, 3.1415926, 1, 1]");
    EXPECT_EQ(valueOf("humanFlags"), "[false, false, false]");
    std::string sectors = "[0";
    for (int i = 1; i < 36; ++i) sectors += ", 0";
    EXPECT_EQ(valueOf("polarHistogram"), sectors + "]");
    EXPECT_EQ(valueOf("landmarkPos"), "[]");
}

TEST(StationFields, PrintAControlByItsKind) {
    EXPECT_EQ(valueOf("txtTh2"), "\"100\"");
    EXPECT_EQ(valueOf("lblTest"), "\"0\"");
    EXPECT_EQ(valueOf("cmdStart"), "\"START\"");
    EXPECT_EQ(valueOf("IRT(1)"), "\"\"");
    EXPECT_EQ(valueOf("chkRemote"), "1");
    EXPECT_EQ(valueOf("shpBatteryStatus(0)"), "49152");
    EXPECT_EQ(valueOf("imgStatus"), "3");
    EXPECT_EQ(valueOf("frmLogin.Timer2"), "false");
    EXPECT_EQ(valueOf("frmControlPanel.scrGas"), "10000");
}

TEST(StationFields, PrintTheGridsNonZeroCellsByXThenY) {
    // Two echoes of the front sensors, marked by the first tick of the map.
    const ScriptOutcome outcome = runScript(
        "{\"t\": 1010, \"frame\": \"SensorFrame\", \"SonarCm\": [60, 60, 60, 0]}\n"
        "{\"t\": 1100, \"watch\": [\"certaintyGrid\"], \"every\": 1000}\n");
    ASSERT_EQ(outcome.linesWith("state").size(), 1U);
    const std::string line = outcome.linesWith("state")[0];
    EXPECT_THAT(line, testing::StartsWith("{\"t\": 1100, \"state\": {\"certaintyGrid\": [["));
    int lastCell = 0;
    int cells = 0;
    for (auto at = line.find('[', line.find('[') + 1); at != std::string::npos; at = line.find('[', at + 1)) {
        int x = 0;
        int y = 0;
        int count = 0;
        ASSERT_EQ(std::sscanf(line.c_str() + at, "[%d, %d, %d]", &x, &y, &count), 3) << line;
        EXPECT_GT(x * 1000 + y, lastCell);
        EXPECT_GT(count, 0);
        lastCell = x * 1000 + y;
        ++cells;
    }
    EXPECT_GE(cells, 3);
}

TEST(StationFields, PrintNullForATaskThatDoesNotExistYet) {
    const ScriptOutcome outcome = runScript(
        "{\"t\": 0, \"login\": true}\n"
        "{\"t\": 10, \"watch\": [\"GPS.Status\", \"speedP2PVFH.TargetX\"], \"every\": 1000}\n");
    EXPECT_THAT(outcome.lines(), ElementsAre("{\"t\": 10, \"state\": {\"GPS.Status\": null, "
                                             "\"speedP2PVFH.TargetX\": null}}"));
}

}  // namespace
}  // namespace quorrin
