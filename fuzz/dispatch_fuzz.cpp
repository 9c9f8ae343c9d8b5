// Payloads of the command channel, one after the other, with time between them: what dispatchRemoteCommand
// leaves in record and boxes, and what it asked for, is what a second, plain model of the channel has, and
// nothing leaves it by an exception, not even when a box's handler fails.
//
// Input: a byte for what is there before (1 the operator listens, 2 the robot is held, 4 a box's handler
// fails, 8 modes are asked for, 16 avoidance is on), then the payloads, each ended by 0x1E. A payload that is
// the one byte 0x1F is none: 300 ms pass.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/program_error.h"
#include "expect.h"
#include "plain_drive.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_sockets.h"
#include "remote/command_channel.h"
#include "support/fake_link.h"

namespace quorrin::fuzz {
namespace {

constexpr int kPassesMs = 300;
constexpr int kSilentTicks = 77;
constexpr int kArrivalMs = 1000;

// What can be seen of the channel's work.
struct Seen {
    bool commandsSeen = false;
    bool commandActive = false;
    bool held = false;
    bool listening = false;
    bool asksIdle = false;
    bool asksWander = false;
    bool asksJoy = false;
    bool joystickActive = false;
    bool avoidance = false;
    bool arrivalRunning = false;
    int silentTicks = kSilentTicks;
    int lastCount = 0;
    int outLight = 0;
    DriveValues drive{50, 4000, 9500, -7, 11, 2600, 0, 0};  // without the seventh, which is `avoidance`
    std::vector<std::string> shown{"", "", "", "0", "", "", ""};
    int modeKeys = 0;
    int quits = 0;
    int recordingsStopped = 0;
    std::vector<std::string> asked;  // of the link
    bool operator==(const Seen&) const = default;
};

class Room {
  public:
    explicit Room(unsigned before) {
        const DriveValues first = Seen().drive;
        values_.steeringLevel = first[0];
        values_.gasLevel = first[1];
        values_.brakeLevel = first[2];
        values_.headCmdUpDown = first[3];
        values_.headCmdLeftRight = first[4];
        values_.mouthCmd = first[5];
        form_.connCheckTicks = kSilentTicks;
        if ((before & 1) != 0) sound_.cmdListen.setCaption("Stop Listening");
        values_.manualPanelActive = (before & 2) != 0;
        if ((before & 4) != 0) network_.txtGaslevel.onChange = [] { throw ProgramError("refused"); };
        values_.requestIdle = values_.requestWander = values_.joystickActive = (before & 8) != 0;
        values_.caEnabled = (before & 16) != 0;
        session_.cmdChEn.onClick = [this] { ++modeKeys_; };
    }

    void take(const std::string& payload) { channel_.dispatchRemoteCommand(payload); }
    void pass() { clock_.runFor(kPassesMs); }

    Seen seen() const {
        const NetworkControls& network = network_;
        return {values_.remoteCommandsSeen,
                values_.remoteCommandActive,
                values_.manualPanelActive,
                values_.remoteListening,
                values_.requestIdle,
                values_.requestWander,
                values_.requestJoy,
                values_.joystickActive,
                values_.caEnabled,
                network.tmrCheckCommandArrival.running(),
                form_.connCheckTicks,
                values_.lastCommandCount,
                network.outLight.number(),
                {values_.steeringLevel, values_.gasLevel, values_.brakeLevel, values_.headCmdUpDown,
                 values_.headCmdLeftRight, values_.mouthCmd, 0, values_.commandCount},
                {network.txtSteeringlevel.text(), network.txtGaslevel.text(), network.txtBrakelevel.text(),
                 network.txtCommandCount.text(), network.txtHeadLR.text(), network.txtHeadUD.text(),
                 network.txtMouthUD.text()},
                modeKeys_,
                quits_,
                recordingsStopped_,
                robotTI_.operations()};
    }

  private:
    VirtualClock clock_;
    VirtualSockets sockets_{clock_};
    ScriptedBoxes boxes_;
    FakeLink robotTI_;
    Form window_{"frmGUI"};
    NetworkControls network_{window_, clock_};
    SessionControls session_{window_, clock_};
    SoundControls sound_{window_, clock_};
    MainFormValues form_;
    PublicValues values_;
    int modeKeys_ = 0;
    int quits_ = 0;
    int recordingsStopped_ = 0;
    CommandChannel channel_{{clock_,
                             sockets_,
                             boxes_,
                             robotTI_,
                             nullptr,
                             values_,
                             network_,
                             session_,
                             sound_,
                             form_,
                             {},
                             [this] { ++recordingsStopped_; }},
                            [this] { ++quits_; }};
};

class Model {
  public:
    explicit Model(unsigned before) : operatorListens_((before & 1) != 0) {
        seen_.held = (before & 2) != 0;
        seen_.asksIdle = seen_.asksWander = seen_.joystickActive = (before & 8) != 0;
        seen_.avoidance = (before & 16) != 0;
    }
    const Seen& seen() const { return seen_; }

    void take(const std::string& payload) {
        seen_.commandsSeen = seen_.commandActive = true;
        const auto begins = [&payload](const char* key) { return payload.compare(0, 4, key) == 0; };
        if (begins("Mode")) ++seen_.modeKeys;
        if (begins("Clos")) seen_.held = false;
        if (begins("Quit")) ++seen_.quits;
        if (begins("RLIS")) hear(true);
        if (begins("NLIS")) hear(false);
        if (begins("PING")) seen_.silentTicks = 0;
        if (payload.size() >= 11) drive(payload);
    }

    void pass() {
        now_ += kPassesMs;
        if (!seen_.arrivalRunning || now_ < due_) return;
        seen_.commandActive = false;
        seen_.arrivalRunning = false;
    }

  private:
    void hear(bool on) {
        seen_.listening = on;
        seen_.outLight = on ? 8 : 6;
        if (on) seen_.asked.emplace_back("StartSoundCapture 1");
        if (on) return;
        ++seen_.recordingsStopped;
        if (!operatorListens_) seen_.asked.emplace_back("StopSoundCapture");
    }
    void drive(const std::string& payload) {
        DriveValues& values = seen_.drive;
        values[6] = 0;
        plainDrive(payload, values);
        if (values[0] > 10) {
            seen_.asksJoy = true;
            seen_.asksIdle = seen_.asksWander = seen_.joystickActive = false;
        }
        seen_.avoidance = values[6] == 1;
        values[6] = 0;
        const bool stepped = std::to_string(values[7]) != seen_.shown[3];
        const std::size_t shown[] = {0, 1, 2, 7, 4, 3, 5};
        for (std::size_t i = 0; i < 7; ++i) seen_.shown[i] = std::to_string(values[shown[i]]);
        if (!stepped) return;
        seen_.lastCount = values[7];
        seen_.held = true;
        if (!seen_.arrivalRunning) due_ = now_ + kArrivalMs;
        seen_.arrivalRunning = true;
    }

    bool operatorListens_;
    Seen seen_;
    int now_ = 0;
    int due_ = 0;
};

}  // namespace
}  // namespace quorrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    quorrin::fuzz::Room room(data[0]);
    quorrin::fuzz::Model model(data[0]);
    std::string_view rest(reinterpret_cast<const char*>(data) + 1, size - 1);
    while (!rest.empty()) {
        const std::string payload(rest.substr(0, rest.find('\x1E')));
        if (payload == "\x1F") {
            room.pass();
            model.pass();
        } else {
            room.take(payload);
            model.take(payload);
        }
        quorrin::fuzz::expect(room.seen() == model.seen(), "the channel has done what its model has");
        rest.remove_prefix(payload.size() < rest.size() ? payload.size() + 1 : payload.size());
    }
    return 0;
}
