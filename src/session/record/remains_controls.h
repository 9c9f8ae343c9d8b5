// Controls that stand on the main form without a handler, a writer or a reader: remains of the design that
// carry no behaviour, kept so that the form is complete.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct RemainsControls {
    RemainsControls(Form& form, Clock& clock)
        : p2pVFH(form, "p2pVFH"),
          cmdPar(form, "cmdPar"),
          cmdAlarm(form, "cmdAlarm"),
          cmdGPSScan(form, "cmdGPSScan"),
          cmdDisSSGPS(form, "cmdDisSSGPS"),
          chkStunk(form, "chkStunk"),
          In_Target_X1(form, "In_Target_X1"),
          IN_Target_Y1(form, "IN_Target_Y1"),
          IN_Target_angel1(form, "IN_Target_angel1"),
          In_Target_X2(form, "In_Target_X2"),
          In_Target_Y2(form, "In_Target_Y2"),
          IN_target_angel2(form, "IN_target_angel2"),
          In_Target_X3(form, "In_Target_X3"),
          In_Target_Y3(form, "In_Target_Y3"),
          IN_target_angel3(form, "IN_target_angel3"),
          In_Target_X4(form, "In_Target_X4"),
          In_Target_Y4(form, "In_Target_Y4"),
          IN_target_angel4(form, "IN_target_angel4"),
          IN_SPEED(form, "IN_SPEED"),
          IN_TURN_Speed(form, "IN_TURN_Speed"),
          OUT_EX(form, "OUT_EX"),
          OUT_EY(form, "OUT_EY"),
          OUT_EAngel(form, "OUT_EAngel"),
          txtParStep(form, "txtParStep"),
          txtAlarmCnt(form, "txtAlarmCnt"),
          lblIO(form, "lblIO"),
          lblGPS1(form, "lblGPS1"),
          lblGPS2(form, "lblGPS2"),
          lblGPS3(form, "lblGPS3"),
          lblGPS4(form, "lblGPS4"),
          lblsenid1(form, "lblsenid1"),
          lblsenid2(form, "lblsenid2"),
          lblsenid3(form, "lblsenid3"),
          lblsenid4(form, "lblsenid4"),
          lblChgCnt(form, "lblChgCnt"),
          lblPingCnt(form, "lblPingCnt"),
          lblBatVol(form, "lblBatVol"),
          lblVoiceCommand(form, "lblVoiceCommand"),
          tmrHuman(form, "tmrHuman", clock, 5000) {}

    CommandButton p2pVFH;
    CommandButton cmdPar;
    CommandButton cmdAlarm;
    CommandButton cmdGPSScan;
    CommandButton cmdDisSSGPS;
    CheckBox chkStunk;
    TextBox In_Target_X1;
    TextBox IN_Target_Y1;
    TextBox IN_Target_angel1;
    TextBox In_Target_X2;
    TextBox In_Target_Y2;
    TextBox IN_target_angel2;
    TextBox In_Target_X3;
    TextBox In_Target_Y3;
    TextBox IN_target_angel3;
    TextBox In_Target_X4;
    TextBox In_Target_Y4;
    TextBox IN_target_angel4;
    TextBox IN_SPEED;
    TextBox IN_TURN_Speed;
    TextBox OUT_EX;
    TextBox OUT_EY;
    TextBox OUT_EAngel;
    TextBox txtParStep;
    TextBox txtAlarmCnt;
    Label lblIO;
    Label lblGPS1;
    Label lblGPS2;
    Label lblGPS3;
    Label lblGPS4;
    Label lblsenid1;
    Label lblsenid2;
    Label lblsenid3;
    Label lblsenid4;
    Label lblChgCnt;
    Label lblPingCnt;
    Label lblBatVol;
    Label lblVoiceCommand;
    Timer tmrHuman;
};

}  // namespace quorrin
