// The members of one script line's JSON object, taken one by one by name and type.
//
// Whoever reads a line takes what it needs and says at the end that nothing may be left over. Errors:
// ScriptError that names the line, the key and what was expected.
#pragma once

#include <array>
#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <set>
#include <string>
#include <vector>

#include "replay/script_line.h"

namespace quorrin {

class LineFields {
  public:
    // Both must outlive this.
    LineFields(const nlohmann::json& object, std::int64_t lineNumber) : object_(object), line_(lineNumber) {}

    bool has(const std::string& key) const;
    bool isText(const std::string& key) const;

    std::string text(const std::string& key);
    std::vector<std::string> texts(const std::string& key);
    std::int64_t whole(const std::string& key);
    std::int64_t wholeWithin(const std::string& key, std::int64_t minimum, std::int64_t maximum);
    std::vector<std::int64_t> wholesWithin(const std::string& key, std::int64_t minimum,
                                           std::int64_t maximum);
    bool boolean(const std::string& key);
    // A signed 16-bit number.
    std::int16_t integer(const std::string& key);
    std::array<std::int16_t, 4> fourIntegers(const std::string& key);
    // An object inside the line, to be taken apart like a line. It must not outlive this.
    LineFields object(const std::string& key);
    // A text, a whole number, or true or false.
    ControlValue controlValue(const std::string& key);

    [[noreturn]] void fail(const std::string& reason) const;
    // Names the keys that nobody has taken, as the tail of a message; empty when there are none.
    std::string unusedKeys() const;
    void expectAllUsed() const;

  private:
    const nlohmann::json& take(const std::string& key);
    std::int16_t fitInteger(const nlohmann::json& value, const std::string& key) const;

    const nlohmann::json& object_;
    std::int64_t line_;
    std::set<std::string> used_;
};

}  // namespace quorrin
