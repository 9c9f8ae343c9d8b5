#include "console/floor_plan.h"

#include <cstdint>
#include <cstdlib>
#include <optional>

namespace quorrin {

namespace {

struct Size {
    std::int64_t width = 0;
    std::int64_t height = 0;
};

std::int64_t littleEndian32(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return static_cast<std::int32_t>(value);
}

// Size in pixels from a bitmap file's header. A negative height tells top-down rows.
std::optional<Size> bitmapSize(const std::optional<std::string>& bytes) {
    constexpr std::size_t kWidthAt = 18;
    constexpr std::size_t kHeightAt = 22;
    if (!bytes || bytes->size() < kHeightAt + 4 || bytes->compare(0, 2, "BM") != 0) return std::nullopt;
    return Size{littleEndian32(*bytes, kWidthAt), std::abs(littleEndian32(*bytes, kHeightAt))};
}

void setTravel(Slider& bar, std::int64_t pixels, std::int64_t viewportTwips) {
    constexpr std::int64_t kLongestTravel = 1'000'000;
    std::int64_t maximum = pixels * kTwipsPerPixel - viewportTwips;
    if (maximum > kLongestTravel) maximum = kLongestTravel;
    if (maximum < 1) maximum = 1;
    bar.setRange(1, static_cast<std::int32_t>(maximum));
    bar.smallChange = 25;
    bar.largeChange = 100;
}

}  // namespace

void loadFloorPlan(MapControls& controls, const std::string& folder, Files& files) {
    const std::string big = folder + "/office.bmp";
    const std::string overview = folder + "/office_s.bmp";
    if (files.fileExists(big)) controls.picRobotMap.setFile(big);
    if (files.fileExists(overview)) controls.imgThumb.setFile(overview);
    const Size size = bitmapSize(files.read(big)).value_or(Size{});
    setTravel(controls.HScroll1, size.width, kViewportWidthTwips);
    setTravel(controls.VScroll1, size.height, kViewportHeightTwips);
}

}  // namespace quorrin
