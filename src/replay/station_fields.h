// All names under which a watch finds a value of a station: the shared record, the main form's public fields
// and private counters, the tasks ("speedP2PVFH.CAStatus"), and every control ("txtTh1",
// "frmLogin.txtRobotPort").
#pragma once

#include <optional>
#include <string>

#include "replay/field_table.h"
#include "session/station.h"

namespace quorrin {

class StationFields {
  public:
    // The station must outlive this.
    explicit StationFields(Station& station);

    // How the value of that name prints; empty for a name that nothing has.
    std::optional<FieldPrinter> find(const std::string& name) const;
    const FieldTable& table() const { return table_; }

  private:
    Station& station_;
    FieldTable table_;
};

// All of them, one JSON object a line: {"control": name, "kind": kind} and {"field": name}.
std::string namesText(Station& station);

// The pieces of it.
void addFormFields(FieldTable& table, const frmGUI& gui);
void addTaskFields(FieldTable& table, const Station& station);

// The control of a station by the name that scripts use: a control of the main form by its own name, one of
// another form as "form.control". Null where there is none.
Control* findControl(Station& station, const std::string& name);
// The form of that name, or null.
Form* findForm(Station& station, const std::string& name);

}  // namespace quorrin
