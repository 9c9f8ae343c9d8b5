// Reads site files; docs/site-format.md tells the format.
#include <algorithm>
#include <array>

#include "robot/site.h"
#include "robot/site_picture.h"
#include "robot/strict_json.h"

namespace quorrin {

namespace {

constexpr std::array<const char*, 8> kKinds{"desk",  "chair", "shelf",   "sofa",
                                            "table", "plant", "cabinet", "pillar"};

std::vector<Vec2> rectangle(Vec2 middle, double width, double depth, double angle) {
    std::vector<Vec2> corners;
    for (const Vec2 corner : {Vec2{-0.5, -0.5}, Vec2{0.5, -0.5}, Vec2{0.5, 0.5}, Vec2{-0.5, 0.5}})
        corners.push_back(middle + rotated({corner.x * width, corner.y * depth}, angle));
    return corners;
}

std::vector<Vec2> disc(Vec2 middle, double radius) {
    constexpr int corners = 12;
    std::vector<Vec2> outline;
    outline.reserve(corners);
    for (int i = 0; i < corners; ++i)
        outline.push_back(middle + unitVector(2.0 * kExactPi * i / corners) * radius);
    return outline;
}

double angleOf(StrictObject& object, const char* key) {
    return radFromDeg(object.numberOr(key, 0.0, -360.0, 360.0));
}

Pose poseOf(StrictObject& object) {
    const Vec2 at = object.point("at");
    return {at, angleOf(object, "heading")};
}

void readWalls(StrictObject& top, Site& site) {
    const nlohmann::json* walls = top.find("walls");
    if (walls == nullptr) return;
    if (!walls->is_array()) top.fail("\"walls\" must be a list of lines");
    for (std::size_t i = 0; i < walls->size(); ++i) {
        // Each line by itself, so that the message can say which.
        const nlohmann::json wrapped{{"line", (*walls)[i]}};
        StrictObject line(wrapped, top.where() + ": walls[" + std::to_string(i) + "]");
        const std::vector<Vec2> points = line.points("line", 2);
        for (std::size_t k = 1; k < points.size(); ++k) site.walls.push_back({points[k - 1], points[k]});
    }
}

void readPicture(StrictObject& top, Site& site, const std::string& folder, Files& files) {
    const nlohmann::json* value = top.find("picture");
    if (value == nullptr) return;
    StrictObject picture(*value, top.where() + ": picture");
    const std::string file = picture.text("file");
    const double scale = picture.number("metresPerPixel", 0.001, 1.0);
    const Vec2 origin = picture.has("origin") ? picture.point("origin") : Vec2{};
    picture.finish();
    const std::string path = file.rfind('/', 0) == 0 ? file : folder + "/" + file;
    const auto bytes = files.read(path);
    if (!bytes) picture.fail("cannot read \"" + path + "\"");
    for (const Segment& wall : wallsFromPicture(readGreyPicture(*bytes, path), scale, origin))
        site.walls.push_back(wall);
}

Furniture furnitureOf(StrictObject& object) {
    Furniture thing;
    thing.kind = object.text("kind");
    if (std::find(kKinds.begin(), kKinds.end(), thing.kind) == kKinds.end())
        object.fail("unknown kind \"" + thing.kind + "\"");
    const Vec2 at = object.point("at");
    if (object.has("radius")) {
        thing.outline = disc(at, object.number("radius", 0.01, 5.0));
    } else {
        const Vec2 size = object.point("size");
        if (!(size.x > 0.0 && size.y > 0.0)) object.fail("\"size\" must be above 0");
        thing.outline = rectangle(at, size.x, size.y, angleOf(object, "angle"));
    }
    object.finish();
    return thing;
}

MovableBox boxOf(StrictObject& object) {
    MovableBox box;
    box.at = object.point("at");
    const Vec2 size = object.point("size");
    if (!(size.x >= 0.05 && size.y >= 0.05)) object.fail("\"size\" must be at least 0.05");
    box.width_m = size.x;
    box.depth_m = size.y;
    box.angle = angleOf(object, "angle");
    box.mass_kg = object.numberOr("mass", box.mass_kg, 0.1, 500.0);
    object.finish();
    return box;
}

Walker walkerOf(StrictObject& object) {
    Walker walker;
    walker.path = object.points("path", 1);
    walker.speed_mps = object.numberOr("speed", walker.speed_mps, 0.05, 3.0);
    walker.pause_s = object.numberOr("pause", walker.pause_s, 0.0, 3600.0);
    object.finish();
    return walker;
}

SlipperyPatch patchOf(StrictObject& object) {
    SlipperyPatch patch;
    patch.low = object.point("low");
    patch.high = object.point("high");
    patch.grip = object.number("grip", 0.0, 1.0);
    object.finish();
    return patch;
}

void checkRoom(const Site& site, const StrictObject& top) {
    for (const Segment& segment : fixedSegments(site))
        if (distanceToSegment(site.start.at, segment) < kRobotRadius_m)
            top.fail("the robot does not fit at its start, something stands there");
    const Extent extent = reachableExtent(site);
    if (!extent.closed) top.fail("the robot can leave the site: the walls are not closed");
    if (extent.high.x - extent.low.x > kLargestExtent_m || extent.high.y - extent.low.y > kLargestExtent_m)
        top.fail(
            "the site is too large: two points that the robot can reach may lie at most 7.5 m apart in x "
            "and in y");
}

}  // namespace

Site parseSite(const std::string& text, const std::string& name, const std::string& folder, Files& files) {
    const nlohmann::json json = parseJson(text, name);
    StrictObject top(json, name);
    Site site;
    site.name = top.text("name");
    site.title = top.textOr("title", site.name);
    readWalls(top, site);
    readPicture(top, site, folder, files);
    if (site.walls.empty()) top.fail("a site needs \"walls\" or a \"picture\"");
    for (StrictObject& object : top.objects("furniture")) site.furniture.push_back(furnitureOf(object));
    for (StrictObject& object : top.objects("boxes")) site.boxes.push_back(boxOf(object));
    for (StrictObject& object : top.objects("people")) site.people.push_back(walkerOf(object));
    for (StrictObject& object : top.objects("slippery")) site.slippery.push_back(patchOf(object));
    if (const nlohmann::json* value = top.find("dock")) {
        StrictObject dock(*value, name + ": dock");
        site.hasDock = true;
        site.dock.pose = poseOf(dock);
        site.dock.volts = dock.numberOr("volts", site.dock.volts, 0.0, 25.0);
        dock.finish();
    }
    StrictObject start(top.need("start"), name + ": start");
    site.start = poseOf(start);
    start.finish();
    site.light = top.numberOr("light", site.light, 0.0, 1.0);
    top.finish();
    checkRoom(site, top);
    return site;
}

Site loadSite(const std::string& nameOrFile, const std::string& sitesFolder, Files& files) {
    const std::string ending = ".json";
    const bool isFile = nameOrFile.find('/') != std::string::npos ||
                        (nameOrFile.size() > ending.size() &&
                         nameOrFile.compare(nameOrFile.size() - ending.size(), ending.size(), ending) == 0);
    const std::string path = isFile ? nameOrFile : sitesFolder + "/" + nameOrFile + ending;
    const auto text = files.read(path);
    if (!text) throw SiteError("no site file \"" + path + "\"");
    const std::size_t slash = path.rfind('/');
    return parseSite(*text, path, slash == std::string::npos ? "." : path.substr(0, slash), files);
}

}  // namespace quorrin
