// What forms store of the skinned button and of the caption label, read at creation and written at save.
#include <gtest/gtest.h>

#include "console/command_button_properties.h"
#include "console/shadow_label_model.h"

namespace quorrin {
namespace {

TEST(StoredCommandButton, AFreshOneHasItsDefaults) {
    const CommandButtonProperties fresh = readCommandButton(PropertyBag());
    EXPECT_EQ(fresh.caption, "XpButton1");
    EXPECT_TRUE(fresh.enabled);
    EXPECT_TRUE(fresh.font.ambient());
    EXPECT_EQ(fresh.fontColor, 0);
    EXPECT_EQ(fresh.buttonLook, 0);
    EXPECT_EQ(fresh.icon, 0);
    EXPECT_EQ(fresh.iconAlign, 0);
}

TEST(StoredCommandButton, EveryPropertyComesBackFromTheBag) {
    const CommandButtonProperties written{"Talk", false, {"Inter", 12, true, true}, rgb(1, 2, 3), 5, 7, 2};
    PropertyBag bag;
    writeCommandButton(bag, written);
    const CommandButtonProperties read = readCommandButton(bag);
    EXPECT_EQ(read.caption, "Talk");
    EXPECT_FALSE(read.enabled);
    EXPECT_EQ(read.font, written.font);
    EXPECT_EQ(read.fontColor, rgb(1, 2, 3));
    EXPECT_EQ(read.buttonLook, 5);
    EXPECT_EQ(read.icon, 7);
    EXPECT_EQ(read.iconAlign, 2);
}

TEST(StoredCommandButton, ItIsStoredUnderItsPropertiesNames) {
    PropertyBag bag;
    writeCommandButton(bag, {"Talk", false, {"Inter", 12, true, true}, rgb(1, 2, 3), 5, 7, 2});
    for (const char* name : {"Caption", "Enabled", "Font", "FontColor", "ButtonLook", "Icon", "IconAlign"})
        EXPECT_TRUE(bag.has(name)) << name;
    EXPECT_EQ(bag.size(), 7U);
}

TEST(StoredCommandButton, WhatHasItsDefaultIsNotStored) {
    PropertyBag bag;
    writeCommandButton(bag, {"Talk", false, {}, 0, 5, 0, 0});
    writeCommandButton(bag, CommandButtonProperties());
    EXPECT_EQ(bag.size(), 0U);
}

TEST(StoredShadowLabel, AFreshOneHasItsNameAsCaptionAndTheSystemsColours) {
    const ShadowLabelProperties fresh = readShadowLabel(PropertyBag(), "lblRobotX");
    EXPECT_EQ(fresh.caption, "lblRobotX");
    EXPECT_EQ(fresh.alignment, kAlignLeft);
    EXPECT_FALSE(fresh.autosize);
    EXPECT_EQ(fresh.foreColor, kButtonText);
    EXPECT_EQ(fresh.backColor, kButtonFace);
    EXPECT_EQ(fresh.shadowColor, kButtonShadow);
    EXPECT_TRUE(fresh.wordWrap);
    EXPECT_TRUE(fresh.font.ambient());
    EXPECT_TRUE(fresh.enabled);
}

TEST(StoredShadowLabel, EveryPropertyComesBackFromTheBagUnderItsName) {
    ShadowLabelProperties written;
    written.caption = "Robot X";
    written.alignment = kAlignCentre;
    written.autosize = true;
    written.foreColor = rgb(1, 2, 3);
    written.backColor = rgb(4, 5, 6);
    written.shadowColor = rgb(7, 8, 9);
    written.wordWrap = false;
    written.font = {"Inter", 9, false, true};
    written.enabled = false;
    PropertyBag bag;
    writeShadowLabel(bag, written, "lblRobotX");
    for (const char* name : {"Caption", "Alignment", "Autosize", "ForeColor", "BackColor", "ShadowColor",
                             "WordWrap", "Font", "Enabled"})
        EXPECT_TRUE(bag.has(name)) << name;
    const ShadowLabelProperties read = readShadowLabel(bag, "lblRobotX");
    EXPECT_EQ(read.caption, "Robot X");
    EXPECT_EQ(read.alignment, kAlignCentre);
    EXPECT_TRUE(read.autosize);
    EXPECT_EQ(read.foreColor, rgb(1, 2, 3));
    EXPECT_EQ(read.backColor, rgb(4, 5, 6));
    EXPECT_EQ(read.shadowColor, rgb(7, 8, 9));
    EXPECT_FALSE(read.wordWrap);
    EXPECT_EQ(read.font, written.font);
    EXPECT_FALSE(read.enabled);
}

TEST(PropertyBag, AValueOfAnotherKindReadsAsTheDefault) {
    PropertyBag bag;
    bag.write("Caption", true, false);
    EXPECT_EQ(bag.read("Caption", std::string("XpButton1")), "XpButton1");
}

}  // namespace
}  // namespace quorrin
