// What a script lets the operator do to the station's forms and controls.
//
// A control that is disabled, or whose form is not shown, does nothing. Errors: ScriptError for a name that
// the station does not have, and for an action that its kind of control does not take.
#pragma once

#include <cstdint>

#include "replay/script_line.h"
#include "session/station.h"

namespace quorrin {

class OperatorActions {
  public:
    explicit OperatorActions(Station& station) : station_(station) {}

    void perform(const ClickLine& line, std::int64_t number);
    void perform(const PressLine& line, std::int64_t number);
    void perform(const SetLine& line, std::int64_t number);
    void perform(const KeyLine& line, std::int64_t number);
    void perform(const FocusLine& line, std::int64_t number);
    void perform(const UnloadLine& line, std::int64_t number);
    void perform(const ActivateLine& line, std::int64_t number);

  private:
    Control& control(const std::string& name, std::int64_t number);
    Form& form(const std::string& name, std::int64_t number);

    Station& station_;
};

}  // namespace quorrin
