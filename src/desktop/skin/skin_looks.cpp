#include "desktop/skin/skin_looks.h"

#include <cstddef>

namespace quorrin {

namespace {

QColor hex(unsigned colour) {
    return QColor::fromRgb(0xFF000000U | colour);
}

CellColours cell(unsigned top, unsigned bottom, unsigned edge) {
    return {hex(top), hex(bottom), hex(edge)};
}

const CellColours kNothing = {QColor(0, 0, 0, 0), QColor(0, 0, 0, 0), QColor(0, 0, 0, 0)};
constexpr unsigned kLightGround = 0xFFFFFF;
constexpr unsigned kDarkGround = 0x1A2028;
constexpr unsigned kLightOff = 0x5C6874;
constexpr unsigned kDarkOff = 0x97A3B0;

// States in the strip's order: normal, pressed, disabled, hover.
const std::array<SkinLook, kLooks>& looks() {
    static const CellColours lightOff = cell(0xF1F4F7, 0xF1F4F7, 0xD3DAE2);
    static const CellColours darkOff = cell(0x1E252E, 0x1E252E, 0x2C3540);
    static const std::array<SkinLook, kLooks> all = {{
        // plain
        {{cell(0xFCFDFE, 0xEFF3F7, 0x7D8A98), cell(0xCBDDF2, 0xD6E5F6, 0x0B5FBD), lightOff,
          cell(0xF0F6FD, 0xE1EDFA, 0x0B5FBD)},
         hex(0x141F2B),
         hex(kLightOff),
         hex(kLightGround)},
        {{cell(0x2E3844, 0x27303B, 0x6D7B8B), cell(0x16202C, 0x1A2634, 0x5CABF7), darkOff,
          cell(0x384656, 0x303D4C, 0x5CABF7)},
         hex(0xE9EEF3),
         hex(kDarkOff),
         hex(kDarkGround)},
        // accent
        {{cell(0x1268C8, 0x0B5FBD, 0x084A94), cell(0x084787, 0x094E96, 0x06366A), lightOff,
          cell(0x1A70D0, 0x1268C8, 0x084A94)},
         hex(0xFFFFFF),
         hex(kLightOff),
         hex(kLightGround)},
        {{cell(0x5CABF7, 0x4D9FEE, 0x8CC6FF), cell(0x3F8FDC, 0x4796E3, 0x8CC6FF), darkOff,
          cell(0x76BAFA, 0x66B0F7, 0xB0D8FF)},
         hex(0x061220),
         hex(kDarkOff),
         hex(kDarkGround)},
        // danger
        {{cell(0xC93030, 0xC02626, 0x931A1A), cell(0x8E1818, 0x991C1C, 0x6E1010), lightOff,
          cell(0xD13A3A, 0xC93030, 0x931A1A)},
         hex(0xFFFFFF),
         hex(kLightOff),
         hex(kLightGround)},
        {{cell(0xF4706B, 0xF2625D, 0xFFB4B0), cell(0xDB5550, 0xE25B56, 0xFFB4B0), darkOff,
          cell(0xF88D89, 0xF67F7A, 0xFFD0CD)},
         hex(0x1C0302),
         hex(kDarkOff),
         hex(kDarkGround)},
        // quiet
        {{kNothing, cell(0xD6E5F6, 0xD6E5F6, 0xA9C6E8), kNothing, cell(0xEAF2FB, 0xEAF2FB, 0xC5DAF2)},
         hex(0x141F2B),
         hex(kLightOff),
         hex(kLightGround)},
        {{kNothing, cell(0x16202C, 0x16202C, 0x3A4F66), kNothing, cell(0x2A3542, 0x2A3542, 0x45566A)},
         hex(0xE9EEF3),
         hex(kDarkOff),
         hex(kDarkGround)},
        // on
        {{cell(0xDCEAFA, 0xE4EFFB, 0x0B5FBD), cell(0xBCD5F0, 0xC6DCF4, 0x084A94), lightOff,
          cell(0xE9F2FC, 0xDFECFA, 0x084A94)},
         hex(0x094992),
         hex(kLightOff),
         hex(kLightGround)},
        {{cell(0x173555, 0x14304D, 0x5CABF7), cell(0x102640, 0x122B47, 0x8CC6FF), darkOff,
          cell(0x1D4067, 0x1A3A5E, 0x8CC6FF)},
         hex(0xBFDFFF),
         hex(kDarkOff),
         hex(kDarkGround)},
    }};
    return all;
}

}  // namespace

const SkinLook& skinLook(std::int32_t look) {
    const bool known = look >= 0 && look < kLooks;
    return looks()[known ? static_cast<std::size_t>(look) : 0];
}

}  // namespace quorrin
