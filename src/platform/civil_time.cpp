#include "platform/civil_time.h"

#include <chrono>
#include <cstdio>

namespace quorrin {

namespace {
constexpr std::int64_t kSecondsADay = 86400;
}

std::int64_t daysFromCivil(const CivilTime& date) {
    const std::chrono::year_month_day day{std::chrono::year{date.year},
                                          std::chrono::month{static_cast<unsigned>(date.month)},
                                          std::chrono::day{static_cast<unsigned>(date.day)}};
    return std::chrono::sys_days{day}.time_since_epoch().count();
}

CivilTime civilFromDays(std::int64_t days) {
    const std::chrono::year_month_day day{std::chrono::sys_days{std::chrono::days{days}}};
    CivilTime result;
    result.year = static_cast<int>(day.year());
    result.month = static_cast<int>(static_cast<unsigned>(day.month()));
    result.day = static_cast<int>(static_cast<unsigned>(day.day()));
    return result;
}

CivilTime plusSeconds(const CivilTime& time, std::int64_t seconds) {
    const std::int64_t total =
        daysFromCivil(time) * kSecondsADay + time.hour * 3600 + time.minute * 60 + time.second + seconds;
    std::int64_t days = total / kSecondsADay;
    std::int64_t rest = total % kSecondsADay;
    if (rest < 0) {
        rest += kSecondsADay;
        --days;
    }
    CivilTime result = civilFromDays(days);
    result.hour = static_cast<int>(rest / 3600);
    result.minute = static_cast<int>(rest / 60 % 60);
    result.second = static_cast<int>(rest % 60);
    return result;
}

std::string isoDate(const CivilTime& time) {
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", time.year, time.month, time.day);
    return text;
}

}  // namespace quorrin
