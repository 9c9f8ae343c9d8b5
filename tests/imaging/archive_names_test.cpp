#include "imaging/archive_names.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "base/program_error.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

CivilTime at(int hour, int minute, int second) {
    return {2026, 11, 20, hour, minute, second};
}

CivilTime atSecond(int second) {
    return at(second / 3600, second / 60 % 60, second % 60);
}

std::string clockText(const CivilTime& time) {
    char text[40];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", time.hour, time.minute, time.second);
    return text;
}

TEST(ArchiveNames, ADayIsCountedFromThe30thOfDecember1899) {
    EXPECT_EQ(serialDay({1899, 12, 30}), 0);
    EXPECT_EQ(serialDay({1900, 1, 1}), 2);
    EXPECT_EQ(serialDay({1970, 1, 1}), 25569);
    EXPECT_EQ(serialDay({2026, 11, 20, 23, 59, 59}), 46346);
}

TEST(ArchiveNames, AFractionHasAtMost15DigitsAndNoTrailingZeros) {
    EXPECT_EQ(dayFractionText(dayFraction(at(0, 0, 0))), "0");
    EXPECT_EQ(dayFractionText(dayFraction(at(12, 0, 0))), "0.5");
    EXPECT_EQ(dayFractionText(dayFraction(at(9, 0, 0))), "0.375");
    EXPECT_EQ(dayFractionText(dayFraction(at(9, 0, 1))), "0.375011574074074");
    EXPECT_EQ(dayFractionText(dayFraction(at(23, 59, 59))), "0.999988425925926");
    EXPECT_EQ(dayFractionText(1), "1");
}

// Left to a general format these would get an exponent.
TEST(ArchiveNames, ASmallFractionStaysInFixedNotationWithAllItsDigits) {
    EXPECT_EQ(dayFractionText(dayFraction(at(0, 0, 1))), "0.0000115740740740741");
    EXPECT_EQ(dayFractionText(dayFraction(at(0, 0, 8))), "0.0000925925925925926");
    EXPECT_EQ(dayFractionText(dayFraction(at(0, 0, 27))), "0.0003125");
}

TEST(ArchiveNames, TheDigitCountsToFourAndBeginsAgainAtZero) {
    std::vector<int> digits;
    int digit = 0;
    for (int i = 0; i < 7; ++i) digits.push_back(digit = nextCaptureSequence(digit));
    EXPECT_THAT(digits, ElementsAre(1, 2, 3, 4, 0, 1, 2));
}

TEST(ArchiveNames, AFileIsNamedByDayTimeAndDigit) {
    EXPECT_EQ(archivedPictureName(at(9, 0, 1), 3), "46346_0.375011574074074_3.jpg");
    EXPECT_EQ(archivedPictureName(at(0, 0, 0), 0), "46346_0_0.jpg");
}

TEST(ArchiveNames, EverySecondOfADayComesBackFromItsName) {
    for (int second = 0; second < 86'400; ++second) {
        const CivilTime time = atSecond(second);
        ASSERT_EQ(pictureTimeText(archivedPictureName(time, second % 5)), clockText(time));
    }
}

TEST(ArchiveNames, AnExponentIsReadToo) {
    EXPECT_EQ(pictureTimeText("46346_1.15740740740741E-05_1.jpg"), "00:00:01");
    EXPECT_EQ(pictureTimeText("46346_1.15740740740741e-05_1.jpg"), "00:00:01");
}

TEST(ArchiveNames, WhatIsBetweenTheFirstAndTheLastUnderscoreIsTheTime) {
    EXPECT_EQ(pictureTimeText("x_0.25_.jpg"), "06:00:00");
    EXPECT_EQ(pictureTimeText("_ 0.75 _more.jpg.old"), "18:00:00");
    EXPECT_THROW(pictureTimeText("46346_0.5_1_2.jpg"), ProgramError);
}

TEST(ArchiveNames, ATimeIsRoundedToTheSecondAndADayMoreMakesNoDifference) {
    EXPECT_EQ(pictureTimeText("a_0.99999999_1.jpg"), "00:00:00");
    EXPECT_EQ(pictureTimeText("a_1.5_1.jpg"), "12:00:00");
    EXPECT_EQ(pictureTimeText("a_46346.25_1.jpg"), "06:00:00");
    EXPECT_EQ(pictureTimeText("a_-1.25_1.jpg"), "06:00:00");
}

TEST(ArchiveNames, ANameWithoutTheEndingHasTheEmptyTime) {
    EXPECT_EQ(pictureTimeText(""), "");
    EXPECT_EQ(pictureTimeText("46346_0.5_1jpg"), "");
    EXPECT_EQ(pictureTimeText("46346_0.5_1.JPG"), "");
}

TEST(ArchiveNames, ANameWithoutATimeIsAnError) {
    for (const char* name : {"holiday.jpg", "a_b.jpg", "a__1.jpg", "a_noon_1.jpg", "a_1e300_1.jpg",
                             "a_0,5_1.jpg", "a_nan_1.jpg", "a_3000000_1.jpg"})
        EXPECT_THROW(pictureTimeText(name), ProgramError) << name;
}

TEST(ArchiveNames, APictureEndsInJpgHoweverItIsWritten) {
    for (const char* name : {"a.jpg", "a.JPG", "a.Jpg", "ajpg", "jpg"})
        EXPECT_TRUE(isArchivedPicture(name)) << name;
    for (const char* name : {"", "pg", "a.jpeg", "a.jpg.bak", "a.bmp", "a.jp9", "a.*pg"})
        EXPECT_FALSE(isArchivedPicture(name)) << name;
}

TEST(ArchiveNames, TheOrderOfADaysNamesIsThatOfTheirTimes) {
    std::string before = archivedPictureName(atSecond(0), 0);
    for (int second = 1; second < 86'400; ++second) {
        const std::string name = archivedPictureName(atSecond(second), 0);
        ASSERT_TRUE(comesBefore(before, name)) << before << " " << name;
        ASSERT_FALSE(comesBefore(name, before));
        before = name;
    }
    EXPECT_TRUE(comesBefore(archivedPictureName(atSecond(5), 0), archivedPictureName(atSecond(5), 1)));
    EXPECT_FALSE(comesBefore(before, before));
}

TEST(ArchiveNames, OtherNamesStandByTheirLetters) {
    std::vector<std::string> names = {"b", "a.", "a_", "a", "\xC3\xA4", "1"};
    std::sort(names.begin(), names.end(), comesBefore);
    EXPECT_THAT(names, ElementsAre("1", "a", "a_", "a.", "b", "\xC3\xA4"));
}

TEST(ArchiveNames, TodayAndThe365DaysBeforeItAreLookedFor) {
    std::vector<std::string> asked;
    archivedDays({2024, 12, 31}, [&](const std::string& day) {
        asked.push_back(day);
        return false;
    });
    ASSERT_EQ(asked.size(), 366U);
    EXPECT_EQ(asked[0], "2024-12-31");
    EXPECT_EQ(asked[1], "2024-12-30");
    EXPECT_THAT(asked, testing::Contains("2024-02-29"));
    EXPECT_EQ(asked[365], "2024-01-01");
}

TEST(ArchiveNames, OnlyDaysWithAFolderAreListedNewestFirst) {
    const std::set<std::string> folders = {"2025-11-19", "2025-11-20", "2026-03-01", "2026-11-20",
                                           "2026-11-21"};
    const auto days =
        archivedDays(at(9, 0, 0), [&](const std::string& day) { return folders.count(day) != 0; });
    EXPECT_THAT(days, ElementsAre("2026-11-20", "2026-03-01", "2025-11-20"));
}

TEST(ArchiveNames, AChosenDayIsShownWithAnEnglishMonth) {
    EXPECT_EQ(archiveDateText("2026-11-20"), "Nov 20, 2026");
    EXPECT_EQ(archiveDateText("2024-02-29"), "Feb 29, 2024");
    EXPECT_EQ(archiveDateText("2027-01-01"), "Jan 01, 2027");
}

TEST(ArchiveNames, ATextThatIsNoDayIsAnError) {
    for (const char* text : {"", "today", "2026-13-01", "2026-00-10", "2026-02-29", "2026-11-31",
                             "2026/11/20", "2026-11-200", "-026-11-20", "2026-1 -20"})
        EXPECT_THROW(archiveDateText(text), ProgramError) << text;
}

}  // namespace
}  // namespace quorrin
