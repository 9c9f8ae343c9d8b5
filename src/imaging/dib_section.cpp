#include "imaging/dib_section.h"

#include <random>

#include "imaging/bitmap_resample.h"

namespace quorrin {

namespace {

constexpr const char* kNoDibOnTheClipboard =
    "I don't know how to put a DIB on the clipboard! Copy as bitmap instead!!!";

std::string pixelsFromTheTop(const Bitmap& bitmap) {
    std::string pixels;
    const auto columns = static_cast<std::size_t>(bitmap.width());
    pixels.reserve(columns * 3 * static_cast<std::size_t>(bitmap.height()));
    for (std::int32_t y = 0; y < bitmap.height(); ++y) {
        const std::uint8_t* pixel = bitmap.row(y);
        for (std::size_t x = 0; x < columns; ++x, pixel += 3) {
            for (int channel = 2; channel >= 0; --channel)
                pixels.push_back(static_cast<char>(pixel[channel]));
        }
    }
    return pixels;
}

std::uint32_t secondsOfTheDay(const Clock* clock) {
    if (clock == nullptr) return 0;
    const CivilTime now = clock->wallTime();
    return static_cast<std::uint32_t>(now.hour * 3600 + now.minute * 60 + now.second);
}

}  // namespace

bool cDIBSection::CopyToClipboard(bool asDeviceIndependent) {
    if (asDeviceIndependent) {
        if (host_.boxes != nullptr) host_.boxes->show(kNoDibOnTheClipboard, "", BoxButtons::ok);
        return false;
    }
    const auto compatible = Bitmap::create(Width(), Height());
    if (host_.clipboard == nullptr || !hDib_ || !compatible) return false;
    DeviceContext context;
    Bitmap* const before = context.select(compatible.get());
    PaintPicture(&context);
    context.select(before);
    return host_.clipboard->placeBitmap(
        {compatible->width(), compatible->height(), pixelsFromTheTop(*compatible)});
}

bool cDIBSection::CreateDIB(const DeviceContext*, Long width, Long height, Bitmap*& handle) {
    freeBitmap();
    header_ = {};
    header_.width = width;
    header_.height = height;
    hDib_ = Bitmap::create(width, height);
    handle = hDib_.get();
    if (!hDib_) return false;
    header_.sizeImage = static_cast<std::uint32_t>(hDib_->bytes());
    bits_ = hDib_->bits();
    return true;
}

void cDIBSection::CreateFromPicture(Bitmap* picture) {
    const Long width = picture == nullptr ? 0 : picture->width();
    const Long height = picture == nullptr ? 0 : picture->height();
    if (!Create(width, height)) return;
    DeviceContext context;
    Bitmap* const before = context.select(picture);
    LoadPictureBlt(&context);
    context.select(before);
}

bool cDIBSection::Create(Long width, Long height) {
    ClearUp();
    hdc_ = std::make_unique<DeviceContext>();
    Bitmap* made = nullptr;
    if (CreateDIB(hdc_.get(), width, height, made)) {
        oldBitmap_ = hdc_->select(made);
        return true;
    }
    hdc_.reset();
    return false;
}

Long cDIBSection::BytesPerScanLine() const {
    return bitmapRowBytes(header_.width);
}

void cDIBSection::LoadPictureBlt(DeviceContext* source, Long sourceX, Long sourceY, Long width, Long height,
                                 RasterOperation operation) {
    if (source == nullptr || !hdc_) return;
    if (width < 0) width = Width();
    if (height < 0) height = Height();
    bitBlt(*hdc_, *source, {0, 0, width, height, sourceX, sourceY}, operation);
}

void cDIBSection::PaintPicture(DeviceContext* target, Long targetX, Long targetY, Long width, Long height,
                               Long sourceX, Long sourceY, RasterOperation operation) {
    if (target == nullptr || !hdc_) return;
    if (width < 0) width = Width();
    if (height < 0) height = Height();
    bitBlt(*target, *hdc_, {targetX, targetY, width, height, sourceX, sourceY}, operation);
}

void cDIBSection::RandomiseBits(bool gray) {
    if (!hDib_) return;
    std::mt19937 random(secondsOfTheDay(host_.clock));
    const auto value = [&random] { return static_cast<std::uint8_t>(random() & 0xFF); };
    const auto columns = static_cast<std::size_t>(hDib_->width());
    const auto rows = static_cast<std::size_t>(hDib_->height());
    const auto pixel = [&](std::size_t x, std::size_t y) { return bits_ + y * hDib_->rowBytes() + x * 3; };
    if (gray) {
        for (std::size_t y = 0; y < rows; ++y) {
            for (std::size_t x = 0; x < columns; ++x) {
                std::uint8_t* const at = pixel(x, y);
                at[0] = at[1] = at[2] = value();
            }
        }
        return;
    }
    for (std::size_t x = 0; x < columns; ++x) {
        for (std::size_t y = 0; y < rows; ++y) {
            std::uint8_t* const at = pixel(x, y);
            at[0] = 0;
            at[1] = value();
            at[2] = value();
        }
    }
}

void cDIBSection::ClearUp() {
    freeBitmap();
    hdc_.reset();
}

void cDIBSection::freeBitmap() {
    if (hdc_ && hdc_->selected() == hDib_.get()) hdc_->select(oldBitmap_);
    oldBitmap_ = nullptr;
    hDib_.reset();
    bits_ = nullptr;
}

std::unique_ptr<cDIBSection> cDIBSection::Resample(Long newHeight, Long newWidth) const {
    auto made = std::make_unique<cDIBSection>(host_);
    if (!hDib_ || !made->Create(newWidth, newHeight)) return nullptr;
    resample(*hDib_, *made->hDib_);
    return made;
}

}  // namespace quorrin
