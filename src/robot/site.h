// A site: the place that a simulated robot lives in, as its file tells it.
//
// Plain data in metres, radians and the site's own frame (x right, y up). Nothing moves here; World does
// that. Walls and furniture never move, boxes can be pushed, people walk along their paths.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "robot/geometry.h"
#include "robot/site_error.h"

namespace quorrin {

// A fixed thing that stands on the floor: an outline (closed), and what it is, for the plan.
struct Furniture {
    std::string kind;  // "desk", "chair", "shelf", "sofa", "table", "plant", "cabinet", "pillar"
    std::vector<Vec2> outline;
};

struct MovableBox {
    Vec2 at;  // its middle
    double width_m = 0.3;
    double depth_m = 0.3;
    double angle = 0;
    double mass_kg = 4;
};

// Walks from point to point and, at the end, back to the first; waits `pause_s` at each point.
struct Walker {
    std::vector<Vec2> path;
    double speed_mps = 0.6;
    double pause_s = 1;
};

struct Dock {
    Pose pose;  // where the robot's centre stands when it is docked, and where it looks
    double volts = 16;
};

// A patch of floor on which wheels find less hold; 1 is the usual hold.
struct SlipperyPatch {
    Vec2 low;
    Vec2 high;
    double grip = 1;
};

struct Site {
    std::string name;
    std::string title;
    std::vector<Segment> walls;
    std::vector<Furniture> furniture;
    std::vector<MovableBox> boxes;
    std::vector<Walker> people;
    std::vector<SlipperyPatch> slippery;
    bool hasDock = false;
    Dock dock;
    Pose start;
    double light = 0.8;  // 0 dark to 1 bright
};

// Two points that the robot can reach lie at most this far apart in x and in y: a station's map reaches 7.9 m
// from where its session began, and a session may begin anywhere.
constexpr double kLargestExtent_m = 7.5;
// The robot as a disc.
constexpr double kRobotRadius_m = 0.2;

// All that never moves, as segments: walls and the outlines of the furniture.
std::vector<Segment> fixedSegments(const Site& site);

// Where the robot's centre can get to from the start, boxes and people left out: the smallest rectangle.
struct Extent {
    Vec2 low;
    Vec2 high;
    bool closed = true;  // false: the robot can leave the site
};
Extent reachableExtent(const Site& site);

// A site from the text of its file. `name` begins the messages. Pictures that the file names are read through
// `files` from `folder`. Errors: SiteError that names the place and the key.
Site parseSite(const std::string& text, const std::string& name, const std::string& folder, Files& files);

// The site of that name in `sitesFolder`, or, when `nameOrFile` has a "/" or ends with ".json", of that file.
Site loadSite(const std::string& nameOrFile, const std::string& sitesFolder, Files& files);

}  // namespace quorrin
