#include "client/client_words.h"

#include <map>

namespace quorrin {

const ClientWords& clientWords(ClientControl control) {
    static const std::map<ClientControl, ClientWords> kWords = {
        {ClientControl::window, {"Quorrin Remote", "", "", ""}},
        {ClientControl::host,
         {"Station", "Address of the station",
          "Name or IPv4 address of the station's machine. Enter connects.", ""}},
        {ClientControl::connect,
         {"Connect", "", "Makes all six connections, or lets the robot go and closes them. F2", "F2"}},
        {ClientControl::look, {"Light or dark", "", "Changes between the light and the dark look. F8", "F8"}},
        {ClientControl::mode,
         {"Mode  F5", "Mode key", "In IDLE the robot starts to wander; in any other mode it goes to IDLE. F5",
          "F5"}},
        {ClientControl::release,
         {"Let go  F6", "Let the robot go", "Stops the robot and gives it back to the station. F6", "F6"}},
        {ClientControl::avoidance,
         {"Collision avoidance  F7", "Collision avoidance",
          "Sent with each drive command. The station sets its switch by it; its driver decides by the gas "
          "alone.",
          "F7"}},
        {ClientControl::headAhead, {"Ahead  C", "Look ahead", "The head looks straight ahead. C", "C"}},
        {ClientControl::headUpDown, {"Up and down", "Head, up and down", "The look, up and down", ""}},
        {ClientControl::headLeftRight,
         {"Left and right", "Head, left and right", "The look, left and right", ""}},
        {ClientControl::mouth, {"Mouth", "Mouth, closed to open", "The mouth, closed to open", ""}},
        {ClientControl::driveField,
         {"Drive", "Drive field: the arrow keys drive the robot",
          "Hold the arrow keys, or the buttons here. When you let go the robot stands.", ""}},
        {ClientControl::headField, {"Head and mouth", "", "", ""}},
        {ClientControl::connections, {"Connections", "", "", ""}},
    };
    return kWords.at(control);
}

const std::string& tileCaption(ClientTile tile) {
    static const std::map<ClientTile, std::string> kCaptions = {
        {ClientTile::mode, "Robot's mode"}, {ClientTile::holder, "Who holds the robot"},
        {ClientTile::person, "Person"},     {ClientTile::position, "Position"},
        {ClientTile::linkAge, "Link age"},  {ClientTile::roundTrip, "Latency"},
    };
    return kCaptions.at(tile);
}

const std::string& channelCaption(RemoteChannel channel) {
    static const std::map<RemoteChannel, std::string> kCaptions = {
        {RemoteChannel::command, "Commands"},    {RemoteChannel::sensor, "Reports"},
        {RemoteChannel::video, "Camera"},        {RemoteChannel::audio, "Talking"},
        {RemoteChannel::sendVoice, "Listening"}, {RemoteChannel::tts, "Speech"},
    };
    return kCaptions.at(channel);
}

const std::string& levelCaption(Level level) {
    static const std::map<Level, std::string> kCaptions = {
        {Level::gas, "Gas"}, {Level::brake, "Full brake"}, {Level::steering, "Steering"}};
    return kCaptions.at(level);
}

const std::vector<HeldKeyWords>& heldKeyWords() {
    static const std::vector<HeldKeyWords> kWords = {
        {&HeldKeys::forward, "Up", "Gas", "Gas", "Faster, as long as it is held. Up"},
        {&HeldKeys::left, "Left", "Left", "Steer left", "Turns left, as long as it is held. Left"},
        {&HeldKeys::brake, "Down", "Brake", "Brake", "Full brake and no gas. Down"},
        {&HeldKeys::right, "Right", "Right", "Steer right", "Turns right, as long as it is held. Right"},
        {&HeldKeys::headUp, "W", "Up", "Look up", "The look goes up. W"},
        {&HeldKeys::headLeft, "A", "Left", "Look left", "The look goes left. A"},
        {&HeldKeys::headDown, "S", "Down", "Look down", "The look goes down. S"},
        {&HeldKeys::headRight, "D", "Right", "Look right", "The look goes right. D"},
        {&HeldKeys::mouthClose, "Q", "Close", "Close the mouth", "The mouth closes. Q"},
        {&HeldKeys::mouthOpen, "E", "Open", "Open the mouth", "The mouth opens. E"},
    };
    return kWords;
}

}  // namespace quorrin
