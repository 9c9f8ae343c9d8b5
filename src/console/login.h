// What the login form does: shows the stored address, writes the gateways' profile files, hands over.
//
// It is no user login, and starts no gateway: the main form starts the multimedia gateway, the tick the
// motion gateway; both read the files written here. Nothing checks the address beyond four fields of 0 to
// 255; a port text that is no number counts as 0. What closes windows, shows the main form and ends the
// program comes from the composition.
#pragma once

#include <functional>
#include <string>

#include "console/address_boxes.h"
#include "console/frm_login.h"
#include "platform/files.h"
#include "platform/folders.h"
#include "platform/message_box.h"
#include "session/record/path_values.h"

namespace quorrin {

struct LoginHooks {
    std::function<void(const std::string& title)> EndTask;
    std::function<void()> showMainForm;
    std::function<void()> endProgram;
};

class Login {
  public:
    Login(frmLogin& form, PathValues& paths, Files& files, MessageBoxes& boxes, Folders folders,
          LoginHooks hooks);

    void Form_Load();
    // False when a box is marked invalid: that box gets the focus and a message tells. When true,
    // checkBuffer() holds the fields, each followed by ".".
    void checkIP(bool& result);
    const std::string& checkBuffer() const { return checkBuffer_; }
    AddressBoxes& addressBoxes() { return address_; }

  private:
    void Timer2_Timer();
    void txtRobotPort_Change();
    void cmdOK_Click();
    void cmdCancel_Click();
    bool mayGoOn();
    void writeProfiles();

    frmLogin& form_;
    PathValues& paths_;
    Files& files_;
    MessageBoxes& boxes_;
    Folders folders_;
    LoginHooks hooks_;
    AddressBoxes address_;
    std::string checkBuffer_;
    bool boxOpen_ = false;
};

}  // namespace quorrin
