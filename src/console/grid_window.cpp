#include "console/grid_window.h"

#include <algorithm>
#include <cmath>

namespace quorrin {

namespace {

constexpr double kZoomStep = 1.2;

bool isPlace(GridPoint place) {
    return std::isfinite(place.x_m) && std::isfinite(place.y_m);
}

}  // namespace

void GridWindow::robotAt(GridPoint robot) {
    if (following_ && isPlace(robot)) centre_ = robot;
}

void GridWindow::follow(GridPoint robot) {
    following_ = true;
    robotAt(robot);
}

void GridWindow::showAll() {
    following_ = false;
    centre_ = {kGridCentre_m, kGridCentre_m};
    span_m_ = kGridSpan_m;
}

void GridWindow::zoom(double steps, ViewPoint at, ViewSize size) {
    const GridPoint before = toWorld(at, size);
    span_m_ = std::clamp(span_m_ * std::pow(kZoomStep, -steps), kSmallestSpan_m, kLargestSpan_m);
    if (following_) return;
    const GridPoint after = toWorld(at, size);
    centre_.x_m += before.x_m - after.x_m;
    centre_.y_m += before.y_m - after.y_m;
    keepInside();
}

void GridWindow::drag(double dx, double dy, ViewSize size) {
    following_ = false;
    centre_.x_m += dy / scale(size);
    centre_.y_m += dx / scale(size);
    keepInside();
}

double GridWindow::scale(ViewSize size) const {
    return std::max(1.0, std::min(size.width, size.height)) / span_m_;
}

ViewPoint GridWindow::toView(GridPoint place, ViewSize size) const {
    return {size.width / 2 - (place.y_m - centre_.y_m) * scale(size),
            size.height / 2 - (place.x_m - centre_.x_m) * scale(size)};
}

GridPoint GridWindow::toWorld(ViewPoint place, ViewSize size) const {
    return {centre_.x_m + (size.height / 2 - place.y) / scale(size),
            centre_.y_m + (size.width / 2 - place.x) / scale(size)};
}

void GridWindow::keepInside() {
    centre_.x_m = std::clamp(centre_.x_m, -kGridEdge_m, kGridEdge_m);
    centre_.y_m = std::clamp(centre_.y_m, -kGridEdge_m, kGridEdge_m);
}

}  // namespace quorrin
