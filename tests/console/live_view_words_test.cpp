#include "console/live_view_words.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

namespace quorrin {
namespace {

TEST(LiveViewWords, EveryMarkOfTheLegendHasItsOwnWords) {
    std::set<LegendMark> marks;
    std::set<std::string> words;
    for (const LegendEntry& entry : gridLegend()) {
        marks.insert(entry.mark);
        words.insert(entry.words);
    }
    EXPECT_EQ(marks.size(), gridLegend().size());
    EXPECT_EQ(words.size(), gridLegend().size());
    EXPECT_EQ(words.count(""), 0U);
}

TEST(LiveViewWords, EveryDeedHasItsOwnKey) {
    std::set<std::string> keys;
    for (const DeedWords& deed : gridDeeds()) keys.insert(deed.key);
    EXPECT_EQ(keys.size(), gridDeeds().size());
}

TEST(LiveViewWords, ThePictureIsTold) {
    GridPicture picture;
    picture.robotKnown = true;
    picture.robot = {1.234, -0.5};
    picture.heading_rad = 0.78539815;
    picture.ring[3].blocked = true;
    EXPECT_EQ(gridSpoken(picture, "Open."),
              "Robot at 1.23 m, -0.50 m, heading 45 degrees; 1 of 36 sectors blocked. Open.");
}

TEST(LiveViewWords, AnUnknownPlaceIsToldToo) {
    EXPECT_THAT(gridSpoken({}, "x"), testing::HasSubstr("not known"));
}

}  // namespace
}  // namespace quorrin
