// What surfaces look like close by: pure functions from a place on them to a tint.
//
// `u` and `v` are metres on the face, `blur` how many metres one pixel covers there: patterns smooth out to
// their mean with distance, so that nothing flickers while the robot moves.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "robot/eyes/face.h"

namespace quorrin::surface {

inline int whole(float value) {
    const int cut = static_cast<int>(value);
    return value < static_cast<float>(cut) ? cut - 1 : cut;
}

// 0 to 1, the same for the same two numbers.
inline float chance(int a, int b) {
    auto mixed = static_cast<std::uint32_t>(a) * 0x9E3779B1u ^ static_cast<std::uint32_t>(b) * 0x85EBCA77u;
    mixed ^= mixed >> 15;
    mixed *= 0x2C1B3C6Du;
    mixed ^= mixed >> 13;
    return static_cast<float>(mixed & 0xFFFF) / 65535.0f;
}

// How much of a pixel at `x` lines cover that stand every `period`, `width` wide.
inline float lines(float x, float period, float width, float blur) {
    const float from = std::abs(x - period * (static_cast<float>(whole(x * (1 / period))) + 0.5f));
    const float away = period / 2 - from;  // from the nearest line's middle
    const float seen = std::clamp(blur, 0.001f, period);
    const float perMetre = 1 / seen;
    const float covered = 0.5f + (width / 2 - away) * perMetre;
    return std::clamp(covered, 0.0f, std::min(1.0f, width * perMetre));
}

// A difference between neighbours that far apart, as much as can still be seen of it.
inline float seenOf(float period, float blur) {
    return std::clamp(1.5f - blur * (1.5f / period), 0.0f, 1.0f);
}

inline Tint tiles(Tint tint, float u, float v, float blur) {
    constexpr float kTile_m = 0.5f;
    const int column = whole(u * (1 / kTile_m));
    const int row = whole(v * (1 / kTile_m));
    const float seen = seenOf(kTile_m, blur);
    const float checker = ((column + row) & 1) != 0 ? -0.055f : 0.055f;
    const float own = 0.05f * (chance(column, row) - 0.5f);
    const float joint = std::max(lines(u, kTile_m, 0.012f, blur), lines(v, kTile_m, 0.012f, blur));
    return tint * ((1 + seen * (checker + own)) * (1 - 0.4f * joint));
}

inline Tint wall(Tint tint, float, float v, float blur) {
    if (v < 0.1f) return {0.33f, 0.30f, 0.28f};
    // A little darker where floor and ceiling take the light away, and a line at the height of a hand.
    const float dark = std::max({0.0f, 0.5f - v, v - 2.3f}) * 0.3f;
    const float rail = v > 0.85f && v < 0.95f ? lines(v - 0.9f, 4.0f, 0.03f, blur) : 0.0f;
    return tint * ((1 - dark) * (1 - 0.3f * rail) * (v < 0.9f ? 0.9f : 1.0f));
}

inline Tint ceiling(Tint tint, float u, float v, float blur) {
    constexpr float kPanel_m = 0.6f;
    const int column = whole(u * (1 / kPanel_m));
    const int row = whole(v * (1 / kPanel_m));
    if (column % 3 == 0 && (row % 4 == 0 || row % 4 == 1)) return {1.35f, 1.35f, 1.3f};  // a lamp
    const float joint = std::max(lines(u, kPanel_m, 0.02f, blur), lines(v, kPanel_m, 0.02f, blur));
    return tint * (1 - 0.25f * joint);
}

inline Tint wood(Tint tint, float u, float v, float blur) {
    const float grain = 0.5f + 0.5f * std::sin(v * 70 + 3 * std::sin(u * 5));
    return tint * (1 - 0.12f * grain * seenOf(0.09f, blur));
}

// Doors of a cabinet, from its foot up.
inline Tint doors(Tint tint, float u, float v, float blur) {
    if (v < 0.06f) return tint * 0.4f;
    const float gap = std::max(lines(u, 0.45f, 0.012f, blur), lines(v - 0.58f, 4.0f, 0.012f, blur));
    const float column = u - 0.45f * static_cast<float>(whole(u * (1 / 0.45f)));
    const bool handle = column > 0.05f && column < 0.07f && v > 0.75f && v < 0.9f;
    return tint * ((1 - 0.6f * gap) * (handle ? 0.4f : 1.0f));
}

inline Tint carton(Tint tint, float u, float v, float blur) {
    const float tape = v > 0.02f ? lines(u + 0.075f, 0.3f, 0.05f, blur) : 0.0f;
    return tint * (1 - 0.18f * tape);
}

inline Tint books(Tint tint, float u, float v, float blur) {
    constexpr float kShelf_m = 0.36f;
    constexpr float kBook_m = 0.045f;
    const int shelf = whole(v * (1 / kShelf_m));
    const float above = v - static_cast<float>(shelf) * kShelf_m;
    if (above < 0.03f) return tint;
    const int book = whole(u * (1 / kBook_m));
    const float top = 0.22f + 0.09f * chance(book, shelf);
    if (above > top + 0.03f) return tint * 0.35f;
    const Tint cover{0.25f + 0.55f * chance(book, shelf + 40), 0.22f + 0.45f * chance(book, shelf + 80),
                     0.22f + 0.45f * chance(book, shelf + 120)};
    const float seen = seenOf(2 * kBook_m, blur);
    return (cover * seen + Tint{0.5f, 0.44f, 0.44f} * (1 - seen)) *
           (1 - 0.5f * lines(u, kBook_m, 0.006f, blur));
}

inline Tint fabric(Tint tint, float u, float v, float blur) {
    const float weave = chance(whole(u * 60), whole(v * 60)) - 0.5f;
    return tint * ((1 + 0.1f * weave * seenOf(0.04f, blur)) * (1 - 0.35f * lines(u, 0.6f, 0.015f, blur)));
}

inline Tint leaves(Tint tint, float u, float v, float blur) {
    const float leaf = chance(whole(u * 18 + v * 6), whole(v * 14 - u * 4)) - 0.5f;
    return tint * (1 + 0.7f * leaf * seenOf(0.12f, blur));
}

inline Tint mat(Tint tint, float u, float v, float blur) {
    return tint * (1 - 0.6f * seenOf(0.2f, blur) * (((whole((u + v) * 8)) & 1) != 0 ? 1.0f : 0.0f));
}

template <Surface kind>
inline Tint tintAt(Tint tint, float u, float v, float blur) {
    if constexpr (kind == Surface::wall) return wall(tint, u, v, blur);
    if constexpr (kind == Surface::tiles) return tiles(tint, u, v, blur);
    if constexpr (kind == Surface::ceiling) return ceiling(tint, u, v, blur);
    if constexpr (kind == Surface::wood) return wood(tint, u, v, blur);
    if constexpr (kind == Surface::doors) return doors(tint, u, v, blur);
    if constexpr (kind == Surface::carton) return carton(tint, u, v, blur);
    if constexpr (kind == Surface::books) return books(tint, u, v, blur);
    if constexpr (kind == Surface::fabric) return fabric(tint, u, v, blur);
    if constexpr (kind == Surface::leaves) return leaves(tint, u, v, blur);
    if constexpr (kind == Surface::mat) return mat(tint, u, v, blur);
    return tint;
}

}  // namespace quorrin::surface
