#include "session/flight_recorder.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "base/json_text.h"

namespace quorrin {

namespace {

constexpr std::int64_t kPieceMs = 30 * 60 * 1000;
constexpr std::int64_t kWriteMs = 2000;
constexpr std::size_t kWriteBytes = 64 * 1024;
// Four times what half an hour with sound and clients comes to. Clients need no password: one that floods the
// station shall not fill the disk.
constexpr std::int64_t kPieceBytes = 256 * 1024 * 1024;
constexpr const char* kHead = "# flight recording ";

std::string pathOf(const std::string& folder, std::int64_t piece) {
    return folder + (piece % 2 == 1 ? "/flight-1.jsonl" : "/flight-2.jsonl");
}

// The number in the first line of a piece; 0 where there is none.
std::int64_t pieceNumber(Files& files, const std::string& path) {
    const std::string text = files.read(path).value_or("");
    const std::string head = kHead;
    if (text.rfind(head, 0) != 0) return 0;
    std::int64_t number = 0;
    std::from_chars(text.data() + head.size(), text.data() + text.size(), number);
    return std::max<std::int64_t>(number, 0);
}

std::string dateText(const CivilTime& time) {
    char text[80];
    std::snprintf(text, sizeof text, "%s %02d:%02d:%02d", isoDate(time).c_str(), time.hour, time.minute,
                  time.second);
    return text;
}

void appendValue(std::string& out, const decltype(OperatorAct::value)& value) {
    if (const auto* text = std::get_if<std::string>(&value)) appendText(out, *text);
    if (const auto* whole = std::get_if<std::int64_t>(&value)) appendWhole(out, *whole);
    if (const auto* truth = std::get_if<bool>(&value)) appendBoolean(out, *truth);
}

std::string member(const char* key, const std::string& value) {
    std::string out = std::string("\"") + key + "\": ";
    appendText(out, value);
    return out;
}

std::string timed(std::int64_t timeMs, const std::string& members) {
    return "{\"t\": " + std::to_string(timeMs) + ", " + members + "}\n";
}

}  // namespace

FlightRecorder::FlightRecorder(PacedClock& clock, Files& files, CreateAppendFile create, std::string folder)
    : clock_(clock), files_(files), create_(std::move(create)), folder_(std::move(folder)) {}

FlightRecorder::~FlightRecorder() {
    flush();
}

void FlightRecorder::begin() {
    // The older of the two pieces that an earlier session has left gives way.
    piece_ = std::max(pieceNumber(files_, pathOf(folder_, 1)), pieceNumber(files_, pathOf(folder_, 2)));
    begun_ = true;
    startPiece();
    settled_ += timed(0, "\"login\": true");
    write();
}

void FlightRecorder::startPiece() {
    ++piece_;
    pieceBeganMs_ = clock_.nowMs();
    pieceBytes_ = 0;
    const std::string path = pathOf(folder_, piece_);
    file_ = create_(path);
    if (!file_) {
        complaint_ = "the flight recording " + path + " cannot be made";
        return;
    }
    settled_ += kHead + std::to_string(piece_) + ", from " + std::to_string(pieceBeganMs_) +
                " ms of its session, " + dateText(clock_.wallTime()) + "\n";
}

void FlightRecorder::line(const std::string& members) {
    if (!begun_ || !complaint_.empty()) return;
    settle();
    heldMs_ = std::max({heldMs_, settledMs_, clock_.deliveredMs()});
    held_ += timed(heldMs_, members);
}

void FlightRecorder::boxAnswered(BoxButtons buttons, BoxAnswer answer) {
    // A box that does not ask is answered in the same way by the replay.
    if (buttons != BoxButtons::yesNo) return;
    lineBefore(member("answer", answer == BoxAnswer::yes ? "yes" : "no"));
}

void FlightRecorder::lineBefore(const std::string& members) {
    if (!begun_ || !complaint_.empty()) return;
    settle();
    const std::int64_t before = std::max(settledMs_, clock_.outermostMs());
    held_ = timed(before, members) + held_;
    heldMs_ = std::max(heldMs_, before);
}

// Lets go of the lines of an event that is over.
void FlightRecorder::settle() {
    if (heldNumber_ == clock_.outermostNumber()) return;
    settled_ += held_;
    settledMs_ = std::max(settledMs_, heldMs_);
    held_.clear();
    heldNumber_ = clock_.outermostNumber();
    const std::int64_t now = clock_.nowMs();
    if (now - writtenMs_ >= kWriteMs || settled_.size() >= kWriteBytes) write();
    if (now - pieceBeganMs_ >= kPieceMs) {
        write();
        if (complaint_.empty()) startPiece();
    }
}

void FlightRecorder::write() {
    writtenMs_ = clock_.nowMs();
    pieceBytes_ += static_cast<std::int64_t>(settled_.size());
    if (pieceBytes_ > kPieceBytes) {
        end("would pass 256 MiB within half an hour and ends");
    } else if (file_ && !file_->append(settled_)) {
        end("cannot be written");
    }
    settled_.clear();
}

void FlightRecorder::end(const char* reason) {
    complaint_ = "the flight recording " + pathOf(folder_, piece_) + " " + reason;
    file_.reset();
}

void FlightRecorder::flush() {
    if (!begun_ || !complaint_.empty()) return;
    settled_ += held_;
    held_.clear();
    write();
}

void FlightRecorder::watchForm(Form& form, bool mainForm) {
    const std::string prefix = mainForm ? "" : form.name() + ".";
    form.onOperatorAct = [this, prefix, &form, mainForm](const OperatorAct& done) {
        act(prefix, form, mainForm, done);
    };
}

void FlightRecorder::act(const std::string& prefix, const Form& form, bool mainForm,
                         const OperatorAct& done) {
    const std::string name = done.control == nullptr ? form.name() : prefix + done.control->name();
    switch (done.kind) {
        case OperatorAct::Kind::click:
            return line(member("click", name));
        case OperatorAct::Kind::press:
            return line(member("press", name));
        case OperatorAct::Kind::release:
            return line(member("release", name));
        case OperatorAct::Kind::focus:
            return line(member("focus", name));
        case OperatorAct::Kind::activate:
            return line(member("activate", name));
        case OperatorAct::Kind::close:
            return line(mainForm ? "\"unload\": true" : member("unload", name));
        case OperatorAct::Kind::set: {
            std::string members = member("set", name) + ", \"to\": ";
            appendValue(members, done.value);
            return line(members);
        }
        case OperatorAct::Kind::key: {
            std::string members = "\"keyDown\": ";
            appendValue(members, done.value);
            return line(members + ", " + member("on", name));
        }
        // The control panel is the only form with keys of its own.
        case OperatorAct::Kind::keyDown:
        case OperatorAct::Kind::keyUp: {
            std::string members = done.kind == OperatorAct::Kind::keyDown ? "\"keyDown\": " : "\"keyUp\": ";
            appendValue(members, done.value);
            return line(members);
        }
    }
}

}  // namespace quorrin
