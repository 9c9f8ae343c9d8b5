// The sensor map's tick written down plainly, formula by formula, with a library rounding call for every
// Round and no table. Slow on purpose: the built map must equal it cell by cell.
#pragma once

#include <cmath>
#include <cstdlib>

#include "session/record/map_values.h"
#include "session/record/pose_values.h"
#include "session/record/sensor_values.h"

namespace quorrin::plain {

inline int round(double value) {
    return static_cast<int>(std::nearbyint(value));
}

inline double bearing(double x0, double y0, double x1, double y1) {
    const double dx = x1 - x0;
    const double dy = y1 - y0;
    if (dx == 0) return dy > 0 ? 1.5707963 : -1.5707963;
    if (dx > 0) return std::atan(dy / dx);
    if (dy <= 0) return std::atan(dy / dx) - 3.1415926;
    return std::atan(dy / dx) + 3.1415926;
}

struct SensorMap {
    MapValues map;
    int decayCountdown = 15;

    std::int16_t& cell(int x, int y) {
        return map.certaintyGrid[static_cast<std::size_t>(x)][static_cast<std::size_t>(y)];
    }

    bool markCell(int x, int y) {
        if (x >= 160 || x < 2 || y < 2 || y >= 160) return false;
        int n = 0;
        for (int i = -1; i <= 1; ++i)
            for (int j = -1; j <= 1; ++j)
                if (i != 0 || j != 0) n += cell(x + i, y + j);
        const int q = round(n * 0.5 + 3.0);
        if (cell(x, y) >= 15 - q)
            cell(x, y) = 15;
        else
            cell(x, y) = static_cast<std::int16_t>(cell(x, y) + 3);
        return true;
    }

    // False when the walk has left the grid.
    bool visit(int x, int y) {
        if (x < 1 || x > 160 || y < 1 || y > 160) return false;
        if (cell(x, y) > 0) cell(x, y) = static_cast<std::int16_t>(cell(x, y) - 1);
        return true;
    }

    void clearRay(int x0, int y0, int x1, int y1) {
        const int a = x1 - x0;
        const int b = y1 - y0;
        if (std::abs(a) >= std::abs(b)) {
            if (a > 1) {
                for (int k = 0; k <= a - 1; ++k)
                    if (!visit(x0 + k, y0 + round(double(b * k) / a))) return;
            } else {
                for (int k = 0; k <= -1 - a; ++k)
                    if (!visit(x0 - k, y0 - round(double(b * k) / a))) return;
            }
        } else if (b > 1) {
            for (int k = 0; k <= b - 1; ++k)
                if (!visit(x0 + round(double(a * k) / b), y0 + k)) return;
        } else {
            for (int k = 0; k <= -1 - b; ++k)
                if (!visit(x0 - round(double(a * k) / b), y0 - k)) return;
        }
    }

    void cast(const PoseValues& p, double r, double radius, double angle, double low, double high) {
        if (r < radius + low) return;
        const int x = round((p.robotX + r * std::cos(p.robotTheta + angle)) * 10 + 80);
        const int y = round((p.robotY + r * std::sin(p.robotTheta + angle)) * 10 + 80);
        clearRay(round(p.robotX * 10 + 80), round(p.robotY * 10 + 80), x, y);
        if (!(r > radius + high)) markCell(x, y);
    }

    void density(int rx, int ry) {
        for (auto& entry : map.polarHistogram) entry = 0;
        for (int i = 1; i <= 13; ++i) {
            for (int j = 1; j <= 13; ++j) {
                const int x = rx - 7 + i;
                const int y = ry - 7 + j;
                if (!(x > 0 && x < 160 && y > 0 && y < 160)) continue;
                const int sector = round((bearing(7, 7, i, j) + 3.1415926) / (6.2831852 / 36) + 0.501);
                const int d2 = (j - 7) * (j - 7) + (i - 7) * (i - 7);
                const int magnitude = round(cell(x, y) * cell(x, y) * (1 - d2 / 72.0));
                const auto row = static_cast<std::size_t>(i);
                const auto column = static_cast<std::size_t>(j);
                map.sectorCells[0][row][column] = static_cast<std::int16_t>(sector);
                map.sectorCells[1][row][column] = static_cast<std::int16_t>(magnitude);
                auto& sum = map.polarHistogram[static_cast<std::size_t>(sector)];
                sum = static_cast<std::int16_t>(sum + magnitude);
            }
        }
    }

    void smooth() {
        int t[41] = {};
        auto& h = map.polarHistogram;
        for (std::size_t i = 1; i <= 36; ++i) t[i + 2] = h[i];
        t[2] = h[36];
        t[1] = h[35];
        for (std::size_t k = 1; k <= 2; ++k) t[36 + k] = h[k];
        for (std::size_t i = 3; i <= 38; ++i) {
            int running = round(t[i] * 3);
            for (std::size_t j = 1; j <= 2; ++j)
                running = round(running + (t[i - j] + t[i + j]) * static_cast<int>(3 - j));
            h[i - 2] = static_cast<std::int16_t>(round(running / 9.0));
        }
    }

    void tick(const PoseValues& p, const SensorValues& s, int densityThreshold) {
        if (-7.9 < p.robotX && p.robotX < 8.0 && -7.9 < p.robotY && p.robotY < 8.0) {
            for (std::size_t i = 0; i < 10; ++i)
                cast(p, s.irRange[i], s.irRadius[i], s.irAngle[i], 0.1, 0.53);
            for (std::size_t i = 0; i < 3; ++i)
                cast(p, s.sonarRange[i], s.sonarRadius[i], s.sonarAngle[i], 0.02, 2.0);
            density(round(p.robotX * 10 + 80), round(p.robotY * 10 + 80));
            smooth();
            for (std::size_t i = 1; i <= 36; ++i)
                map.binaryHistogram[i] = map.polarHistogram[i] > densityThreshold ? 1 : 0;
        }
        if (decayCountdown == 0) {
            for (int x = 1; x <= 160; ++x)
                for (int y = 1; y <= 160; ++y)
                    if (cell(x, y) > 0) cell(x, y) = static_cast<std::int16_t>(cell(x, y) - 1);
            decayCountdown = 15;
        } else {
            --decayCountdown;
        }
    }
};

}  // namespace quorrin::plain
