#include "imaging/review_position.h"

#include "base/number_text.h"

namespace quorrin {

std::optional<double> nextReviewPosition(double playing, double total, bool back) {
    if (total - 1 < playing) return std::nullopt;
    if (back) return playing <= 0 ? total - 1 : playing - 1;
    return playing == total - 1 ? 0 : playing + 1;
}

std::string reviewPositionText(double playing, double total) {
    return formatShortest(playing + 1) + "/" + formatShortest(total);
}

}  // namespace quorrin
