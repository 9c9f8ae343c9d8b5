// One replay: a whole station in virtual time, driven by a script, its requests printed.
//
// Time, order and the end of the run are the clock's; a script line enters the queue when the one before it
// begins to be delivered, so that a line that waits holds back those behind it, and a script may be longer
// than memory. Nothing behind a line that cannot be used is run; the output of the lines before it stands.
//
// The script is looked through once before it runs, since a stick that it moves anywhere is there from the
// start: its file must be one that can go back.
//
// Not here: command line, files of the host, share folder (see the program's main).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/civil_time.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/scripted_joysticks.h"
#include "platform/virtual/scripted_programs.h"
#include "platform/virtual/virtual_clock.h"
#include "platform/virtual/virtual_sockets.h"
#include "replay/line_reader.h"
#include "replay/operator_actions.h"
#include "replay/output.h"
#include "replay/robot_world.h"
#include "replay/script_error.h"
#include "replay/scripted_link.h"
#include "replay/scripted_wave.h"
#include "replay/station_fields.h"
#include "replay/watch.h"
#include "session/station.h"

namespace quorrin {

struct ReplaySetup {
    Files& files;
    Folders folders;
    CivilTime wallAtZero;
    // Where the files that the script names begin, without a trailing "/".
    std::string scriptFolder;
    // With a simulated robot nothing is printed, and the run goes on to robotMs whatever the script says.
    const RobotSetup* robot = nullptr;
    std::int64_t robotMs = 0;
    // The application folder's name differs from run to run, and the output must not: it is left out there.
    bool namelessApplication = false;
};

enum class ReplayEnd : int {
    scriptEnded = 0,   // or the station's own end
    badScript = 2,     // error() tells line and reason
    programError = 3,  // the last line of the output tells it
};

class ReplayRun {
  public:
    // `out` may be null: then output() keeps everything. All must outlive the run.
    ReplayRun(const ReplaySetup& setup, LineReader& script, std::FILE* out);
    ~ReplayRun();

    // Runs the script from its first line to its end. Called once.
    ReplayEnd run();

    const ScriptError& error() const { return error_; }
    const Output& output() const { return output_; }
    Output& output() { return output_; }
    std::int64_t nowMs() const { return clock_.nowMs(); }
    Station& station() { return station_; }
    // Null without a simulated robot.
    RobotWorld* robot() { return robot_ ? &*robot_ : nullptr; }
    // The text of the program error that ended the run.
    const std::string& fatalText() const { return fatalText_; }

  private:
    struct ReadLine {
        ScriptLine line;
        std::optional<ScriptError> broken;  // why it cannot be used
    };

    StationPorts ports();
    void printPrograms();
    void printBoxes();
    EventSource* sourceOf(const ScriptLine& line);
    void play();
    bool lineIsDue() const { return waiting_ && (!robot_ || next_.line.timeMs <= setup_.robotMs); }
    bool readLine();
    void enqueue();
    void feed();
    void deliver();
    void perform(const ScriptLine& line);
    void moveStick(const JoystickLine& line, std::int64_t number);
    void raise(const FrameLine& line);
    void raiseWithFile(const FrameFileLine& line, std::int64_t number);
    void prepareAnswer(const std::string& answer);
    void perform(const SocketLine& line);
    ScriptedLink& linkOf(const FrameLine& line);
    LinkEvent& eventOf(const FrameLine& line);
    std::string readNamedFile(const std::string& path, std::int64_t number);

    ReplaySetup setup_;
    LineReader& script_;
    VirtualClock clock_;
    Output output_;
    ScriptedPrograms programs_;
    ScriptedBoxes boxes_;
    ScriptedJoysticks sticks_;
    std::optional<int> stickButtons_;  // none: the script moves no stick
    VirtualSockets sockets_;
    ScriptedWave wave_;
    ScriptedLink myRobot_;
    ScriptedLink robotTI_;
    std::optional<RobotWorld> robot_;
    Station station_;
    StationFields fields_;
    OperatorActions operator_;
    std::optional<Watch> watch_;

    ReadLine next_;                // the line in the queue
    bool waiting_ = false;         // there is one
    std::int64_t lastTimeMs_ = 0;  // the latest time that a line has had
    bool firstLine_ = true;
    int depth_ = 0;  // lines that are being performed now
    // A line that could not be used was reached while another one was being performed.
    std::optional<ScriptError> refused_;
    ScriptError error_;
    std::string fatalText_;
};

}  // namespace quorrin
