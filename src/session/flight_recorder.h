// Writes down what comes into a session, as a script for quorrin-replay: frames, what the operator does, and
// answers to message boxes. What the station asks of the world is not written: the replay finds it again.
//
// Times are those of the session's own clock, so a session that runs on a PacedClock replays to the same
// operations. The recording begins with the login. Each piece holds at least half an hour of the session
// before the next begins; the two latest pieces are kept, in flight-1.jsonl and flight-2.jsonl, so that the
// last half hour is there at any time. A replay needs the pieces from the session's beginning on: `cat` the
// older and the newer one. Where a session is longer than both, they can be read, but not replayed from the
// start.
//
// The lines of an event are held back until it is over, since the answer to a box that comes up inside it
// must stand before it. Written every two seconds and at flush(). A recording that cannot be written, or
// whose piece would pass 256 MiB, ends; the session goes on.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "base/form.h"
#include "platform/append_file.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/paced_clock.h"

namespace quorrin {

class FlightRecorder {
  public:
    // All must outlive it. `folder` without a trailing "/".
    FlightRecorder(PacedClock& clock, Files& files, CreateAppendFile create, std::string folder);
    ~FlightRecorder();
    FlightRecorder(const FlightRecorder&) = delete;
    FlightRecorder& operator=(const FlightRecorder&) = delete;

    // The session begins, with the login form, now: writes the head of the recording.
    void begin();
    // Everything that is known goes to the file: at the end, and after a program error.
    void flush();

    // From now on writes down what the operator does to the form. The main form's controls go by their own
    // names, those of others with the form's name before them.
    void watchForm(Form& form, bool mainForm);
    // `members` is what comes behind the time: "\"frame\": \"IrFrame\", \"IrAdc1\": 5".
    void line(const std::string& members);
    // The same for what must stand before the event under way, as it has to be known when that begins.
    void lineBefore(const std::string& members);
    void boxAnswered(BoxButtons buttons, BoxAnswer answer);

    // Why there is no recording any more; empty while there is.
    const std::string& complaint() const { return complaint_; }

  private:
    void startPiece();
    void settle();
    void write();
    void end(const char* reason);
    void act(const std::string& prefix, const Form& form, bool mainForm, const OperatorAct& done);

    PacedClock& clock_;
    Files& files_;
    CreateAppendFile create_;
    std::string folder_;
    std::unique_ptr<AppendFile> file_;
    std::string complaint_;
    std::int64_t piece_ = 0;  // number of the piece that is being written, from 1 on
    std::int64_t pieceBeganMs_ = 0;
    std::int64_t pieceBytes_ = 0;
    std::int64_t writtenMs_ = 0;
    std::string settled_;           // lines that can go to the file
    std::int64_t settledMs_ = 0;    // the latest time in lines that have been let go
    std::string held_;              // lines of the event under way
    std::int64_t heldMs_ = 0;       // the latest time in them
    std::int64_t heldNumber_ = -1;  // which event that is
    bool begun_ = false;
};

// A message box whose answers are written down.
class RecordedBoxes : public MessageBoxes {
  public:
    RecordedBoxes(MessageBoxes& inner, FlightRecorder& recorder) : inner_(inner), recorder_(recorder) {}
    BoxAnswer show(const std::string& text, const std::string& title, BoxButtons buttons) override {
        const BoxAnswer answer = inner_.show(text, title, buttons);
        recorder_.boxAnswered(buttons, answer);
        return answer;
    }

  private:
    MessageBoxes& inner_;
    FlightRecorder& recorder_;
};

}  // namespace quorrin
