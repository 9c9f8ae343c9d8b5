// The baseline of the navigation benchmarks: a plain loop that only touches the cells and rays that the ticks
// touch, and the sectors that the navigator reads. It knows every cell beforehand and decides nothing.
#pragma once

#include <cstdint>
#include <vector>

#include "navigation/certainty_grid.h"
#include "wander_scene.h"

namespace quorrin::bench {

class PlainTouch {
  public:
    // plain: "if (cell > 0) --cell", cell by cell; vectorised: eight cells at once, as the map itself does
    // it.
    enum class Fading { plain, vectorised };

    PlainTouch(const std::vector<WanderSample>& samples, Fading fading) : fading_(fading) {
        const NavigationStation station;
        for (const WanderSample& sample : samples) ticks_.push_back(plan(sample, station.values));
    }

    // Touches what the sensor map's tick touches.
    int map(std::size_t tick) {
        const Tick& plan = ticks_[tick];
        std::int16_t* const cells = grid_.certaintyGrid[0].data();
        for (const std::size_t place : plan.rays)
            if (cells[place] > 0) --cells[place];
        for (const std::size_t place : plan.hits) cells[place] = 15;
        int sum = 0;
        for (std::size_t i = 0; i < kWindowCells; ++i)
            for (std::size_t j = 0; j < kWindowCells; ++j)
                sum += grid_.certaintyGrid[plan.cornerX + i][plan.cornerY + j];
        if (++sinceFade_ == 16) {
            sinceFade_ = 0;
            if (fading_ == Fading::plain)
                fade();
            else
                fadeGrid(grid_);
        }
        return sum;
    }

    // Touches what the navigator's tick touches.
    int navigator() const {
        int sum = 0;
        for (std::size_t sector = 1; sector <= kSectors; ++sector)
            sum += grid_.binaryHistogram[sector] + grid_.polarHistogram[sector];
        return sum;
    }

  private:
    struct Tick {
        std::vector<std::size_t> rays;  // places in the grid, ray after ray
        std::vector<std::size_t> hits;
        std::size_t cornerX, cornerY;
    };

    static std::size_t place(double x, double y) {
        return static_cast<std::size_t>(static_cast<int>(x) * (kGridCells + 1) + static_cast<int>(y));
    }

    static Tick plan(const WanderSample& sample, const SensorValues& geometry) {
        const int x0 = cellOf(sample.pose.robotX);
        const int y0 = cellOf(sample.pose.robotY);
        Tick tick{{}, {}, static_cast<std::size_t>(x0 - 6), static_cast<std::size_t>(y0 - 6)};
        const auto add = [&](double range, double radius, double angle, double lower, double marking) {
            if (range < radius + lower) return;
            const double bearing = sample.pose.robotTheta + angle;
            const int x1 = cellOf(sample.pose.robotX + range * std::cos(bearing));
            const int y1 = cellOf(sample.pose.robotY + range * std::sin(bearing));
            const int steps = std::max(std::abs(x1 - x0), std::abs(y1 - y0));
            for (int k = 0; k < steps; ++k)
                tick.rays.push_back(place(x0 + 0.5 + (x1 - x0) * double(k) / steps,
                                          y0 + 0.5 + (y1 - y0) * double(k) / steps));
            if (range <= radius + marking) tick.hits.push_back(place(x1, y1));
        };
        for (std::size_t i = 0; i < 10; ++i)
            add(sample.irRange[i], geometry.irRadius[i], geometry.irAngle[i], 0.1, 0.53);
        for (std::size_t i = 0; i < 3; ++i)
            add(sample.sonarRange[i], geometry.sonarRadius[i], geometry.sonarAngle[i], 0.02, 2.0);
        return tick;
    }

    void fade() {
        for (std::size_t x = 1; x <= kGridCells; ++x)
            for (std::size_t y = 1; y <= kGridCells; ++y)
                if (grid_.certaintyGrid[x][y] > 0) --grid_.certaintyGrid[x][y];
    }

    Fading fading_;
    std::vector<Tick> ticks_;
    MapValues grid_;
    int sinceFade_ = 0;
};

}  // namespace quorrin::bench
