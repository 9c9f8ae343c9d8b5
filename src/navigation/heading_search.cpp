#include "navigation/heading_search.h"

#include "base/program_error.h"
#include "base/rounding.h"
#include "navigation/math/angles.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

constexpr int kSearchSteps = 18;
constexpr int kNothingFound = 36;
constexpr int kWideOpening = 12;
constexpr int kIntoWideOpening = 6;

constexpr double kShowNoChange = 380;
constexpr double kShowNoOpening = -380;
constexpr double kShowTooNarrow = -370;

std::size_t histogramIndex(Integer sector) {
    if (sector < 1 || sector > kSectors) throw ProgramError("histogram: bad sector");
    return static_cast<std::size_t>(sector.value());
}

// binaryHistogram by sector numbers that may lie past either end.
class Sectors {
  public:
    explicit Sectors(const MapValues& map) : map_(map) {}
    bool free(Integer sector) const { return value(sector) == 0; }
    bool blocked(Integer sector) const { return value(sector) == 1; }

  private:
    int value(Integer sector) const {
        const int near = sector;
        if (near >= 1 && near <= kSectors) return map_.binaryHistogram[static_cast<std::size_t>(near)];
        return map_.binaryHistogram[histogramIndex(wrapSector(sector))];
    }
    const MapValues& map_;
};

HeadingChoice headFor(HeadingOutcome outcome, Integer sector) {
    const double wrapped = wrapSector(sector);
    const double degrees = (wrapped - 0.5) * 360.0 / 36.0 - 180.0;
    return {outcome, degToRad(degrees), degrees};
}

// Steps from the goal to the first free sector on one side, 36 when there is none.
int stepsToFree(const Sectors& sectors, Integer goal, int side) {
    int i = 1;
    while (i != kSearchSteps && !sectors.free(goal + side * i)) ++i;
    return sectors.free(goal + side * i) ? i : kNothingFound;
}

int stepsToBlocked(const Sectors& sectors, Integer goal, int side) {
    int i = 1;
    while (i != kSearchSteps && !sectors.blocked(goal + side * i)) ++i;
    return sectors.blocked(goal + side * i) ? i : kNothingFound;
}

HeadingChoice pastBlockedGoal(const Sectors& sectors, Integer goal, double bearing) {
    const int above = stepsToFree(sectors, goal, 1);
    const int below = stepsToFree(sectors, goal, -1);
    // The positive side wins a tie.
    const int best = below < above ? -below : above;
    if (best == kNothingFound) return {HeadingOutcome::noOpening, bearing, kShowNoOpening};

    const int side = best > 0 ? 1 : -1;
    int width = 1;
    while (width < kNothingFound && !sectors.blocked(goal + best + side * width)) ++width;
    const Integer offset = width > kWideOpening ? Integer(kIntoWideOpening) : roundToInteger(width / 2.0);
    return headFor(HeadingOutcome::openFound, goal + best + side * offset);
}

HeadingChoice besideFreeGoal(const Sectors& sectors, Integer goal, double bearing,
                             const NavigationControls& controls) {
    const int a = stepsToBlocked(sectors, goal, 1);
    const int b = stepsToBlocked(sectors, goal, -1);
    if (a == kNothingFound && b == kNothingFound)
        return {HeadingOutcome::totallyOpen, bearing, kShowNoChange};

    const Integer sideClearance = controls.sideClearance();
    if (a > sideClearance && b > sideClearance) return {HeadingOutcome::openNoChange, bearing, kShowNoChange};

    if (!(a + b > controls.minGapSectors())) return {HeadingOutcome::tooNarrow, bearing, kShowTooNarrow};
    if (a + b < 2 * sideClearance) {
        const Integer middle = roundToInteger((a - b) / 2.0);
        return headFor(HeadingOutcome::openChange, middle + goal);
    }
    if (a < b) return headFor(HeadingOutcome::openChange, goal + a - sideClearance);
    return headFor(HeadingOutcome::openChange, goal - b + sideClearance);
}

}  // namespace

const char* outcomeWord(HeadingOutcome outcome) {
    switch (outcome) {
        case HeadingOutcome::openFound:
            return "openfound";
        case HeadingOutcome::totallyOpen:
            return "totallyopen";
        case HeadingOutcome::openNoChange:
            return "openwithnochange";
        case HeadingOutcome::openChange:
            return "openwithchange";
        case HeadingOutcome::tooNarrow:
        case HeadingOutcome::noOpening:
            break;
    }
    return "stuck";
}

Integer wrapSector(Integer sector) {
    if (sector < 1) sector += 36;
    return Integer((sector.value() - 1) % 36 + 1);
}

Integer sectorOf(double heading) {
    const double position = (heading + GeneralConstants::kPi) * 36.0 / GeneralConstants::kTwoPi + 0.501;
    return wrapSector(roundToInteger(position));
}

Integer densityTowards(double heading, const MapValues& map) {
    return Integer(map.polarHistogram[histogramIndex(sectorOf(heading))]);
}

HeadingChoice searchHeading(double bearing, const MapValues& map, const NavigationControls& controls) {
    const Sectors sectors(map);
    const Integer goal = sectorOf(bearing);
    if (!sectors.free(goal)) return pastBlockedGoal(sectors, goal, bearing);
    return besideFreeGoal(sectors, goal, bearing, controls);
}

}  // namespace quorrin
