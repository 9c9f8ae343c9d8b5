#include "robot/eyes/scenery.h"

#include <algorithm>

namespace quorrin {

namespace {

constexpr Tint kFloor{0.66f, 0.62f, 0.55f};
constexpr Tint kCeiling{0.92f, 0.92f, 0.90f};
constexpr Tint kWall{0.86f, 0.84f, 0.76f};
constexpr Tint kDesk{0.74f, 0.55f, 0.35f};
constexpr Tint kSteel{0.42f, 0.44f, 0.47f};
constexpr Tint kCarton{0.78f, 0.60f, 0.38f};
constexpr Tint kWet{0.52f, 0.62f, 0.70f};
constexpr Tint kMat{0.95f, 0.78f, 0.12f};

constexpr double kBeyond_m = 3;      // floor and ceiling reach this far behind the walls
constexpr double kPaint_m = 0.002;   // what lies on the floor, so that it is above it
constexpr double kShadow_m = 0.001;  // below paint
constexpr float kShade = 0.72f;

Vec2 middleOf(const std::vector<Vec2>& outline) {
    Vec2 sum;
    for (const Vec2 corner : outline) sum = sum + corner;
    return sum * (1.0 / static_cast<double>(outline.size()));
}

// The same shape around the same middle.
std::vector<Vec2> scaled(const std::vector<Vec2>& outline, double factor) {
    const Vec2 middle = middleOf(outline);
    std::vector<Vec2> result;
    for (const Vec2 corner : outline) result.push_back(middle + (corner - middle) * factor);
    return result;
}

// Each corner moved away from the middle.
std::vector<Vec2> grown(const std::vector<Vec2>& outline, double by_m) {
    const Vec2 middle = middleOf(outline);
    std::vector<Vec2> result;
    for (const Vec2 corner : outline) {
        const double far = std::max(0.001, length(corner - middle));
        result.push_back(middle + (corner - middle) * (std::max(0.01, far + by_m) / far));
    }
    return result;
}

std::vector<Vec2> squareAt(Vec2 middle, double side_m) {
    const double h = side_m / 2;
    return {middle + Vec2{-h, -h}, middle + Vec2{h, -h}, middle + Vec2{h, h}, middle + Vec2{-h, h}};
}

std::vector<Vec2> discAt(Vec2 middle, double radius_m) {
    constexpr int kCorners = 16;
    std::vector<Vec2> outline;
    for (int i = 0; i < kCorners; ++i)
        outline.push_back(middle + unitVector(2 * kExactPi * i / kCorners) * radius_m);
    return outline;
}

void addShadow(Faces& into, const std::vector<Vec2>& outline, double by_m) {
    into.push_back(flatFace(grown(outline, by_m), kShadow_m, Surface::tiles, kFloor * kShade));
}

void addTable(Faces& into, const std::vector<Vec2>& outline) {
    addPrism(into, outline, 0.70, 0.74, Surface::wood, Surface::wood, kDesk);
    if (outline.size() > 4)
        return addPrism(into, scaled(outline, 0.15), 0, 0.70, Surface::plain, Surface::plain, kSteel);
    for (const Vec2 foot : grown(outline, -0.07))
        addPrism(into, squareAt(foot, 0.05), 0, 0.70, Surface::plain, Surface::plain, kSteel);
}

void addChair(Faces& into, const std::vector<Vec2>& outline) {
    constexpr Tint kSeat{0.20f, 0.27f, 0.42f};
    addPrism(into, scaled(outline, 0.15), 0, 0.42, Surface::plain, Surface::plain, kSteel);
    addPrism(into, scaled(outline, 0.9), 0.42, 0.48, Surface::plain, Surface::fabric, kSeat);
    // A quarter of the rim carries the back.
    const std::vector<Vec2> rim = scaled(outline, 0.9);
    for (std::size_t i = 0; i < std::max<std::size_t>(1, rim.size() / 4); ++i)
        into.push_back(uprightFace(rim[i], rim[(i + 1) % rim.size()], 0.55, 0.95, Surface::plain, kSeat));
}

void addPlant(Faces& into, const std::vector<Vec2>& outline) {
    constexpr Tint kPot{0.62f, 0.33f, 0.22f};
    constexpr Tint kLeaf{0.22f, 0.46f, 0.20f};
    addPrism(into, scaled(outline, 0.5), 0, 0.35, Surface::plain, Surface::plain, kPot);
    const double radius = length(outline[0] - middleOf(outline));
    addTurned(into, middleOf(outline), {1, 0}, 1,
              {{0.35, radius * 0.2}, {0.6, radius * 0.85}, {0.9, radius}, {1.15, radius * 0.7}, {1.3, 0.02}},
              kLeaf);
    for (std::size_t i = into.size() - 14 * 4; i < into.size(); ++i) into[i].surface = Surface::leaves;
}

void addFurniture(Faces& into, const Furniture& thing) {
    const std::vector<Vec2>& outline = thing.outline;
    if (outline.size() < 3) return;
    if (thing.kind == "desk" || thing.kind == "table") return addTable(into, outline);
    if (thing.kind == "chair") return addChair(into, outline);
    if (thing.kind == "plant") return addPlant(into, outline);
    if (thing.kind == "shelf")
        return addPrism(into, outline, 0, 1.8, Surface::books, Surface::wood, {0.55f, 0.40f, 0.26f});
    if (thing.kind == "sofa") {
        constexpr Tint kCloth{0.52f, 0.20f, 0.22f};
        return addPrism(into, outline, 0, 0.55, Surface::fabric, Surface::fabric, kCloth);
    }
    if (thing.kind == "pillar")
        return addPrism(into, outline, 0, kRoomHeight_m, Surface::wall, Surface::plain,
                        {0.74f, 0.76f, 0.78f});
    addPrism(into, outline, 0, 1.1, Surface::doors, Surface::plain, {0.66f, 0.69f, 0.68f});  // a cabinet
}

}  // namespace

Faces standingFaces(const Site& site) {
    Faces faces;
    Vec2 low = site.start.at;
    Vec2 high = low;
    for (const Segment& wall : site.walls) {
        for (const Vec2 end : {wall.a, wall.b}) {
            low = {std::min(low.x, end.x), std::min(low.y, end.y)};
            high = {std::max(high.x, end.x), std::max(high.y, end.y)};
        }
    }
    low = low - Vec2{kBeyond_m, kBeyond_m};
    high = high + Vec2{kBeyond_m, kBeyond_m};
    const std::vector<Vec2> ground{low, {high.x, low.y}, high, {low.x, high.y}};
    faces.push_back(flatFace(ground, 0, Surface::tiles, kFloor));
    faces.push_back(flatFace(ground, kRoomHeight_m, Surface::ceiling, kCeiling, true));
    for (const Segment& wall : site.walls)
        if (length(wall.b - wall.a) > 0)
            faces.push_back(uprightFace(wall.a, wall.b, 0, kRoomHeight_m, Surface::wall, kWall));
    for (const Furniture& thing : site.furniture) {
        if (thing.outline.size() >= 3) addShadow(faces, thing.outline, 0.06);
        addFurniture(faces, thing);
    }
    for (const SlipperyPatch& patch : site.slippery)
        faces.push_back(
            flatFace({patch.low, {patch.high.x, patch.low.y}, patch.high, {patch.low.x, patch.high.y}},
                     kPaint_m, Surface::tiles, kWet));
    if (site.hasDock)
        faces.push_back(flatFace(squareAt(site.dock.pose.at, 0.5), kPaint_m, Surface::mat, kMat));
    return faces;
}

void addPerson(Faces& into, Vec2 place, Vec2 facing, std::size_t number) {
    constexpr Tint kSkins[] = {{0.86f, 0.66f, 0.54f}, {0.55f, 0.38f, 0.27f}, {0.78f, 0.58f, 0.44f}};
    constexpr Tint kHairs[] = {{0.22f, 0.15f, 0.10f}, {0.08f, 0.07f, 0.07f}, {0.56f, 0.42f, 0.20f}};
    constexpr Tint kShirts[] = {
        {0.72f, 0.16f, 0.16f}, {0.14f, 0.36f, 0.66f}, {0.18f, 0.50f, 0.30f}, {0.80f, 0.62f, 0.16f}};
    constexpr Tint kTrousers[] = {{0.18f, 0.20f, 0.30f}, {0.30f, 0.27f, 0.24f}, {0.24f, 0.24f, 0.26f}};
    const Tint skin = kSkins[number % 3];
    const Tint shirt = kShirts[number % 4];
    const Tint trousers = kTrousers[number % 3];
    const double far = length(facing);
    const Vec2 front = far > 0 ? facing * (1 / far) : Vec2{1, 0};
    const Vec2 side{-front.y, front.x};

    addShadow(into, discAt(place, 0.22), 0.04);
    for (const double hand : {-1.0, 1.0}) {
        const Vec2 hip = place + side * (0.09 * hand);
        addTurned(into, hip + front * 0.04, facing, 1.8, {{0, 0.055}, {0.07, 0.055}, {0.1, 0.03}},
                  {0.1f, 0.09f, 0.09f});
        addTurned(into, hip, facing, 1, {{0.05, 0.06}, {0.45, 0.068}, {0.85, 0.088}}, trousers);
        const Vec2 arm = place + side * (0.225 * hand);
        addTurned(into, arm, facing, 1,
                  {{0.88, 0.035}, {1.1, 0.042}, {1.34, 0.052}, {1.39, 0.045}, {1.42, 0.015}}, shirt * 0.9f);
        addTurned(into, arm, facing, 1, {{0.76, 0.015}, {0.79, 0.037}, {0.88, 0.034}}, skin);
        const Vec2 eye = place + front * 0.079 + side * (0.034 * hand);
        addTurned(into, eye, facing, 0.8, {{1.615, 0.004}, {1.625, 0.013}, {1.635, 0.004}},
                  {0.06f, 0.05f, 0.05f});
    }
    addTurned(into, place, facing, 0.58,
              {{0.8, 0.15}, {0.84, 0.165}, {1.0, 0.16}, {1.2, 0.18}, {1.36, 0.2}, {1.42, 0.17}, {1.46, 0.06}},
              shirt);
    addTurned(into, place, facing, 1, {{1.42, 0.05}, {1.54, 0.05}}, skin);
    addTurned(into, place, facing, 1.1,
              {{1.50, 0.03}, {1.53, 0.06}, {1.58, 0.076}, {1.64, 0.08}, {1.70, 0.072}, {1.74, 0.03}}, skin);
    addTurned(into, place - front * 0.022, facing, 1.1,
              {{1.56, 0.07}, {1.64, 0.085}, {1.71, 0.08}, {1.75, 0.05}, {1.77, 0.005}}, kHairs[number % 3]);
}

void addMovingFaces(Faces& into, const CameraView& view) {
    for (const auto& box : view.boxes) {
        const std::vector<Vec2> outline(box.begin(), box.end());
        addShadow(into, outline, 0.04);
        addPrism(into, outline, 0, kBoxHeight_m, Surface::carton, Surface::carton, kCarton);
    }
    const Vec2 eye{view.eye.x, view.eye.y};
    for (std::size_t i = 0; i < view.people.size(); ++i)
        addPerson(into, view.people[i], eye - view.people[i], i);
}

}  // namespace quorrin
