#include "platform/civil_time.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(CivilTime, CountsDaysFromTheBeginningOf1970) {
    EXPECT_EQ(daysFromCivil({1970, 1, 1, 0, 0, 0}), 0);
    EXPECT_EQ(daysFromCivil({1970, 1, 2, 23, 59, 59}), 1);
    EXPECT_EQ(daysFromCivil({1969, 12, 31, 0, 0, 0}), -1);
    EXPECT_EQ(daysFromCivil({2000, 3, 1, 0, 0, 0}), 11017);
}

TEST(CivilTime, KnowsLeapYears) {
    EXPECT_EQ(daysFromCivil({2024, 3, 1, 0, 0, 0}) - daysFromCivil({2024, 2, 28, 0, 0, 0}), 2);
    EXPECT_EQ(daysFromCivil({2026, 3, 1, 0, 0, 0}) - daysFromCivil({2026, 2, 28, 0, 0, 0}), 1);
    EXPECT_EQ(daysFromCivil({2000, 3, 1, 0, 0, 0}) - daysFromCivil({2000, 2, 28, 0, 0, 0}), 2);
    EXPECT_EQ(daysFromCivil({2100, 3, 1, 0, 0, 0}) - daysFromCivil({2100, 2, 28, 0, 0, 0}), 1);
}

TEST(CivilTime, FindsTheDateOfEveryDayForFourCenturies) {
    CivilTime previous = civilFromDays(-1);
    for (std::int64_t day = 0; day < 146'097; ++day) {
        const CivilTime date = civilFromDays(day);
        ASSERT_EQ(daysFromCivil(date), day);
        const bool sameMonth =
            date.year == previous.year && date.month == previous.month && date.day == previous.day + 1;
        ASSERT_TRUE(sameMonth || date.day == 1) << isoDate(date);
        previous = date;
    }
}

TEST(CivilTime, CarriesSecondsOverMidnightMonthAndYear) {
    EXPECT_EQ(plusSeconds({2026, 11, 20, 9, 0, 0}, 1), (CivilTime{2026, 11, 20, 9, 0, 1}));
    EXPECT_EQ(plusSeconds({2026, 12, 31, 23, 59, 59}, 1), (CivilTime{2027, 1, 1, 0, 0, 0}));
    EXPECT_EQ(plusSeconds({2024, 2, 28, 23, 59, 59}, 1), (CivilTime{2024, 2, 29, 0, 0, 0}));
    EXPECT_EQ(plusSeconds({2026, 2, 28, 23, 59, 59}, 1), (CivilTime{2026, 3, 1, 0, 0, 0}));
    EXPECT_EQ(plusSeconds({2026, 11, 20, 9, 0, 0}, 86'400 * 10), (CivilTime{2026, 11, 30, 9, 0, 0}));
}

TEST(CivilTime, GoesBackByNegativeSeconds) {
    EXPECT_EQ(plusSeconds({2027, 1, 1, 0, 0, 0}, -1), (CivilTime{2026, 12, 31, 23, 59, 59}));
    EXPECT_EQ(plusSeconds({1970, 1, 1, 0, 0, 0}, -1), (CivilTime{1969, 12, 31, 23, 59, 59}));
    EXPECT_EQ(plusSeconds({2024, 3, 1, 12, 0, 0}, -86'400), (CivilTime{2024, 2, 29, 12, 0, 0}));
}

TEST(CivilTime, PrintsTheDateWithLeadingZeros) {
    EXPECT_EQ(isoDate({2026, 1, 2, 3, 4, 5}), "2026-01-02");
    EXPECT_EQ(isoDate({812, 11, 20, 0, 0, 0}), "0812-11-20");
}

}  // namespace
}  // namespace quorrin
