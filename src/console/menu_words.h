// The texts of what the windows offer besides the forms' controls: titles, menus, and the entries that change
// only how the station is looked at. None of the entries touches the station.
#pragma once

#include <string>

namespace quorrin {

// What a window's title bar reads, by the form's name.
const std::string& windowTitle(const std::string& form);

enum class MenuEntry {
    viewMenu,
    engineeringView,
    lightTheme,
    darkTheme,
};

struct MenuWords {
    std::string text;      // with "&" before the letter that reaches it
    std::string tip;       // a sentence
    std::string shortcut;  // key sequence, "" for none
};

const MenuWords& menuWords(MenuEntry entry);

}  // namespace quorrin
