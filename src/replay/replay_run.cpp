#include "replay/replay_run.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/json_text.h"
#include "base/program_error.h"
#include "replay/joystick_line.h"
#include "replay/script_parser.h"
#include "replay/socket_printer.h"

namespace quorrin {

namespace {

// Deliveries at one instant before a run counts as an endless loop. A script may pile up many lines there.
constexpr std::int64_t kEventCap = 50'000'000;

class Depth {
  public:
    explicit Depth(int& depth) : depth_(depth) { ++depth_; }
    ~Depth() { --depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

  private:
    int& depth_;
};

}  // namespace

ReplayRun::ReplayRun(const ReplaySetup& setup, LineReader& script, std::FILE* out)
    : setup_(setup),
      script_(script),
      clock_(setup.wallAtZero),
      output_(clock_, out),
      sockets_(clock_),
      wave_(output_),
      myRobot_(LinkName::myRobot, output_, setup.files, setup.folders.application),
      robotTI_(LinkName::robotTI, output_, setup.files, setup.folders.application),
      station_(ports()),
      fields_(station_),
      operator_(station_) {
    clock_.setEventCap(kEventCap);
    if (setup_.namelessApplication) {
        std::string quoted;
        appendText(quoted, setup_.folders.application + "/");
        output_.leaveOut(quoted.substr(1, quoted.size() - 2));
    }
    if (robot_) {
        output_.stop();
        robot_->observe(station_);
    }
    printPrograms();
    printBoxes();
    printSockets(sockets_, output_);
}

void ReplayRun::printPrograms() {
    programs_.onStart = [this](const std::string& name) {
        output_.begin();
        output_.addText("start", name);
        output_.end();
        if (robot_) robot_->programStarted(name);
    };
    programs_.onClose = [this](const std::string& title, bool found) {
        output_.begin();
        output_.addText("close", title);
        output_.addBoolean("found", found);
        output_.end();
        if (robot_ && found) robot_->windowClosed(title);
    };
}

void ReplayRun::printBoxes() {
    boxes_.onShow = [this](const std::string& text, const std::string& title, BoxAnswer answer) {
        output_.begin();
        output_.addText("box", text);
        output_.addText("title", title);
        output_.addText("answer", boxAnswerText(answer));
        output_.end();
    };
}

StationPorts ReplayRun::ports() {
    if (setup_.robot != nullptr) robot_.emplace(clock_, setup_.files, *setup_.robot);
    return {clock_,
            setup_.files,
            programs_,
            boxes_,
            robot_ ? robot_->myRobot() : myRobot_,
            robot_ ? robot_->robotTI() : robotTI_,
            setup_.folders,
            [] { throw ProgramEnd{}; },
            {},
            &sticks_,
            &sockets_,
            &wave_};
}

ReplayRun::~ReplayRun() {
    // What the station does while it is taken apart is no part of the run.
    output_.stop();
}

ReplayEnd ReplayRun::run() {
    ReplayEnd end = ReplayEnd::scriptEnded;
    try {
        play();
    } catch (const ProgramEnd&) {
        output_.begin();
        output_.addBoolean("ended", true);
        output_.end();
    } catch (const ScriptError& error) {
        error_ = error;
        end = ReplayEnd::badScript;
    } catch (const std::exception& error) {
        output_.begin();
        output_.addText("fatal", error.what());
        output_.end();
        fatalText_ = error.what();
        end = ReplayEnd::programError;
    }
    output_.stop();
    output_.flush();
    return end;
}

void ReplayRun::play() {
    stickButtons_ = buttonsOfStick(script_);
    script_.rewind();
    if (stickButtons_) sticks_.attach(*stickButtons_);
    const bool any = readLine();
    // The first line says whether the run begins at the login, so that one must be good.
    if (next_.broken) throw *next_.broken;
    firstLine_ = false;
    if (any && std::holds_alternative<LoginLine>(next_.line.what)) {
        station_.startAtLogin();
        feed();
    } else {
        station_.startAtMainForm();
        if (any) enqueue();
    }
    while (lineIsDue()) clock_.runUntil(next_.line.timeMs);
    clock_.runUntil(robot_ ? setup_.robotMs : lastTimeMs_);
    // A last line that came late, after a blocking wait, may have asked for a watch, which is due now.
    if (watch_ && !watch_->hasPrinted()) clock_.runUntil(clock_.nowMs());
}

// Reads the next line that asks for something into next_; false at the end of the script. A line that cannot
// be used is read, too: it has its own time where that is good, else the time of the line before it.
bool ReplayRun::readLine() {
    std::optional<std::string_view> text;
    do {
        text = script_.next();
    } while (text && isSkippedLine(*text));
    if (!text && script_.good()) return false;

    next_.broken.reset();
    ScriptLine& line = next_.line;
    line.timeMs = -1;
    const std::int64_t number = script_.lineNumber() + (text ? 0 : 1);
    try {
        if (!text) throw ScriptError{number, "cannot be read"};
        parseScriptLine(*text, number, line);
        if (robot_ && (std::holds_alternative<FrameLine>(line.what) ||
                       std::holds_alternative<FrameFileLine>(line.what)))
            throw ScriptError{number, "frames come from the simulated robot, not from the script"};
        if (line.timeMs < lastTimeMs_) {
            throw ScriptError{number, "\"t\" goes back from " + std::to_string(lastTimeMs_) + " to " +
                                          std::to_string(line.timeMs)};
        }
        if (std::holds_alternative<LoginLine>(line.what) && (!firstLine_ || line.timeMs != 0))
            throw ScriptError{number, "\"login\" stands in the first line, at 0, or nowhere"};
    } catch (const ScriptError& error) {
        next_.broken = error;
        line.timeMs = std::max(line.timeMs, lastTimeMs_);
    }
    lastTimeMs_ = line.timeMs;
    return true;
}

void ReplayRun::enqueue() {
    waiting_ = true;
    clock_.arriveAt(
        next_.line.timeMs, [this] { deliver(); }, next_.broken ? nullptr : sourceOf(next_.line));
}

// The handler that the line will run, which may be running when the line is due.
EventSource* ReplayRun::sourceOf(const ScriptLine& line) {
    const auto& what = line.what;
    if (const auto* frame = std::get_if<FrameLine>(&what)) return &eventOf(*frame).source;
    if (const auto* withFile = std::get_if<FrameFileLine>(&what)) return &eventOf(withFile->frame).source;
    if (const auto* call = std::get_if<ConnectLine>(&what)) return &sockets_.source(call->array);
    if (const auto* socket = std::get_if<SocketLine>(&what)) return &sockets_.source(socket->array);
    return nullptr;
}

void ReplayRun::feed() {
    if (readLine()) enqueue();
}

void ReplayRun::deliver() {
    waiting_ = false;
    if (refused_) return;
    ReadLine read;
    std::swap(read, next_);
    if (!read.broken) feed();
    try {
        const Depth depth(depth_);
        if (read.broken) throw *read.broken;
        perform(read.line);
    } catch (const ScriptError& error) {
        // Where another line is being performed, that one has its whole effect first.
        if (!refused_) refused_ = error;
    }
    if (depth_ == 0 && refused_) throw *refused_;
}

void ReplayRun::perform(const ScriptLine& line) {
    const std::int64_t number = line.number;
    const auto& what = line.what;
    if (const auto* frame = std::get_if<FrameLine>(&what)) {
        raise(*frame);
    } else if (const auto* withFile = std::get_if<FrameFileLine>(&what)) {
        raiseWithFile(*withFile, number);
    } else if (const auto* click = std::get_if<ClickLine>(&what)) {
        operator_.perform(*click, number);
    } else if (const auto* press = std::get_if<PressLine>(&what)) {
        operator_.perform(*press, number);
    } else if (const auto* set = std::get_if<SetLine>(&what)) {
        operator_.perform(*set, number);
    } else if (const auto* key = std::get_if<KeyLine>(&what)) {
        operator_.perform(*key, number);
    } else if (const auto* focus = std::get_if<FocusLine>(&what)) {
        operator_.perform(*focus, number);
    } else if (const auto* unload = std::get_if<UnloadLine>(&what)) {
        operator_.perform(*unload, number);
    } else if (const auto* activate = std::get_if<ActivateLine>(&what)) {
        operator_.perform(*activate, number);
    } else if (const auto* answer = std::get_if<AnswerLine>(&what)) {
        prepareAnswer(answer->answer);
    } else if (const auto* stick = std::get_if<JoystickLine>(&what)) {
        moveStick(*stick, number);
    } else if (const auto* call = std::get_if<ConnectLine>(&what)) {
        sockets_.connect(call->array, call->from, call->port);
    } else if (const auto* socket = std::get_if<SocketLine>(&what)) {
        perform(*socket);
    } else if (const auto* watch = std::get_if<WatchLine>(&what)) {
        watch_.emplace(clock_, output_, fields_, *watch, number);
    }
}

void ReplayRun::moveStick(const JoystickLine& line, std::int64_t number) {
    if (line.buttons && line.buttons != stickButtons_)
        throw ScriptError{number, "the stick has " + std::to_string(stickButtons_.value_or(0)) + " buttons"};
    sticks_.move(line.state);
}

void ReplayRun::raise(const FrameLine& line) {
    linkOf(line).setProperties(line);
    eventOf(line).raise();
}

void ReplayRun::raiseWithFile(const FrameFileLine& line, std::int64_t number) {
    ScriptedLink& link = linkOf(line.frame);
    if (line.hasBitmap) link.setBitmap(readNamedFile(line.bitmap, number));
    if (line.hasSound) {
        link.setSound(line.soundFile.empty() ? line.soundBytes : readNamedFile(line.soundFile, number));
    }
    raise(line.frame);
}

void ReplayRun::perform(const SocketLine& line) {
    switch (line.what) {
        case SocketLine::What::receive:
            return sockets_.receive(line.array, line.element, line.bytes);
        case SocketLine::What::hangup:
            return sockets_.hangUp(line.array, line.element);
        case SocketLine::What::socketError:
            return sockets_.fail(line.array, line.element);
    }
}

void ReplayRun::prepareAnswer(const std::string& answer) {
    // "ok" is what a box that does not ask is answered anyway.
    if (answer == "yes") boxes_.prepareAnswer(BoxAnswer::yes);
    if (answer == "no") boxes_.prepareAnswer(BoxAnswer::no);
}

ScriptedLink& ReplayRun::linkOf(const FrameLine& line) {
    const FrameKind& kind = frameKinds()[static_cast<std::size_t>(line.kind)];
    return kind.link == LinkName::myRobot ? myRobot_ : robotTI_;
}

LinkEvent& ReplayRun::eventOf(const FrameLine& line) {
    return linkOf(line).*frameKinds()[static_cast<std::size_t>(line.kind)].event;
}

std::string ReplayRun::readNamedFile(const std::string& path, std::int64_t number) {
    const std::string whole = path.rfind('/', 0) == 0 ? path : setup_.scriptFolder + "/" + path;
    auto content = setup_.files.read(whole);
    if (!content) throw ScriptError{number, "file \"" + path + "\" cannot be read"};
    return *std::move(content);
}

}  // namespace quorrin
