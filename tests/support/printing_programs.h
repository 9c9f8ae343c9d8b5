// Real programs whose starts and closings are printed as a replay prints them.
#pragma once

#include <map>
#include <string>

#include "platform/programs.h"
#include "replay/output.h"

namespace quorrin {

class PrintingPrograms : public Programs {
  public:
    PrintingPrograms(Programs& inner, Output& output) : inner_(inner), output_(output) {}

    void start(const std::string& path) override {
        output_.begin();
        output_.addText("start", path.substr(path.find_last_of('/') + 1));
        output_.end();
        inner_.start(path);
    }
    Window findWindow(const std::string& title) override {
        const Window window = inner_.findWindow(title);
        if (window == 0) printClose(title, false);
        titles_[window] = title;
        return window;
    }
    bool isWindow(Window window) override { return inner_.isWindow(window); }
    void postClose(Window window) override {
        printClose(titles_[window], true);
        inner_.postClose(window);
    }

  private:
    void printClose(const std::string& title, bool found) {
        output_.begin();
        output_.addText("close", title);
        output_.addBoolean("found", found);
        output_.end();
    }

    Programs& inner_;
    Output& output_;
    std::map<Window, std::string> titles_;
};

}  // namespace quorrin
