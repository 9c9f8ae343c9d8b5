#include "console/menu_words.h"

#include <map>

namespace quorrin {

const std::string& windowTitle(const std::string& form) {
    static const std::map<std::string, std::string> titles = {
        {"frmLogin", "Quorrin Station: Robot Address"}, {"frmGUI", "Quorrin Station"},
        {"frmControlPanel", "Control Panel"},           {"frmZoomCamera", "Camera"},
        {"frmAbout", "About Quorrin Station"},
    };
    static const std::string other = "Quorrin Station";
    const auto found = titles.find(form);
    return found == titles.end() ? other : found->second;
}

const MenuWords& menuWords(MenuEntry entry) {
    static const std::map<MenuEntry, MenuWords> words = {
        {MenuEntry::viewMenu, {"&View", "What is shown, and how.", ""}},
        {MenuEntry::engineeringView,
         {"&Engineering View", "Opens ranges, thresholds, counters and raw values over the dashboard.",
          "F9"}},
        {MenuEntry::lightTheme, {"&Light Theme", "Dark text on light ground.", "Ctrl+F8"}},
        {MenuEntry::darkTheme, {"Dar&k Theme", "Light text on dark ground.", "Shift+F8"}},
    };
    return words.at(entry);
}

}  // namespace quorrin
