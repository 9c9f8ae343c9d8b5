#include "robot/plan_picture.h"

#include <algorithm>
#include <cmath>

#include "robot/canvas.h"

namespace quorrin {

namespace {

constexpr Ink kPaper{236, 233, 225};
constexpr Ink kFloor{253, 252, 249};
constexpr Ink kGrid{232, 229, 222};
constexpr Ink kWall{52, 56, 64};
constexpr Ink kEdge{104, 100, 92};
constexpr Ink kWords{84, 78, 68};
constexpr Ink kWet{205, 226, 240};
constexpr Ink kDock{46, 139, 87};
constexpr Ink kBox{214, 178, 128};
constexpr Ink kTape{180, 140, 92};

constexpr double kWallThickness_m = 0.08;
constexpr double kSmallestLetters = 5.5;  // pixels; below, words are left out

// The part of the picture that the site gets; the rest is margin and scale bar.
constexpr double kSide = 0.045;
constexpr double kTop = 0.03;
constexpr double kBottom = 0.085;

struct Box {
    Vec2 low{1e9, 1e9};
    Vec2 high{-1e9, -1e9};
};

Box boundsOf(const Site& site) {
    Box box;
    for (const Segment& wall : site.walls) {
        for (const Vec2 point : {wall.a, wall.b}) {
            box.low = {std::min(box.low.x, point.x), std::min(box.low.y, point.y)};
            box.high = {std::max(box.high.x, point.x), std::max(box.high.y, point.y)};
        }
    }
    return box;
}

Ink inkOf(const std::string& kind) {
    if (kind == "desk") return {222, 196, 158};
    if (kind == "table") return {214, 186, 146};
    if (kind == "chair") return {160, 178, 200};
    if (kind == "sofa") return {190, 160, 172};
    if (kind == "shelf") return {200, 184, 150};
    if (kind == "cabinet") return {192, 196, 200};
    if (kind == "plant") return {140, 186, 128};
    return {92, 96, 104};  // pillar
}

struct Draft {
    Canvas& canvas;
    PlanFrame frame;
    double thin;  // pixels

    std::vector<Vec2> pixels(const std::vector<Vec2>& metres) const {
        std::vector<Vec2> result;
        for (const Vec2 point : metres) result.push_back(frame.pixel(point));
        return result;
    }
};

Vec2 middleOf(const std::vector<Vec2>& outline) {
    Vec2 sum;
    for (const Vec2 point : outline) sum = sum + point;
    return sum * (1.0 / static_cast<double>(outline.size()));
}

// The outline drawn in by a share of its size.
std::vector<Vec2> shrunk(const std::vector<Vec2>& outline, double share) {
    const Vec2 middle = middleOf(outline);
    std::vector<Vec2> result;
    for (const Vec2 point : outline) result.push_back(middle + (point - middle) * share);
    return result;
}

void drawFurniture(const Draft& draft, const Furniture& thing) {
    const std::vector<Vec2> outline = draft.pixels(thing.outline);
    draft.canvas.fill(outline, inkOf(thing.kind));
    if (thing.kind == "plant") draft.canvas.fill(shrunk(outline, 0.55), {104, 156, 96});
    if (thing.kind == "chair") draft.canvas.fill(shrunk(outline, 0.6), {186, 200, 218});
    if (thing.kind == "sofa") draft.canvas.fill(shrunk(outline, 0.78), {212, 186, 196});
    draft.canvas.outline(outline, draft.thin, kEdge);
    if (thing.kind == "plant" || thing.kind == "chair" || thing.kind == "pillar") return;

    // The name where it fits, upright.
    double width = 0;
    double height = 0;
    const Vec2 middle = middleOf(outline);
    for (const Vec2 point : outline) {
        width = std::max(width, 2 * std::abs(point.x - middle.x));
        height = std::max(height, 2 * std::abs(point.y - middle.y));
    }
    double letters = std::min(0.13 * draft.frame.pixelsPerMetre, 0.5 * height);
    const double room = Canvas::textWidth(letters, thing.kind);
    if (room > 0.7 * width) letters *= 0.7 * width / room;
    if (letters >= kSmallestLetters) draft.canvas.text(middle, letters, thing.kind, kWords);
}

void drawBox(const Draft& draft, const MovableBox& box) {
    std::vector<Vec2> corners;
    for (const Vec2 corner : {Vec2{-0.5, -0.5}, Vec2{0.5, -0.5}, Vec2{0.5, 0.5}, Vec2{-0.5, 0.5}})
        corners.push_back(box.at + rotated({corner.x * box.width_m, corner.y * box.depth_m}, box.angle));
    const std::vector<Vec2> outline = draft.pixels(corners);
    draft.canvas.fill(outline, kBox);
    const Vec2 from = (outline[0] + outline[3]) * 0.5;
    const Vec2 to = (outline[1] + outline[2]) * 0.5;
    draft.canvas.line(from, to, draft.thin * 1.5, kTape);
    draft.canvas.outline(outline, draft.thin, kEdge);
}

void drawDock(const Draft& draft, const Dock& dock) {
    const Vec2 back = dock.pose.at - unitVector(dock.pose.heading) * 0.16;
    const Vec2 across = unitVector(dock.pose.heading + kExactPi / 2) * 0.18;
    draft.canvas.line(draft.frame.pixel(back - across), draft.frame.pixel(back + across),
                      0.07 * draft.frame.pixelsPerMetre, kDock);
    const double letters = 0.11 * draft.frame.pixelsPerMetre;
    if (letters >= kSmallestLetters)
        draft.canvas.text(draft.frame.pixel(dock.pose.at + unitVector(dock.pose.heading) * 0.1), letters,
                          "dock", kDock);
}

void drawScaleBar(const Draft& draft, const Site& site, int height) {
    constexpr int metres = 2;
    const double bar = std::max(2.0, 0.011 * height);
    const double y = height * (1 - kBottom * 0.55);
    const Vec2 start{draft.frame.pixel(boundsOf(site).low).x, y};
    for (int half = 0; half < 2 * metres; ++half) {
        const double from = start.x + half * 0.5 * draft.frame.pixelsPerMetre;
        const double to = from + 0.5 * draft.frame.pixelsPerMetre;
        draft.canvas.fill({{from, y}, {to, y}, {to, y + bar}, {from, y + bar}},
                          half % 2 == 0 ? kWall : kFloor);
    }
    const double end = start.x + metres * draft.frame.pixelsPerMetre;
    draft.canvas.outline({start, {end, y}, {end, y + bar}, {start.x, y + bar}}, draft.thin, kWall);
    const double letters = 0.018 * height;
    if (letters < kSmallestLetters) return;
    for (int metre = 0; metre <= metres; ++metre) {
        const std::string label = std::to_string(metre) + (metre == metres ? " m" : "");
        draft.canvas.text({start.x + metre * draft.frame.pixelsPerMetre, y + bar + letters}, letters, label,
                          kWall);
    }
    const double right = draft.frame.pixel(boundsOf(site).high).x;
    const double larger = 1.3 * letters;
    draft.canvas.text({right - Canvas::textWidth(larger, site.title) / 2, y + bar}, larger, site.title,
                      kWall);
}

}  // namespace

PlanFrame planFrame(const Site& site, int width, int height) {
    const Box box = boundsOf(site);
    const Vec2 size = box.high - box.low;
    const double wide = width * (1 - 2 * kSide);
    const double tall = height * (1 - kTop - kBottom);
    PlanFrame frame;
    frame.pixelsPerMetre = std::min(wide / size.x, tall / size.y);
    frame.zero.x = (width - size.x * frame.pixelsPerMetre) / 2 - box.low.x * frame.pixelsPerMetre;
    const double spare = tall - size.y * frame.pixelsPerMetre;
    frame.zero.y = height * (1 - kBottom) - spare / 2 + box.low.y * frame.pixelsPerMetre;
    return frame;
}

CameraPicture drawPlan(const Site& site, int width, int height, bool withBoxes) {
    Canvas canvas(width, height, kPaper);
    const Draft draft{canvas, planFrame(site, width, height), std::max(0.7, width / 480.0)};
    const Box box = boundsOf(site);
    canvas.fill(draft.pixels({box.low, {box.high.x, box.low.y}, box.high, {box.low.x, box.high.y}}), kFloor);
    for (double x = std::ceil(box.low.x); x < box.high.x; x += 1)
        canvas.line(draft.frame.pixel({x, box.low.y}), draft.frame.pixel({x, box.high.y}), draft.thin * 0.8,
                    kGrid);
    for (double y = std::ceil(box.low.y); y < box.high.y; y += 1)
        canvas.line(draft.frame.pixel({box.low.x, y}), draft.frame.pixel({box.high.x, y}), draft.thin * 0.8,
                    kGrid);
    for (const SlipperyPatch& patch : site.slippery)
        canvas.fill(
            draft.pixels({patch.low, {patch.high.x, patch.low.y}, patch.high, {patch.low.x, patch.high.y}}),
            kWet);
    for (const Furniture& thing : site.furniture) drawFurniture(draft, thing);
    if (withBoxes)
        for (const MovableBox& movable : site.boxes) drawBox(draft, movable);
    if (site.hasDock) drawDock(draft, site.dock);
    for (const Segment& wall : site.walls)
        canvas.line(draft.frame.pixel(wall.a), draft.frame.pixel(wall.b),
                    std::max(1.5, kWallThickness_m * draft.frame.pixelsPerMetre), kWall);
    drawScaleBar(draft, site, height);
    return canvas.picture();
}

}  // namespace quorrin
