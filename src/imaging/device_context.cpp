#include "imaging/device_context.h"

#include <algorithm>
#include <cstring>
#include <memory>

namespace quorrin {

namespace {

// One axis of a copy: where it begins on either side and how far it goes.
struct Span {
    std::int64_t target;
    std::int64_t source;
    std::int64_t length;
};

Span insideBoth(Span span, std::int64_t targetSide, std::int64_t sourceSide) {
    const std::int64_t before = std::max<std::int64_t>({0, -span.target, -span.source});
    span.target += before;
    span.source += before;
    span.length = std::min({span.length - before, targetSide - span.target, sourceSide - span.source});
    return span;
}

void mix(std::uint8_t* target, const std::uint8_t* source, std::size_t bytes, std::uint32_t table) {
    const auto mask = [table](unsigned bit) {
        return static_cast<std::uint8_t>((table >> bit & 1U) != 0 ? 0xFF : 0);
    };
    const std::uint8_t neither = mask(0);
    const std::uint8_t onlyTarget = mask(1);
    const std::uint8_t onlySource = mask(2);
    const std::uint8_t both = mask(3);
    for (std::size_t i = 0; i < bytes; ++i) {
        const unsigned s = source[i];
        const unsigned t = target[i];
        target[i] = static_cast<std::uint8_t>((~s & ~t & neither) | (~s & t & onlyTarget) |
                                              (s & ~t & onlySource) | (s & t & both));
    }
}

std::unique_ptr<Bitmap> cloned(const Bitmap& bitmap) {
    auto copy = Bitmap::create(bitmap.width(), bitmap.height());
    if (copy) std::memcpy(copy->bits(), bitmap.bits(), bitmap.bytes());
    return copy;
}

}  // namespace

bool bitBlt(DeviceContext& target, DeviceContext& source, const BlitArea& area, RasterOperation operation) {
    Bitmap* const to = target.selected();
    const Bitmap* from = source.selected();
    const std::uint32_t code = static_cast<std::uint32_t>(operation) >> 16;
    const std::uint32_t table = code & 0xF;
    if (to == nullptr || from == nullptr || code >> 4 != table) return false;

    const Span across = insideBoth({area.targetX, area.sourceX, area.width}, to->width(), from->width());
    const Span down = insideBoth({area.targetY, area.sourceY, area.height}, to->height(), from->height());
    if (across.length <= 0 || down.length <= 0) return true;

    // Rows of one and the same bitmap would be read after they were written.
    std::unique_ptr<Bitmap> copy;
    if (from == to) {
        copy = cloned(*from);
        if (!copy) return false;
        from = copy.get();
    }
    const auto bytes = static_cast<std::size_t>(across.length) * 3;
    for (std::int64_t i = 0; i < down.length; ++i) {
        std::uint8_t* const into = to->row(static_cast<std::int32_t>(down.target + i)) + across.target * 3;
        const std::uint8_t* const out =
            from->row(static_cast<std::int32_t>(down.source + i)) + across.source * 3;
        if (operation == RasterOperation::sourceCopy) {
            std::memcpy(into, out, bytes);
        } else {
            mix(into, out, bytes, table);
        }
    }
    return true;
}

}  // namespace quorrin
