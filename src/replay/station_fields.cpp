#include "replay/station_fields.h"

#include "base/json_text.h"
#include "base/program_error.h"
#include "replay/control_fields.h"
#include "replay/record_fields.h"

namespace quorrin {

namespace {

// A threshold lives in a text box, which an operator or a script may fill with anything.
FieldPrinter thresholdPrinter(const TextBox& box) {
    return [&box](std::string& out) {
        try {
            appendField(out, numberToInteger(box.text()));
        } catch (const ProgramError&) {
            appendField(out, box.text());
        }
    };
}

}  // namespace

StationFields::StationFields(Station& station) : station_(station) {
    addRecordFields(table_, station.values);
    addFormFields(table_, station.gui);
    addTaskFields(table_, station);
}

std::optional<FieldPrinter> StationFields::find(const std::string& name) const {
    if (const FieldPrinter* printer = table_.find(name)) return *printer;
    if (const Control* control = findControl(station_, name))
        return [control](std::string& out) { appendControl(out, *control); };
    return std::nullopt;
}

std::string namesText(Station& station) {
    std::string out;
    for (const Form* form : station.forms()) {
        const std::string prefix = form == &station.gui ? "" : form->name() + ".";
        for (const Control* control : form->controls()) {
            out += "{\"control\": ";
            appendText(out, prefix + control->name());
            out += ", \"kind\": ";
            appendText(out, controlKind(*control));
            out += "}\n";
        }
    }
    for (const std::string& name : StationFields(station).table().names()) {
        out += "{\"field\": ";
        appendText(out, name);
        out += "}\n";
    }
    return out;
}

void addFormFields(FieldTable& table, const frmGUI& gui) {
#define QUORRIN_FIELD(field) table.add(#field, gui.field)
    QUORRIN_FIELD(alarmCnt);
    QUORRIN_FIELD(alarmEnd);
    QUORRIN_FIELD(iniPar);
    QUORRIN_FIELD(resetCnt);
    QUORRIN_FIELD(resetMOTTI);
    QUORRIN_FIELD(Record_Flag);
    QUORRIN_FIELD(fileTolNum);
    QUORRIN_FIELD(CurrRuningFolderName);
    QUORRIN_FIELD(playingNumber);
    QUORRIN_FIELD(VideoPlayMode);
    QUORRIN_FIELD(cHeadUpDown);
    QUORRIN_FIELD(cHeadLeftRight);
    QUORRIN_FIELD(cMouthUpDown);
    QUORRIN_FIELD(cEyeUpDown);
    QUORRIN_FIELD(cEyeLeftRight);
    QUORRIN_FIELD(sensorClientConnected);
    QUORRIN_FIELD(statusRecordTail);
    QUORRIN_FIELD(statusBroadcastTicks);
    QUORRIN_FIELD(formRunning);
    QUORRIN_FIELD(connCheckTicks);
    QUORRIN_FIELD(joystickRunning);
    QUORRIN_FIELD(joystickEventHandle);
    QUORRIN_FIELD(lButtons);
#undef QUORRIN_FIELD
    table.addList("AxisPresent", gui.AxisPresent, 1);
    table.addPrinter("densityThreshold", thresholdPrinter(gui.txtTh1));
    table.addPrinter("speedSaturation", thresholdPrinter(gui.txtTh2));
    table.addPrinter("sideClearance", thresholdPrinter(gui.txtTh3));
    table.addPrinter("minGapSectors", thresholdPrinter(gui.txtTh4));
}

Form* findForm(Station& station, const std::string& name) {
    for (Form* form : station.forms()) {
        if (form->name() == name) return form;
    }
    return nullptr;
}

Control* findControl(Station& station, const std::string& name) {
    if (Control* control = station.gui.find(name)) return control;
    const auto dot = name.find('.');
    if (dot == std::string::npos) return nullptr;
    const Form* form = findForm(station, name.substr(0, dot));
    return form == nullptr ? nullptr : form->find(name.substr(dot + 1));
}

}  // namespace quorrin
