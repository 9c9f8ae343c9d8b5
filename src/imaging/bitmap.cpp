#include "imaging/bitmap.h"

#include <utility>

namespace quorrin {

Bitmap::Bitmap(std::int32_t width, std::int32_t height)
    : width_(width), height_(height), rowBytes_(static_cast<std::size_t>(bitmapRowBytes(width))) {}

std::unique_ptr<Bitmap> Bitmap::create(std::int32_t width, std::int32_t height) {
    if (!fits(width, height)) return nullptr;
    std::unique_ptr<Bitmap> made(new Bitmap(width, height));
    // Fresh pages come zeroed from the machine, which spares a pass over the picture.
    made->memory_.reset(static_cast<std::uint8_t*>(std::calloc(made->bytes(), 1)));
    made->bits_ = made->memory_.get();
    return made->bits_ == nullptr ? nullptr : std::move(made);
}

std::unique_ptr<Bitmap> Bitmap::over(std::string content, std::size_t at, std::int32_t width,
                                     std::int32_t height) {
    if (!fits(width, height)) return nullptr;
    std::unique_ptr<Bitmap> made(new Bitmap(width, height));
    if (at > content.size() || content.size() - at < made->bytes()) return nullptr;
    made->content_ = std::move(content);
    made->bits_ = reinterpret_cast<std::uint8_t*>(made->content_.data()) + at;
    return made;
}

}  // namespace quorrin
