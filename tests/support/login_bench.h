// The login form on fakes: files in memory, boxes counted, and a log of what it handed to the composition.
#pragma once

#include <string>
#include <vector>

#include "console/login.h"
#include "platform/virtual/memory_files.h"
#include "platform/virtual/scripted_boxes.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {

struct LoginBench {
    LoginBench() {
        files.createFolder("/windows");
        boxes.onShow = [this](const std::string& text, const std::string& title, BoxAnswer) {
            log.push_back("box " + text + "|" + title);
        };
    }

    static std::string profile(const std::string& ip, const std::string& port) {
        return "[WiFi]\r\nWiFiIP=" + ip + "\r\nWiFiPort=" + port + "\r\nBTAddress=0000000000\r\n";
    }
    void store(const std::string& ip, const std::string& port, const std::string& tiPort) {
        files.put("/windows/gateway_mot.ini", profile(ip, port));
        files.put("/windows/gateway_ti.ini", profile(ip, tiPort));
    }
    std::string texts() const {
        std::string all;
        for (int i = 0; i <= 3; ++i) all += "[" + form.txt_ip(i).text() + "]";
        return all;
    }
    std::string tags() const {
        std::string all;
        for (int i = 0; i <= 3; ++i) all += "[" + form.txt_ip(i).tag() + "]";
        return all;
    }

    VirtualClock clock;
    MemoryFiles files;
    ScriptedBoxes boxes;
    PathValues paths;
    std::vector<std::string> log;
    frmLogin form{clock};
    Login login{form,
                paths,
                files,
                boxes,
                Folders{"/app", "/windows", "/voice", "/programs"},
                {[this](const std::string& title) { log.push_back("EndTask " + title); },
                 [this] { log.push_back("main form"); }, [this] { log.push_back("end"); }}};
};

}  // namespace quorrin
