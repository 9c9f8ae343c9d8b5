// One thing as a person sees it from afar: a short word, a line of detail, how it is meant, and a progress
// where something is being waited for. A value; who makes it decides the texts, who shows it decides nothing.
#pragma once

#include <string>

namespace quorrin {

// How a word is meant; never told by colour alone.
enum class Tone { off, good, busy, warning, bad };

struct Glance {
    std::string word;
    std::string detail;
    Tone tone = Tone::off;
    double progress = -1;  // 0 to 1; below 0: nothing is waited for
};

}  // namespace quorrin
