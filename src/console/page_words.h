// The pages that the engineering view and the settings are turned by: their names, what a page holds, and the
// keys that bring it up. Texts only.
#pragma once

#include <string>

namespace quorrin {

enum class PanelPage { liveView, charts, ranges, tasks, power, photos, remoteData };

struct PageWords {
    std::string name;
    std::string tip;       // a sentence
    std::string shortcut;  // key sequence, at work while the panel is open
};

const PageWords& pageWords(PanelPage page);

}  // namespace quorrin
