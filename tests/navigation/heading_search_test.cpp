#include "navigation/heading_search.h"

#include <gtest/gtest.h>

#include "base/program_error.h"
#include "navigation/math/angles.h"

namespace quorrin {
namespace {

constexpr double kGoal = 0.0873;  // 5 degrees, the middle of sector 19
constexpr int kGoalSector = 19;

class HeadingSearch : public ::testing::Test {
  protected:
    // Sectors relative to the goal's.
    void block(std::initializer_list<int> offsets) {
        for (const int offset : offsets) map.binaryHistogram[sector(offset)] = 1;
    }
    void blockAllBut(std::initializer_list<int> offsets) {
        map.binaryHistogram.fill(1);
        for (const int offset : offsets) map.binaryHistogram[sector(offset)] = 0;
    }
    static std::size_t sector(int offset) {
        return static_cast<std::size_t>((kGoalSector + offset + 71) % 36 + 1);
    }
    static double degreesOf(int offset) { return (static_cast<double>(sector(offset)) - 0.5) * 10.0 - 180.0; }
    HeadingChoice search() { return searchHeading(kGoal, map, controls); }
    void expectHeading(const HeadingChoice& choice, int offset) {
        EXPECT_DOUBLE_EQ(choice.displayDeg, degreesOf(offset));
        EXPECT_DOUBLE_EQ(choice.heading, degToRad(degreesOf(offset)));
    }
    Form form{"frmGUI"};
    NavigationControls controls{form};
    MapValues map;
};

TEST(WrapSector, BringsNeighboursRoundTheCircle) {
    EXPECT_EQ(wrapSector(0), 36);
    EXPECT_EQ(wrapSector(1), 1);
    EXPECT_EQ(wrapSector(36), 36);
    EXPECT_EQ(wrapSector(37), 1);
    EXPECT_EQ(wrapSector(73), 1);
    EXPECT_EQ(wrapSector(-35), 1);
}

TEST(WrapSector, KeepsTheRemaindersSignFarBelow) {
    EXPECT_EQ(wrapSector(-36), 0);
    EXPECT_EQ(wrapSector(-40), -4);
}

TEST(SectorOf, RisesWithTheAngleFromMinusPi) {
    EXPECT_EQ(sectorOf(-3.1415926), 1);
    EXPECT_EQ(sectorOf(-1.5707963), 10);
    EXPECT_EQ(sectorOf(0), 19);  // 18.501
    EXPECT_EQ(sectorOf(kGoal), 19);
    EXPECT_EQ(sectorOf(3.1), 36);
    EXPECT_EQ(sectorOf(3.1415926), 1);
}

TEST(SectorOf, EveryTenDegreesIsTheNextOne) {
    for (int sector = 1; sector <= 36; ++sector)
        EXPECT_EQ(sectorOf(degToRad((sector - 0.5) * 10 - 180)), sector);
}

TEST_F(HeadingSearch, AllFreeIsTotallyOpen) {
    const HeadingChoice choice = search();
    EXPECT_STREQ(outcomeWord(choice.outcome), "totallyopen");
    EXPECT_EQ(choice.displayDeg, 380);
    EXPECT_EQ(choice.heading, kGoal);
}

TEST_F(HeadingSearch, FarObstaclesLeaveTheHeading) {
    block({4, -4});
    const HeadingChoice choice = search();
    EXPECT_STREQ(outcomeWord(choice.outcome), "openwithnochange");
    EXPECT_EQ(choice.displayDeg, 380);
    EXPECT_EQ(choice.heading, kGoal);
}

TEST_F(HeadingSearch, ObstaclesAtTwentyDegreesOnBothSidesAimAtTheGapsMiddle) {
    block({2, -2});
    const HeadingChoice choice = search();
    EXPECT_STREQ(outcomeWord(choice.outcome), "openwithchange");
    expectHeading(choice, 0);
}

TEST_F(HeadingSearch, TheGapsMiddleRoundsToEven) {
    controls.txtTh3.setText("4");
    block({4, -1});  // (4 - 1) / 2 = 1.5
    expectHeading(search(), 2);
    map = {};
    block({3, -2});  // 0.5
    expectHeading(search(), 0);
    map = {};
    block({2, -3});  // -0.5
    expectHeading(search(), 0);
}

TEST_F(HeadingSearch, AGapTooNarrowIsStuckWithTheBearing) {
    block({1, -1});
    const HeadingChoice choice = search();
    EXPECT_EQ(choice.outcome, HeadingOutcome::tooNarrow);
    EXPECT_STREQ(outcomeWord(choice.outcome), "stuck");
    EXPECT_EQ(choice.displayDeg, -370);
    EXPECT_EQ(choice.heading, kGoal);
}

TEST_F(HeadingSearch, TheLeastGapItselfIsTooNarrow) {
    block({2, -1});
    EXPECT_EQ(search().outcome, HeadingOutcome::tooNarrow);
    controls.txtTh4.setText("2");
    EXPECT_EQ(search().outcome, HeadingOutcome::openChange);
}

TEST_F(HeadingSearch, AnObstacleOnOneSideShiftsTheHeadingAway) {
    block({1});
    HeadingChoice choice = search();
    EXPECT_STREQ(outcomeWord(choice.outcome), "openwithchange");
    expectHeading(choice, 1 - 3);
    map = {};
    block({-2});
    choice = search();
    expectHeading(choice, -2 + 3);
}

TEST_F(HeadingSearch, EqualDistancesOnBothSidesShiftByTheMinusSide) {
    block({3, -3});  // 6 is not less than twice the clearance
    expectHeading(search(), 0);
    controls.txtTh3.setText("2");
    block({2, -2});
    expectHeading(search(), 0);
}

TEST_F(HeadingSearch, TheEighteenthSectorIsStillSeen) {
    controls.txtTh3.setText("18");
    controls.txtTh4.setText("3");
    block({18});  // the same sector from both sides
    const HeadingChoice choice = search();
    EXPECT_EQ(choice.outcome, HeadingOutcome::openChange);
    expectHeading(choice, 0);
}

TEST_F(HeadingSearch, ABlockedGoalTakesThePositiveSideOfATie) {
    blockAllBut({3, -3});
    const HeadingChoice choice = search();
    EXPECT_STREQ(outcomeWord(choice.outcome), "openfound");
    expectHeading(choice, 3);  // an opening of one sector: Round(0.5) is 0
}

TEST_F(HeadingSearch, ABlockedGoalTakesTheNearerSide) {
    blockAllBut({5, -4});
    expectHeading(search(), -4);
    blockAllBut({3, -4});
    expectHeading(search(), 3);
}

TEST_F(HeadingSearch, ADetourAimsAtTheMiddleOfANarrowOpening) {
    blockAllBut({3, 4, 5});  // width 3: Round(1.5) is 2
    expectHeading(search(), 5);
    blockAllBut({3, 4, 5, 6, 7});  // width 5: Round(2.5) is 2
    expectHeading(search(), 5);
    blockAllBut({-3, -4, -5, -6});
    expectHeading(search(), -5);
}

TEST_F(HeadingSearch, ADetourGoesSixtyDegreesIntoAWideOpening) {
    block({-1, 0, 1});  // 33 free sectors
    expectHeading(search(), 2 + 6);
    map = {};
    block({-1, 0, 1, 2});
    expectHeading(search(), -2 - 6);
}

TEST_F(HeadingSearch, AnOpeningOfTwelveIsStillNarrow) {
    blockAllBut({2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
    expectHeading(search(), 2 + 6);
    blockAllBut({2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
    expectHeading(search(), 2 + 6);  // Round(5.5)
    blockAllBut({2, 3, 4, 5, 6, 7, 8, 9, 10});
    expectHeading(search(), 2 + 4);  // Round(4.5)
}

TEST_F(HeadingSearch, AFreeSectorStraightBehindIsFound) {
    blockAllBut({18});
    expectHeading(search(), 18);
}

TEST_F(HeadingSearch, AllBlockedHasNoOpening) {
    map.binaryHistogram.fill(1);
    const HeadingChoice choice = search();
    EXPECT_EQ(choice.outcome, HeadingOutcome::noOpening);
    EXPECT_STREQ(outcomeWord(choice.outcome), "stuck");
    EXPECT_EQ(choice.displayDeg, -380);
    EXPECT_EQ(choice.heading, kGoal);
}

TEST_F(HeadingSearch, EveryGoalAndEverySingleOpeningIsWithinTheTables) {
    for (int goal = 1; goal <= 36; ++goal) {
        for (int open = 1; open <= 36; ++open) {
            map.binaryHistogram.fill(1);
            map.binaryHistogram[static_cast<std::size_t>(open)] = 0;
            const HeadingChoice choice = searchHeading(degToRad((goal - 0.5) * 10 - 180), map, controls);
            if (goal == open) {
                EXPECT_EQ(choice.outcome, HeadingOutcome::tooNarrow);
            } else {
                EXPECT_EQ(choice.outcome, HeadingOutcome::openFound);
                EXPECT_DOUBLE_EQ(choice.displayDeg, (open - 0.5) * 10 - 180);
            }
        }
    }
}

TEST_F(HeadingSearch, TheBoxesAreReadOnlyWhereNeeded) {
    controls.txtTh3.setText("far");
    controls.txtTh4.setText("wide");
    EXPECT_NO_THROW(search());
    block({2, -2});
    EXPECT_THROW(search(), ProgramError);
    controls.txtTh3.setText("1");
    EXPECT_NO_THROW(search());
    controls.txtTh3.setText("3");
    EXPECT_THROW(search(), ProgramError);
    map.binaryHistogram.fill(1);
    EXPECT_NO_THROW(search());
}

TEST_F(HeadingSearch, ClearancesThatDoNotFitAreErrors) {
    block({2, -2});
    controls.txtTh3.setText("20000");
    EXPECT_THROW(search(), ProgramError);  // twice that
    controls.txtTh3.setText("40000");
    EXPECT_THROW(search(), ProgramError);
}

TEST_F(HeadingSearch, DensityIsThatOfTheHeadingsSector) {
    map.polarHistogram[19] = 55;
    EXPECT_EQ(densityTowards(kGoal, map), 55);
    EXPECT_EQ(densityTowards(-kGoal, map), 0);
}

}  // namespace
}  // namespace quorrin
