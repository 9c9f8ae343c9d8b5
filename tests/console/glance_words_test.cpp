#include "console/glance_words.h"

#include <gtest/gtest.h>

#include <set>

namespace quorrin {
namespace {

TEST(GlanceWords, GiveEachTileACaptionOfItsOwn) {
    std::set<std::string> captions;
    for (int i = 0; i <= static_cast<int>(GlanceName::stuck); ++i)
        EXPECT_TRUE(captions.insert(glanceCaption(static_cast<GlanceName>(i))).second) << i;
}

}  // namespace
}  // namespace quorrin
