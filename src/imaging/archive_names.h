// The names of the photo archive: one folder a day, one file a picture. Pure.
//
//   2026-11-20/46346_0.375011574074074_1.jpg
//
// A file is named by the day as a whole number (days since 30 December 1899), the time of day as a fraction
// of a day, and a digit that keeps apart two pictures of the same second. The fraction is written in fixed
// notation with "." and up to 15 significant digits, without trailing zeros; the reader takes an exponent as
// well. The clock tells whole seconds.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/civil_time.h"

namespace quorrin {

// "catchdata" in the application folder, and a day's folder ("yyyy-mm-dd") in it.
std::string archiveFolder(const std::string& applicationFolder);
std::string archiveDayFolder(const std::string& applicationFolder, const std::string& day);

std::int64_t serialDay(const CivilTime& time);
// 0 at midnight, 0.5 at noon.
double dayFraction(const CivilTime& time);
// For a fraction of 0 to 1.
std::string dayFractionText(double fraction);

// The digit counts 1, 2, 3, 4, 0, 1, ... and is 0 before the first picture.
int nextCaptureSequence(int captureSequence);
std::string archivedPictureName(const CivilTime& time, int captureSequence);

// "yyyy-mm-dd" of the days among today and the 365 before it that `hasFolder` knows, newest first.
std::vector<std::string> archivedDays(const CivilTime& today,
                                      const std::function<bool(const std::string& day)>& hasFolder);

// Whether a file of a day's folder is one of its pictures: it ends in "jpg" in capitals or not, with a dot or
// without.
bool isArchivedPicture(std::string_view name);
// By name, with "_" before every other character: so a fraction that ends earlier comes first, and the order
// is that of the pictures' times, but for the digit.
bool comesBefore(std::string_view name, std::string_view other);

// When a picture was taken, as "HH:mm:ss": what stands between the first and the last "_" of its name, read
// as a fraction of a day and rounded to a second. Empty for a name without ".jpg"; ProgramError where no
// fraction stands there.
std::string pictureTimeText(std::string_view name);
// "Nov 20, 2026" for "2026-11-20"; ProgramError for a text that is no date.
std::string archiveDateText(std::string_view day);

}  // namespace quorrin
