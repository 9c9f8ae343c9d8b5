// The words of talking, listening and the sound broadcast.
#include "console/control_words_rows.h"

namespace quorrin {

WordsRows soundWords() {
    return {
        {"cmdTalk", "", "Talk to the robot", "Hold it down to talk through the robot's loudspeaker."},
        {"cmdListen", "", "Listen to the robot", "Starts or stops listening through the robot's microphone.",
         "F6"},
        {"txtMusicName", "Sound File", "Sound file",
         "Full path of the sound file: WAV, 8000 Hz, one channel."},
        {"btnOpenMusic", "", "Choose a sound file", "Chooses the sound file to play on the robot.", "Ctrl+O"},
        {"tbaMusic.Play", "", "Play the sound file", "Plays the chosen file on the robot.", "Ctrl+J"},
        {"tbaMusic.Stop", "", "Stop the sound file", "Stops the file that plays on the robot.",
         "Ctrl+Shift+J"},
        {"cmdPlayWav", "", "Play the greeting", "Plays the greeting on the robot.", "Ctrl+G"},
        {"lblVoice", "Voice Sent", "Voice sent",
         "Tells whether the last sound buffer went out to the client."},
    };
}

}  // namespace quorrin
