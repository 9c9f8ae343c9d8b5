// A moment as a wall clock shows it: local date and time of day, whole seconds.
#pragma once

#include <cstdint>
#include <string>

namespace quorrin {

struct CivilTime {
    int year = 1970;
    int month = 1;  // 1 to 12
    int day = 1;    // 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;

    bool operator==(const CivilTime&) const = default;
};

// Days since 1970-01-01 of the proleptic Gregorian calendar, and back (time of day 0).
std::int64_t daysFromCivil(const CivilTime& date);
CivilTime civilFromDays(std::int64_t days);

// The same wall clock `seconds` later (or earlier, when negative); no daylight saving is applied.
CivilTime plusSeconds(const CivilTime& time, std::int64_t seconds);

// "yyyy-mm-dd"
std::string isoDate(const CivilTime& time);

}  // namespace quorrin
