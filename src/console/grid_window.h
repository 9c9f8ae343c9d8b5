// Which piece of the world a picture of the grid shows, and where a place of it lies in the picture.
//
// World metres (x ahead of the start pose, y to its left) to picture points (x to the right, y down) with x
// up and y to the left, as seen from above: a turn to the left goes counter-clockwise in the picture too. The
// window follows the robot until it is moved by hand. A value; knows no widget.
#pragma once

namespace quorrin {

// A place in the world, metres.
struct GridPoint {
    double x_m = 0;
    double y_m = 0;
};

// A place in a picture.
struct ViewPoint {
    double x = 0;
    double y = 0;
};

struct ViewSize {
    double width = 0;
    double height = 0;
};

class GridWindow {
  public:
    static constexpr double kStartSpan_m = 4;
    static constexpr double kSmallestSpan_m = 1;
    static constexpr double kLargestSpan_m = 20;
    // The whole grid: 160 cells of 0.1 m, cell 80 in the origin.
    static constexpr double kGridSpan_m = 16;
    static constexpr double kGridCentre_m = 0.05;
    static constexpr double kGridEdge_m = 8.05;  // outer edge of cell 160

    bool following() const { return following_; }
    // Metres across the shorter side of the picture.
    double span_m() const { return span_m_; }
    GridPoint centre() const { return centre_; }

    // Where the robot is; moves the window when it follows.
    void robotAt(GridPoint robot);
    void follow(GridPoint robot);
    void showAll();
    // Steps of a wheel, positive nearer. The place under `at` stays there, the robot when the window follows.
    void zoom(double steps, ViewPoint at, ViewSize size);
    // The picture is pushed by so many points; the window follows no longer.
    void drag(double dx, double dy, ViewSize size);

    // Picture points a metre.
    double scale(ViewSize size) const;
    ViewPoint toView(GridPoint place, ViewSize size) const;
    GridPoint toWorld(ViewPoint place, ViewSize size) const;

  private:
    void keepInside();

    GridPoint centre_;
    double span_m_ = kStartSpan_m;
    bool following_ = true;
};

}  // namespace quorrin
