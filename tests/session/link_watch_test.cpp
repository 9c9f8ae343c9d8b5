#include "session/link_watch.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

struct LinkWatch : testing::Test {
    Form form{"frmGUI"};
    Label lblCom{form, "lblCom"};
    LinkValues link;
};

TEST_F(LinkWatch, ALinkThatWasNeverUpIsNotCounted) {
    for (int i = 0; i < 500; ++i) EXPECT_FALSE(countSilence(link, lblCom));
    EXPECT_EQ(link.motSilentTicks, 0);
    EXPECT_EQ(link.tiSilentTicks, 0);
}

TEST_F(LinkWatch, TheMotionLinkMayBeSilentFor200Ticks) {
    link.motLinkUp = true;
    for (int i = 0; i < 200; ++i) EXPECT_FALSE(countSilence(link, lblCom));
    EXPECT_TRUE(countSilence(link, lblCom));
}

TEST_F(LinkWatch, TheMultimediaLinkMayBeSilentFor200Ticks) {
    link.tiLinkUp = true;
    link.tiSilentTicks = 199;
    EXPECT_FALSE(countSilence(link, lblCom));
    EXPECT_TRUE(countSilence(link, lblCom));
}

TEST_F(LinkWatch, TheMultimediaCountIsShown) {
    link.tiLinkUp = true;
    link.tiSilentTicks = 41;
    countSilence(link, lblCom);
    EXPECT_EQ(lblCom.caption(), "42");
}

}  // namespace
}  // namespace quorrin
