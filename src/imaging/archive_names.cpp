#include "imaging/archive_names.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/number_text.h"
#include "base/program_error.h"
#include "base/rounding.h"

namespace quorrin {

namespace {

constexpr std::int64_t kSerialOf1970 = 25569;
constexpr int kSecondsADay = 86'400;
constexpr int kSignificantDigits = 15;
// The days that a date can be: from the year 100 to the end of 9999.
constexpr double kFirstDay = -657'434;
constexpr double kDayAfterTheLast = 2'958'466;

std::string twoDigits(int value) {
    return {static_cast<char>('0' + value / 10), static_cast<char>('0' + value % 10)};
}

// The bytes of a name in the order of comesBefore().
int rankOf(char letter) {
    return letter == '_' ? -1 : static_cast<unsigned char>(letter);
}

// How many characters two names begin with in common. A day's names differ near their ends, and a day of
// 50,000 is sorted while the operator waits, so they are passed over eight at a time.
std::size_t commonLength(std::string_view name, std::string_view other) {
    const std::size_t end = std::min(name.size(), other.size());
    std::size_t at = 0;
    while (at + 8 <= end && std::memcmp(name.data() + at, other.data() + at, 8) == 0) at += 8;
    while (at < end && name[at] == other[at]) ++at;
    return at;
}

std::string_view betweenUnderscores(std::string_view name) {
    const std::size_t first = name.find('_');
    const std::size_t last = name.rfind('_');
    if (first == last) throw ProgramError("no time in the name \"" + std::string(name) + "\"");
    return name.substr(first + 1, last - first - 1);
}

}  // namespace

std::string archiveFolder(const std::string& applicationFolder) {
    return applicationFolder + "/catchdata";
}

std::string archiveDayFolder(const std::string& applicationFolder, const std::string& day) {
    return archiveFolder(applicationFolder) + "/" + day;
}

std::int64_t serialDay(const CivilTime& time) {
    return daysFromCivil(time) + kSerialOf1970;
}

double dayFraction(const CivilTime& time) {
    return (time.hour * 3600 + time.minute * 60 + time.second) / static_cast<double>(kSecondsADay);
}

std::string dayFractionText(double fraction) {
    // The exponent tells how many zeros stand before the first digit that counts.
    char scientific[40];
    std::snprintf(scientific, sizeof scientific, "%.*e", kSignificantDigits - 1, fraction);
    const int exponent = std::atoi(std::string_view(scientific).substr(kSignificantDigits + 2).data());
    std::string text = formatFixed(fraction, std::max(0, kSignificantDigits - 1 - exponent));
    if (fraction == 0) return "0";
    if (text.find('.') == std::string::npos) return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
    return text;
}

int nextCaptureSequence(int captureSequence) {
    return captureSequence < 4 ? captureSequence + 1 : 0;
}

std::string archivedPictureName(const CivilTime& time, int captureSequence) {
    return std::to_string(serialDay(time)) + "_" + dayFractionText(dayFraction(time)) + "_" +
           std::to_string(captureSequence) + ".jpg";
}

std::vector<std::string> archivedDays(const CivilTime& today,
                                      const std::function<bool(const std::string& day)>& hasFolder) {
    constexpr int kDaysBack = 365;
    std::vector<std::string> days;
    const std::int64_t newest = daysFromCivil(today);
    for (int back = 0; back <= kDaysBack; ++back) {
        std::string day = isoDate(civilFromDays(newest - back));
        if (hasFolder(day)) days.push_back(std::move(day));
    }
    return days;
}

bool isArchivedPicture(std::string_view name) {
    constexpr std::string_view kEnd = "jpg";
    if (name.size() < kEnd.size()) return false;
    return std::equal(kEnd.begin(), kEnd.end(), name.end() - kEnd.size(), [](char wanted, char letter) {
        return letter == wanted || letter == wanted - 'a' + 'A';
    });
}

bool comesBefore(std::string_view name, std::string_view other) {
    const std::size_t at = commonLength(name, other);
    if (at == name.size() || at == other.size()) return name.size() < other.size();
    return rankOf(name[at]) < rankOf(other[at]);
}

std::string pictureTimeText(std::string_view name) {
    if (name.find(".jpg") == std::string_view::npos) return "";
    const double time = toDouble(betweenUnderscores(name));
    if (!(time >= kFirstDay && time < kDayAfterTheLast))
        throw ProgramError("no time of day in the name \"" + std::string(name) + "\"");
    double day = 0;
    const double fraction = std::modf(std::fabs(time), &day);
    const int seconds = static_cast<int>(roundHalfEven(fraction * kSecondsADay)) % kSecondsADay;
    return twoDigits(seconds / 3600) + ":" + twoDigits(seconds / 60 % 60) + ":" + twoDigits(seconds % 60);
}

std::string archiveDateText(std::string_view day) {
    static constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                            "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const auto number = [day](std::size_t at, std::size_t length) {
        return day.size() == 10 ? parseWhole(day.substr(at, length)).value_or(-1) : -1;
    };
    const CivilTime date{static_cast<int>(number(0, 4)), static_cast<int>(number(5, 2)),
                         static_cast<int>(number(8, 2))};
    const bool shaped = date.year >= 100 && date.month >= 1 && date.month <= 12 && date.day >= 1;
    // A day that there is comes back from the calendar as it was.
    if (!shaped || isoDate(civilFromDays(daysFromCivil(date))) != day)
        throw ProgramError("\"" + std::string(day) + "\" is no date");
    return std::string(kMonths[static_cast<std::size_t>(date.month - 1)]) + " " + twoDigits(date.day) + ", " +
           std::string(day.substr(0, 4));
}

}  // namespace quorrin
