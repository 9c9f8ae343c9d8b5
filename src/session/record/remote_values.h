// Flags of the remote session, the camera chain and the voice paths that several rooms share.
#pragma once

#include <string>

#include "base/checked_int.h"

namespace quorrin {

struct RemoteValues {
    bool remoteCommandsSeen = false;   // a frame has come in on the command channel
    bool remoteCommandActive = false;  // frames are arriving
    bool remoteListening = false;      // the client wants to hear the robot
    bool callAccepted = false;         // a call on the command port has been answered
    // Why a channel cannot be called, "port 7060 is in use"; empty while all can.
    std::string listenProblem;
    Integer commandCount;      // the client's running counter
    Integer lastCommandCount;  // the number in txtCommandCount when that last changed
};

struct CameraValues {
    bool videoClientConnected = false;
    bool videoClientReady = false;  // the client has taken the previous frame
    Integer videoWaitFrames;        // frame events passed while waiting for the client
    Integer frameWatchdog;          // periods of tmrImage since the last frame event
    Integer jpegQuality;            // 1 to 100
};

struct VoiceValues {
    bool voiceChained = false;
    bool playbackOpen = false;
    Integer playbackBlockCount;
    Integer voiceBufferIndex;
    Integer voiceQuietTicks;
    // The last robot sound: a handle of the multimedia link and a length in bytes.
    Long robotSoundAddress;
    Long robotSoundLength;
};

}  // namespace quorrin
