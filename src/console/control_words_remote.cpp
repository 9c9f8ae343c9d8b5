// The words of remote access: the switch, the clients, what they sent last.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows remoteWords() {
    return {
        {"chkRemote", "", "Enable remote access",
         "Checked: calls are answered without asking. Unchecked: every call asks the operator.", "Alt+R"},
        {"ConnectionList", "Remote Address", "Remote addresses", "The remote clients that are connected.",
         "Alt+C"},
        {"imgNetwork", "Access", "Remote access", "Tells whether calls are answered without asking."},
        {"imgStatus", "Call", "Call", "Tells whether a remote client is in a call."},
        {"inLight", "Voice In", "Voice from the client", "Lit while the client's voice comes in."},
        {"outLight", "Sound Out", "Sound to the client",
         "Lit while the robot's sound goes out to the client."},
        {"txtCommandCount", "Command Count", "Count of commands",
         "Number that the client gave its last drive command."},
        {"txtSteeringlevel", "Steering", "Received steering level",
         "Steering that the client sent: 5000 is straight ahead."},
        {"txtGaslevel", "Gas", "Received gas level", "Gas that the client sent: 10000 is none, 0 is full."},
        {"txtBrakelevel", "Brake", "Received brake level",
         "Brake that the client sent: 10000 is released, 0 is full."},
        {"txtHeadLR", "Head L/R", "Received look to the side",
         "Look to the side that the client sent: 2000 is straight ahead."},
        {"txtHeadUD", "Head U/D", "Received look up and down",
         "Look up and down that the client sent: 2000 is straight ahead."},
        {"txtMouthUD", "Mouth", "Received mouth command", "Mouth command that the client sent."},
        {"txtIncomeTTS", "Text to Speak", "Text to speak",
         "Text that the robot is to speak: from the client, or typed here.", "Alt+T"},
        {"cmdTTS", "", "Speak the text", "Speaks the text on the robot.", "Ctrl+T"},
        {"lblWskCmd", "Command", "State of the command channel",
         "State of the command channel's listener; 2 is listening."},
        {"lblWskAudio", "Voice In", "State of the voice channel",
         "State of the listener for the client's voice; 2 is listening."},
        {"lblWskSendVoice", "Voice Out", "State of the sound channel",
         "State of the listener for the robot's sound; 2 is listening."},
        {"lblWskSensor", "Sensor", "State of the sensor channel",
         "State of the sensor channel's listener; 2 is listening."},
        {"lblWskTTS", "Speech", "State of the speech channel",
         "State of the speech channel's listener; 2 is listening."},
        {"lblWskVideo", "Video", "State of the video channel",
         "State of the video channel's listener; 2 is listening."},
    };
}

}  // namespace quorrin
