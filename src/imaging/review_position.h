// Where the review of a day's pictures stands and goes. Pure.
//
// Positions count from 0. The review is an endless loop in both directions.
#pragma once

#include <optional>
#include <string>

namespace quorrin {

// The position after `playing` of `total` pictures; empty where there is none to go to, which is so for a day
// without pictures only.
std::optional<double> nextReviewPosition(double playing, double total, bool back);

// "1/250" for the first of 250.
std::string reviewPositionText(double playing, double total);

}  // namespace quorrin
