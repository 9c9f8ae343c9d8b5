#include "imaging/review_position.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(ReviewPosition, GoesForwardAndFromTheLastToTheFirst) {
    EXPECT_EQ(nextReviewPosition(0, 3, false), 1);
    EXPECT_EQ(nextReviewPosition(1, 3, false), 2);
    EXPECT_EQ(nextReviewPosition(2, 3, false), 0);
}

TEST(ReviewPosition, GoesBackAndFromTheFirstToTheLast) {
    EXPECT_EQ(nextReviewPosition(2, 3, true), 1);
    EXPECT_EQ(nextReviewPosition(0, 3, true), 2);
}

TEST(ReviewPosition, StaysAtTheOnlyPicture) {
    EXPECT_EQ(nextReviewPosition(0, 1, false), 0);
    EXPECT_EQ(nextReviewPosition(0, 1, true), 0);
}

TEST(ReviewPosition, HasNowhereToGoWithoutPictures) {
    EXPECT_EQ(nextReviewPosition(0, 0, false), std::nullopt);
    EXPECT_EQ(nextReviewPosition(0, 0, true), std::nullopt);
}

TEST(ReviewPosition, IsToldFromOne) {
    EXPECT_EQ(reviewPositionText(0, 250), "1/250");
    EXPECT_EQ(reviewPositionText(49'999, 50'000), "50000/50000");
    EXPECT_EQ(reviewPositionText(0, 0), "1/0");
}

}  // namespace
}  // namespace quorrin
