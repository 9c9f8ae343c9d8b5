// Colours of controls: mixing of two, and system colour references translated to plain ones.
//
// A plain colour has red in the low byte, then green, then blue (base/controls.h). A system colour reference
// has the highest bit set and the number of a role of the look in its low byte; which plain colour that is at
// the moment is the view's knowledge, handed over as a table. Pure functions without state or errors.
#pragma once

#include <cstdint>
#include <map>

#include "base/controls.h"

namespace quorrin {

constexpr Colour systemColour(int role) {
    return static_cast<Colour>(0x80000000U | static_cast<std::uint32_t>(role));
}
constexpr int kRoleButtonFace = 0x0F;
constexpr int kRoleButtonShadow = 0x10;
constexpr int kRoleButtonText = 0x12;
constexpr Colour kButtonFace = systemColour(kRoleButtonFace);
constexpr Colour kButtonShadow = systemColour(kRoleButtonShadow);
constexpr Colour kButtonText = systemColour(kRoleButtonText);

// The plain colour of each role that the look knows.
using SystemColours = std::map<int, Colour>;

bool isSystemColour(Colour colour);

// A plain colour stays as it is; a reference to a role that the table lacks is black.
Colour plainColour(Colour colour, const SystemColours& table);

struct ColourParts {
    int red = 0;
    int green = 0;
    int blue = 0;
};
ColourParts partsOf(Colour colour);

// The colour that lies `percent` of the way from the first to the second, its parts rounded half to even.
// More than 100 counts as 100.
Colour mixedColour(Colour first, Colour second, int percent);

// The ratio of the lighter to the darker of two colours as a person sees them, 1 to 21. Texts want 4.5.
double contrastRatio(Colour first, Colour second);

}  // namespace quorrin
