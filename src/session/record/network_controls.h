// The main form's controls of remote access: the switch, the list of clients, the lamps of the channels, what
// the clients sent last.
#pragma once

#include "base/controls.h"

namespace quorrin {

struct NetworkControls {
    NetworkControls(Form& form, Clock& clock)
        : chkRemote(form, "chkRemote", "Enable Remote Access"),
          ConnectionList(form, "ConnectionList"),
          imgNetwork(form, "imgNetwork"),
          imgStatus(form, "imgStatus"),
          inLight(form, "inLight"),
          outLight(form, "outLight"),
          lblWskCmd(form, "lblWskCmd"),
          lblWskAudio(form, "lblWskAudio"),
          lblWskSendVoice(form, "lblWskSendVoice"),
          lblWskSensor(form, "lblWskSensor"),
          lblWskTTS(form, "lblWskTTS"),
          lblWskVideo(form, "lblWskVideo"),
          txtCommandCount(form, "txtCommandCount", "0", Accepts::integer),
          txtSteeringlevel(form, "txtSteeringlevel"),
          txtGaslevel(form, "txtGaslevel"),
          txtBrakelevel(form, "txtBrakelevel"),
          txtHeadLR(form, "txtHeadLR"),
          txtHeadUD(form, "txtHeadUD"),
          txtMouthUD(form, "txtMouthUD"),
          txtIncomeTTS(form, "txtIncomeTTS"),
          cmdTTS(form, "cmdTTS", "Speak"),
          tmrCheckConnection(form, "tmrCheckConnection", clock, 300),
          tmrCheckCommandArrival(form, "tmrCheckCommandArrival", clock, 1000) {}

    CheckBox chkRemote;      // checked: calls are answered without asking
    ListBox ConnectionList;  // one line per accepted command connection
    Picture imgNetwork;
    Picture imgStatus;
    Picture inLight;
    Picture outLight;
    Label lblWskCmd;
    Label lblWskAudio;
    Label lblWskSendVoice;
    Label lblWskSensor;
    Label lblWskTTS;
    Label lblWskVideo;
    TextBox txtCommandCount;
    TextBox txtSteeringlevel;
    TextBox txtGaslevel;
    TextBox txtBrakelevel;
    TextBox txtHeadLR;
    TextBox txtHeadUD;
    TextBox txtMouthUD;
    TextBox txtIncomeTTS;
    CommandButton cmdTTS;
    Timer tmrCheckConnection;
    Timer tmrCheckCommandArrival;
};

}  // namespace quorrin
