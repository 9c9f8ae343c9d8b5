#include "console/login.h"

#include <utility>

#include "base/general_functions.h"
#include "base/number_text.h"
#include "console/plain_text.h"
#include "console/session_paths.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

// The multimedia gateway's port: one above the motion gateway's, whatever its size.
std::string portPlusOne(const std::string& port) {
    constexpr std::size_t kExactDigits = 18;
    if (port.size() <= kExactDigits) return std::to_string(parseWhole(port).value_or(0) + 1);
    return formatShortest(parseNumber(port).value_or(0) + 1);
}

}  // namespace

Login::Login(frmLogin& form, PathValues& paths, Files& files, MessageBoxes& boxes, Folders folders,
             LoginHooks hooks)
    : form_(form),
      paths_(paths),
      files_(files),
      boxes_(boxes),
      folders_(std::move(folders)),
      hooks_(std::move(hooks)),
      address_(form) {
    form_.Timer2.setHandler([this] { Timer2_Timer(); });
    form_.txtRobotPort.onChange = [this] { txtRobotPort_Change(); };
    form_.cmdOK.onClick = [this] { cmdOK_Click(); };
    form_.cmdCancel.onClick = [this] { cmdCancel_Click(); };
    // Without this form there is nothing left of the program.
    form_.onClose = [this] { cmdCancel_Click(); };
}

void Login::Form_Load() {
    form_.Timer2.setRunning(true);
    form_.show();
    buildPaths(paths_, folders_);
    readStoredAddress(paths_, files_);
    address_.fill(paths_.robotIp);
    form_.txtRobotPort.setText(paths_.robotPort);
    form_.moveFocus(form_.txt_ip(0));
    if (mayGoOn()) form_.cmdOK.setEnabled(true);
}

void Login::checkIP(bool& result) {
    result = true;
    checkBuffer_.clear();
    const int invalid = address_.firstInvalid();
    if (invalid >= 0) {
        result = false;
        address_.focusAndMark(invalid);
        boxOpen_ = true;
        boxes_.show("No valid IP-address", "", BoxButtons::ok);
        boxOpen_ = false;
        return;
    }
    for (int i = 0; i <= 3; ++i) checkBuffer_ += address_.trimmedField(i) + ".";
}

bool Login::mayGoOn() {
    bool valid = false;
    checkIP(valid);
    return valid && parseNumber(form_.txtRobotPort.text()).value_or(0) != 0;
}

void Login::Timer2_Timer() {
    // The box of a check may stand open while timers go on; one box is enough.
    if (boxOpen_) return;
    const bool go = mayGoOn();
    form_.cmdOK.setEnabled(go);
    if (go) form_.Timer2.setRunning(false);
}

void Login::txtRobotPort_Change() {
    form_.txtRobotPort.setText(digitsOf(form_.txtRobotPort.text()));
    form_.txtRobotPort.setBackColour(rgb(255, 255, 255));
    form_.txtRobotPort.setTag("True");
}

void Login::cmdOK_Click() {
    form_.cmdOK.setEnabled(false);
    form_.txtRobotPort.setEnabled(false);
    address_.setEnabled(false);
    paths_.robotIp = address_.joined();
    paths_.robotPort = trimmed(form_.txtRobotPort.text());
    writeProfiles();
    hooks_.EndTask(GeneralConstants::kMotionGatewayTitle);
    hooks_.EndTask(GeneralConstants::kMultimediaGatewayTitle);
    form_.hide();
    hooks_.showMainForm();
}

void Login::writeProfiles() {
    const auto writeFile = [this](const std::string& file, const std::string& port) {
        WriteIni("WiFi", "WiFiIP", paths_.robotIp, file, files_);
        WriteIni("WiFi", "WiFiPort", port, file, files_);
        WriteIni("WiFi", "BTAddress", "0000000000", file, files_);
    };
    writeFile(paths_.gatewayMotIniPath, paths_.robotPort);
    writeFile(paths_.gatewayTiIniPath, portPlusOne(paths_.robotPort));
}

void Login::cmdCancel_Click() {
    hooks_.endProgram();
}

}  // namespace quorrin
