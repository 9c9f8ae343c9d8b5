// The status lamps of one group, each with its caption, and what they say.
//
// Colours come from the form's shapes; signs and words are asked for when refresh() is called.
#pragma once

#include <QGridLayout>
#include <map>
#include <vector>

#include "console/frm_gui.h"
#include "desktop/forms/placing.h"
#include "desktop/widgets/lamp.h"
#include "session/record/public_values.h"

namespace quorrin {

class LampRows {
  public:
    // `elements` of shpBatteryStatus, under one another.
    QGridLayout* make(Placing& place, const std::vector<int>& elements);
    void refresh(const PublicValues& values, const frmGUI& gui);

  private:
    std::map<int, Lamp*> lamps_;
};

}  // namespace quorrin
