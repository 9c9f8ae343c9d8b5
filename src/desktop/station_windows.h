// All windows of one station, bound to its forms. Made after the station and gone before it.
#pragma once

#include <memory>
#include <string>

#include "desktop/operator_acts.h"
#include "session/station.h"

namespace quorrin {

class StationWindows {
  public:
    StationWindows(Station& station, const OperatorActs& acts);
    ~StationWindows();
    StationWindows(const StationWindows&) = delete;
    StationWindows& operator=(const StationWindows&) = delete;

    // The station is about to hold still: paints what has changed, and says so when it is closing.
    void beforeBlock();
    // Tells the operator of something that is wrong, without holding anything up.
    void say(const std::string& complaint);

  private:
    struct Windows;
    Station& station_;
    std::unique_ptr<Windows> windows_;
};

}  // namespace quorrin
