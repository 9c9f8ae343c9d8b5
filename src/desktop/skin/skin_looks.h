// The looks of the buttons as data: the colours of each state and of the caption that belongs on it.
//
// A look's number is what `ButtonLook` of a button holds; kinds come in pairs, light first, dark second. The
// captions' colours keep a contrast of 4.5 on their states; a test computes it from the drawn strip.
#pragma once

#include <QColor>
#include <array>
#include <cstdint>

namespace quorrin {

enum class LookKind { plain = 0, accent = 1, danger = 2, quiet = 3, on = 4 };
constexpr int kLookKinds = 5;
constexpr int kLooks = 2 * kLookKinds;
constexpr int kButtonStates = 4;

constexpr std::int32_t buttonLook(LookKind kind, bool dark) {
    return static_cast<std::int32_t>(kind) * 2 + (dark ? 1 : 0);
}

// A cell: its face from top to bottom, and the line around it.
struct CellColours {
    QColor top;
    QColor bottom;
    QColor edge;
};

struct SkinLook {
    std::array<CellColours, kButtonStates> states;  // by number of ButtonState
    QColor caption;
    QColor disabledCaption;
    // What the buttons are meant to stand on.
    QColor ground;
};

// A number that no look has is the plain light one.
const SkinLook& skinLook(std::int32_t look);

}  // namespace quorrin
