// The tasks' fields. The objects come and go with the main form, so each printer asks for its object anew.

#include "navigation/anti_stuck.h"
#include "navigation/gps.h"
#include "navigation/sensor_map_builder.h"
#include "navigation/speed_p2p_vfh.h"
#include "navigation/teleoperation.h"
#include "replay/station_fields.h"

namespace quorrin {

namespace {

// Prints get(task), or null while there is no task. `find` gives the task or null.
template <typename Find, typename Get>
FieldPrinter taskPrinter(Find find, Get get) {
    return [find, get](std::string& out) {
        const auto* task = find();
        if (task == nullptr) {
            out += "null";
        } else {
            appendField(out, get(*task));
        }
    };
}

void addNothing(FieldTable& table, const std::string& name) {
    table.addPrinter(name, [](std::string& out) { out += "null"; });
}

}  // namespace

// NAME.field printed from an expression on `task`.
#define QUORRIN_TASK_FIELD(name, field, expression) \
    table.addPrinter(name "." field, taskPrinter(find, [](const auto& task) { return expression; }))

static void addGpsFields(FieldTable& table, const Station& station) {
    const auto find = [&station] { return station.gps(); };
    QUORRIN_TASK_FIELD("GPS", "SonarGPSInterval", task.SonarGPSInterval);
    QUORRIN_TASK_FIELD("GPS", "EstInterval", task.EstInterval);
    QUORRIN_TASK_FIELD("GPS", "tolerance", task.tolerance);
    QUORRIN_TASK_FIELD("GPS", "Status", task.Status);
    QUORRIN_TASK_FIELD("GPS", "previousEncoderLeft", task.odometry().previousEncoderLeft);
    QUORRIN_TASK_FIELD("GPS", "previousEncoderRight", task.odometry().previousEncoderRight);
    QUORRIN_TASK_FIELD("GPS", "firstSample", task.odometry().firstSample);
    QUORRIN_TASK_FIELD("GPS", "stepLeft", task.odometry().stepLeft);
    QUORRIN_TASK_FIELD("GPS", "stepRight", task.odometry().stepRight);
}

static void addMapFields(FieldTable& table, const Station& station) {
    const auto find = [&station] { return station.sensorMap(); };
    QUORRIN_TASK_FIELD("SensorMapBuilder", "Status", task.Status);
    QUORRIN_TASK_FIELD("SensorMapBuilder", "timeInterval", task.timeInterval);
    QUORRIN_TASK_FIELD("SensorMapBuilder", "decayCountdown", task.decayCountdown());
}

static void addNavigatorFields(FieldTable& table, const Station& station) {
    const auto find = [&station] { return station.navigator(); };
    QUORRIN_TASK_FIELD("speedP2PVFH", "TargetX", task.TargetX);
    QUORRIN_TASK_FIELD("speedP2PVFH", "TargetY", task.TargetY);
    QUORRIN_TASK_FIELD("speedP2PVFH", "TargetAngel", task.TargetAngel);
    QUORRIN_TASK_FIELD("speedP2PVFH", "TargetForwardspeed", task.TargetForwardspeed);
    QUORRIN_TASK_FIELD("speedP2PVFH", "maxTurnspeed", task.maxTurnspeed);
    QUORRIN_TASK_FIELD("speedP2PVFH", "forgetable", task.forgetable);
    QUORRIN_TASK_FIELD("speedP2PVFH", "nonstop", task.nonstop);
    QUORRIN_TASK_FIELD("speedP2PVFH", "finalPosture", task.finalPosture);
    QUORRIN_TASK_FIELD("speedP2PVFH", "targettime", task.targettime);
    QUORRIN_TASK_FIELD("speedP2PVFH", "timeInterval", task.timeInterval);
    QUORRIN_TASK_FIELD("speedP2PVFH", "lowerTolerance", task.lowerTolerance);
    QUORRIN_TASK_FIELD("speedP2PVFH", "upperTolerance", task.upperTolerance);
    QUORRIN_TASK_FIELD("speedP2PVFH", "Status", task.Status);
    QUORRIN_TASK_FIELD("speedP2PVFH", "CAStatus", task.CAStatus);
    QUORRIN_TASK_FIELD("speedP2PVFH", "active", task.active());
    QUORRIN_TASK_FIELD("speedP2PVFH", "forwardSpeed", task.forwardSpeed());
    QUORRIN_TASK_FIELD("speedP2PVFH", "turnSpeed", task.turnSpeed());
    QUORRIN_TASK_FIELD("speedP2PVFH", "desiredHeading", task.desiredHeading());
    QUORRIN_TASK_FIELD("speedP2PVFH", "headingError", task.headingError());
    QUORRIN_TASK_FIELD("speedP2PVFH", "targetDistanceM", task.targetDistanceM());
    QUORRIN_TASK_FIELD("speedP2PVFH", "tickCount", task.tickCount());
    QUORRIN_TASK_FIELD("speedP2PVFH", "toleranceNow", task.toleranceNow());
    QUORRIN_TASK_FIELD("speedP2PVFH", "tickLimit", task.tickLimit());
    QUORRIN_TASK_FIELD("speedP2PVFH", "turnDoneFlag", task.turnDoneFlag());
    QUORRIN_TASK_FIELD("speedP2PVFH", "referenceHeading", task.referenceHeading());
    QUORRIN_TASK_FIELD("speedP2PVFH", "reverseFlag", task.reverseFlag());
}

static void addAntiStuckFields(FieldTable& table, const Station& station) {
    const auto find = [&station] { return station.antiStuck(); };
    QUORRIN_TASK_FIELD("AntiStuck", "timeInterval", task.timeInterval);
    QUORRIN_TASK_FIELD("AntiStuck", "filteredRatioLeft", task.state().filteredRatioLeft);
    QUORRIN_TASK_FIELD("AntiStuck", "filteredRatioRight", task.state().filteredRatioRight);
    QUORRIN_TASK_FIELD("AntiStuck", "stuckCountLeft", task.state().stuckCountLeft);
    QUORRIN_TASK_FIELD("AntiStuck", "stuckCountRight", task.state().stuckCountRight);
}

static void addTeleoperationFields(FieldTable& table, const Station& station) {
    const auto find = [&station] { return station.gui.teleoperationtask.get(); };
    QUORRIN_TASK_FIELD("Teleoperation", "timeInterval", task.timeInterval);
    QUORRIN_TASK_FIELD("Teleoperation", "targetDistance", task.targetDistance);
    QUORRIN_TASK_FIELD("Teleoperation", "maxforwardspeed", task.maxforwardspeed);
    QUORRIN_TASK_FIELD("Teleoperation", "maxTurnspeed", task.maxTurnspeed);
    QUORRIN_TASK_FIELD("Teleoperation", "active", task.active());
    QUORRIN_TASK_FIELD("Teleoperation", "speedFraction", task.speedFraction());
    QUORRIN_TASK_FIELD("Teleoperation", "steerFraction", task.steerFraction());
}

void addTaskFields(FieldTable& table, const Station& station) {
    addGpsFields(table, station);
    addMapFields(table, station);
    addNavigatorFields(table, station);
    addAntiStuckFields(table, station);
    addTeleoperationFields(table, station);
    // The landmark task is never built by the station.
    for (const char* field : {"Status", "tolerance", "SonarGPSInterval", "enable"})
        addNothing(table, std::string("SSGPS.") + field);
}

}  // namespace quorrin
