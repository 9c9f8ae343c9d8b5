#include "console/floor_plan.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
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

std::int32_t within32(std::int64_t twips) {
    constexpr std::int64_t kLowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t kHighest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(twips, kLowest, kHighest));
}

std::int32_t twipsOf(std::int64_t pixels) {
    return within32(std::max<std::int64_t>(pixels, 0) * kTwipsPerPixel);
}

// A plan that is no larger than the viewport gives a maximum below the minimum: no travel.
void setTravel(Slider& bar, std::int32_t plan, std::int32_t viewport) {
    bar.smallChange = 25;
    bar.largeChange = 100;
    bar.setRange(1, within32(std::int64_t{plan} - viewport));
}

void setTravels(MapControls& controls) {
    const Area& plan = controls.picRobotMap.area();
    const Area& viewport = controls.Frame1.area();
    setTravel(controls.HScroll1, plan.width, viewport.width);
    setTravel(controls.VScroll1, plan.height, viewport.height);
}

std::int32_t largestSide(std::int32_t plan) {
    // The minimum and one large step stay to be scrolled.
    constexpr std::int32_t kTravelLeft = 101;
    constexpr std::int32_t kSmallestViewport = 3000;
    return plan <= 0 ? 0 : std::max(plan - kTravelLeft, kSmallestViewport);
}

double fraction(std::int32_t part, std::int32_t whole) {
    return std::clamp(static_cast<double>(part) / whole, 0.0, 1.0);
}

}  // namespace

void bindFloorPlan(MapControls& controls) {
    controls.HScroll1.onChange = [&controls] {
        controls.picRobotMap.moveTo(-controls.HScroll1.value(), controls.picRobotMap.area().top);
    };
    controls.VScroll1.onChange = [&controls] {
        controls.picRobotMap.moveTo(controls.picRobotMap.area().left, -controls.VScroll1.value());
    };
}

void loadFloorPlan(MapControls& controls, const std::string& folder, Files& files) {
    const std::string big = folder + "/office.bmp";
    const std::string overview = folder + "/office_s.bmp";
    const Size size = bitmapSize(files.read(big)).value_or(Size{});
    Area plan = controls.picRobotMap.area();
    plan.width = twipsOf(size.width);
    plan.height = twipsOf(size.height);
    controls.picRobotMap.setArea(plan);
    // Last, so that whoever draws it knows how large it is.
    if (files.fileExists(big)) controls.picRobotMap.setFile(big);
    if (files.fileExists(overview)) controls.imgThumb.setFile(overview);
    setTravels(controls);
}

void viewportResized(MapControls& controls, const Area& viewport) {
    controls.Frame1.setArea(viewport);
    setTravels(controls);
}

ViewportLimit largestViewport(const MapControls& controls) {
    const Area& plan = controls.picRobotMap.area();
    return {largestSide(plan.width), largestSide(plan.height)};
}

PlanPart seenPart(const MapControls& controls) {
    const Area& plan = controls.picRobotMap.area();
    const Area& viewport = controls.Frame1.area();
    if (plan.width <= 0 || plan.height <= 0) return {};
    PlanPart part;
    part.left = fraction(-plan.left, plan.width);
    part.top = fraction(-plan.top, plan.height);
    part.width = std::min(fraction(viewport.width, plan.width), 1 - part.left);
    part.height = std::min(fraction(viewport.height, plan.height), 1 - part.top);
    return part;
}

std::int32_t draggedTo(const Slider& bar, std::int32_t from, int pixels) {
    const std::int64_t to = from - std::int64_t{pixels} * kTwipsPerPixel;
    return std::max(bar.minimum(), std::min(bar.maximum(), within32(to)));
}

std::int32_t wheeledTo(const Slider& bar, int eighths) {
    // A notch of the wheel is 15 degrees and moves the plan by three large steps: 20 pixels.
    constexpr std::int64_t kEighthsPerNotch = 120;
    constexpr std::int64_t kStepsPerNotch = 3;
    const std::int64_t way = eighths * kStepsPerNotch * bar.largeChange / kEighthsPerNotch;
    return std::max(bar.minimum(), std::min(bar.maximum(), within32(bar.value() - way)));
}

}  // namespace quorrin
