#include "replay/watch.h"

#include "base/json_text.h"
#include "replay/script_error.h"

namespace quorrin {

Watch::Watch(Clock& clock, Output& output, const StationFields& fields, const WatchLine& line,
             std::int64_t lineNumber)
    : output_(output),
      timer_(
          clock, [this] { print(); }, EventQueue::Kind::watch) {
    for (const std::string& name : line.names) {
        auto printer = fields.find(name);
        if (!printer) throw ScriptError{lineNumber, "unknown field or control \"" + name + "\""};
        for (const auto& [known, ignored] : watched_) {
            if (known == name) throw ScriptError{lineNumber, "watches \"" + name + "\" twice"};
        }
        watched_.emplace_back(name, std::move(*printer));
    }
    timer_.setInterval(line.everyMs);
    timer_.startAt(clock.nowMs());
}

void Watch::print() {
    hasPrinted_ = true;
    output_.begin();
    std::string& out = output_.addRaw("state");
    out += '{';
    bool first = true;
    for (const auto& [name, printer] : watched_) {
        if (!std::exchange(first, false)) out += ", ";
        appendText(out, name);
        out += ": ";
        printer(out);
    }
    output_.addRawTail("}");
    output_.end();
}

}  // namespace quorrin
