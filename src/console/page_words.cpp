#include "console/page_words.h"

#include <map>

namespace quorrin {

const PageWords& pageWords(PanelPage page) {
    static const std::map<PanelPage, PageWords> words = {
        {PanelPage::liveView,
         {"Live View", "Certainty grid, and the strip charts where there is room.", "Ctrl+1"}},
        {PanelPage::charts, {"Charts", "Strip charts of the last minute.", "Ctrl+2"}},
        {PanelPage::ranges,
         {"Ranges and Navigator", "What the range sensors see, and the limits of the navigator.", "Ctrl+3"}},
        {PanelPage::tasks,
         {"Tasks and Targets", "Keys of the tasks, targets and the remote channels.", "Ctrl+4"}},
        {PanelPage::power, {"Power and Raw Values", "Power, counters, raw values and landmarks.", "Ctrl+5"}},
        {PanelPage::photos,
         {"Battery, Sound and Photos", "Battery, sound for the robot and photos.", "Ctrl+6"}},
        {PanelPage::remoteData,
         {"Remote Data", "Data sent to and received from the remote client, and image quality.", "Ctrl+7"}},
    };
    return words.at(page);
}

}  // namespace quorrin
