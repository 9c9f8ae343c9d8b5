// The words of the engineering view: ranges, thresholds, counters and raw values.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows rangeWords() {
    return {
        {"IRT(1)", "IR 1 (m)", "Infrared range 1",
         "30 degrees to the left of the front, in metres from the robot's centre."},
        {"IRT(2)", "IR 2 (m)", "Infrared range 2",
         "15 degrees to the left of the front, in metres from the robot's centre."},
        {"IRT(3)", "IR 3 (m)", "Infrared range 3",
         "15 degrees to the right of the front, in metres from the robot's centre."},
        {"IRT(4)", "IR 4 (m)", "Infrared range 4",
         "30 degrees to the right of the front, in metres from the robot's centre."},
        {"IRT(5)", "IR 5 (m)", "Infrared range 5", "To the right, in metres from the robot's centre."},
        {"IRT(6)", "IR 6 (m)", "Infrared range 6", "To the right, in metres from the robot's centre."},
        {"IRT(7)", "IR 7 (m)", "Infrared range 7", "To the left, in metres from the robot's centre."},
        {"SonarT(0)", "Sonar 1 (m)", "Sonar range 1",
         "45 degrees to the left of the front, in metres from the robot's centre."},
        {"SonarT(1)", "Sonar 2 (m)", "Sonar range 2", "Straight ahead, in metres from the robot's centre."},
        {"SonarT(2)", "Sonar 3 (m)", "Sonar range 3",
         "45 degrees to the right of the front, in metres from the robot's centre."},
        {"SonarT(3)", "Sonar 4 (m)", "Sonar range 4", "Straight behind, in metres from the robot's centre."},
        {"txtFrontIRL", "Front IR (raw)", "Front infrared reading",
         "Raw reading of the front infrared sensor, 0 to 4095."},
        {"txtFrontIRR", "Head IR (m)", "Head infrared range",
         "Range where the head looks, in metres from the robot's centre."},
        {"lblHuman", "Presence (raw)", "Presence sensor reading",
         "Raw reading of the presence sensor; 2048 is rest."},
    };
}

WordsRows engineeringWords() {
    return {
        {"txtTh1", "Density Threshold", "Density threshold",
         "Density from which a sector counts as blocked."},
        {"txtTh2", "Speed Saturation", "Speed saturation", "Density at which the robot stands."},
        {"txtTh3", "Side Clearance (sectors)", "Side clearance",
         "Free sectors wanted at each side of the heading."},
        {"txtTh4", "Narrowest Gap (sectors)", "Narrowest gap",
         "Fewest free sectors side by side that count as a gap."},
        {"txtWonderSpeed", "Wander Gas Level", "Gas level of the wander",
         "How fast the robot wanders: 10000 stands, 0 is full gas."},
        {"txtCnt", "Run Ticks", "Ticks of the run", "Ticks of a run to a target that may be given up."},
        {"chkGPS", "Landmark Fix", "Landmark fix", "Set while a landmark fix was taken."},
        {"lblCom", "Silence (ticks)", "Silent ticks",
         "Ticks of 100 ms since the last power frame; the recovery begins above 200."},
        {"lblTest", "Power Byte Sent", "Power byte sent", "The power byte that the control tick wrote last."},
        {"lblJoy", "Held by Hand", "Held by hand",
         "True while the control panel or a remote client holds the robot."},
        {"lblth1", "Density in Use", "Density threshold in use",
         "The density threshold that the control tick saw."},
        {"lblth2", "Gas in Use", "Gas level in use", "The gas level that the driver works with."},
        {"lblCa", "Heading Search", "Heading search", "True while the heading search is at work."},
        {"lblSensorCnt", "Motion Frames", "Count of motion frames",
         "Motion frames received; starts anew above 32765."},
        {"txtRobotP2PTask", "Task", "Task", "Always 0."},
    };
}

// Nothing reads or writes these.
WordsRows remainsWords() {
    return {
        {"p2pVFH", "Go to Target", "Go to target", "Has no function."},
        {"cmdPar", "Patrol", "Patrol", "Has no function."},
        {"cmdAlarm", "Alarm", "Alarm", "Has no function."},
        {"cmdGPSScan", "Scan", "Scan for landmarks", "Has no function."},
        {"cmdDisSSGPS", "Landmarks Off", "Landmarks off", "Has no function."},
        {"chkStunk", "Stuck", "Stuck", "Has no function."},
        {"In_Target_X1", "X1", "X of target 1", "Has no function."},
        {"IN_Target_Y1", "Y1", "Y of target 1", "Has no function."},
        {"IN_Target_angel1", "Angle 1", "Angle of target 1", "Has no function."},
        {"In_Target_X2", "X2", "X of target 2", "Has no function."},
        {"In_Target_Y2", "Y2", "Y of target 2", "Has no function."},
        {"IN_target_angel2", "Angle 2", "Angle of target 2", "Has no function."},
        {"In_Target_X3", "X3", "X of target 3", "Has no function."},
        {"In_Target_Y3", "Y3", "Y of target 3", "Has no function."},
        {"IN_target_angel3", "Angle 3", "Angle of target 3", "Has no function."},
        {"In_Target_X4", "X4", "X of target 4", "Has no function."},
        {"In_Target_Y4", "Y4", "Y of target 4", "Has no function."},
        {"IN_target_angel4", "Angle 4", "Angle of target 4", "Has no function."},
        {"IN_SPEED", "Speed", "Speed", "Has no function."},
        {"IN_TURN_Speed", "Turn Speed", "Turn speed", "Has no function."},
        {"OUT_EX", "Error X", "Error in X", "Has no function."},
        {"OUT_EY", "Error Y", "Error in Y", "Has no function."},
        {"OUT_EAngel", "Error Angle", "Error in the angle", "Has no function."},
        {"txtParStep", "Patrol Step", "Step of the patrol", "Has no function."},
        {"txtAlarmCnt", "Alarm Count", "Count of alarms", "Has no function."},
        {"lblIO", "I/O", "Inputs and outputs", "Has no function."},
        {"lblGPS1", "Fix 1", "Landmark value 1", "Has no function."},
        {"lblGPS2", "Fix 2", "Landmark value 2", "Has no function."},
        {"lblGPS3", "Fix 3", "Landmark value 3", "Has no function."},
        {"lblGPS4", "Fix 4", "Landmark value 4", "Has no function."},
        {"lblsenid1", "Sensor ID 1", "Sensor number 1", "Has no function."},
        {"lblsenid2", "Sensor ID 2", "Sensor number 2", "Has no function."},
        {"lblsenid3", "Sensor ID 3", "Sensor number 3", "Has no function."},
        {"lblsenid4", "Sensor ID 4", "Sensor number 4", "Has no function."},
        {"lblChgCnt", "Charge Count", "Count of charges", "Has no function."},
        {"lblPingCnt", "Ping Count", "Count of pings", "Has no function."},
        {"lblBatVol", "Battery (V)", "Battery voltage", "Has no function."},
        {"lblVoiceCommand", "Voice Command", "Voice command", "Has no function."},
    };
}

}  // namespace quorrin
