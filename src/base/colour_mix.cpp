#include "base/colour_mix.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"

namespace quorrin {

namespace {

int mixedPart(int first, int second, int percent) {
    return static_cast<int>(roundHalfEven(first + (second - first) * percent / 100.0));
}

// Relative luminance of a part of an sRGB colour.
double linear(int part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(Colour colour) {
    const ColourParts parts = partsOf(colour);
    return 0.2126 * linear(parts.red) + 0.7152 * linear(parts.green) + 0.0722 * linear(parts.blue);
}

}  // namespace

bool isSystemColour(Colour colour) {
    return colour < 0;
}

Colour plainColour(Colour colour, const SystemColours& table) {
    if (!isSystemColour(colour)) return colour;
    const auto found = table.find(colour & 0xFF);
    return found == table.end() ? rgb(0, 0, 0) : found->second;
}

ColourParts partsOf(Colour colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

Colour mixedColour(Colour first, Colour second, int percent) {
    const int capped = std::min(percent, 100);
    const ColourParts from = partsOf(first);
    const ColourParts to = partsOf(second);
    return rgb(mixedPart(from.red, to.red, capped), mixedPart(from.green, to.green, capped),
               mixedPart(from.blue, to.blue, capped));
}

double contrastRatio(Colour first, Colour second) {
    const double one = luminance(first);
    const double two = luminance(second);
    return (std::max(one, two) + 0.05) / (std::min(one, two) + 0.05);
}

}  // namespace quorrin
