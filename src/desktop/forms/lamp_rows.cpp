#include "desktop/forms/lamp_rows.h"

namespace quorrin {

QGridLayout* LampRows::make(Placing& place, const std::vector<int>& elements) {
    QGridLayout* const made = grid();
    for (const int element : elements) {
        const std::string name = "shpBatteryStatus(" + std::to_string(element) + ")";
        QWidget* const widget = place.captioned(*made, made->rowCount(), 0, name);
        lamps_[element] = dynamic_cast<Lamp*>(widget);
    }
    made->setColumnStretch(1, 1);
    made->setRowStretch(made->rowCount(), 1);
    return made;
}

void LampRows::refresh(const PublicValues& values, const frmGUI& gui) {
    for (const auto& [element, lamp] : lamps_) lamp->setSign(lampSign(values, gui, element));
}

}  // namespace quorrin
