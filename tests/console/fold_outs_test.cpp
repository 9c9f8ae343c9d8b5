#include "console/fold_outs.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

struct FoldOuts : testing::Test {
    Form form{"frmGUI"};
    FoldOutControls controls{form};

    void SetUp() override {
        bindFoldOuts(controls);
        hideFoldOuts(controls);
        form.show();
    }
};

TEST_F(FoldOuts, BothPanelsStartHidden) {
    EXPECT_FALSE(controls.fraSetting.visible());
    EXPECT_FALSE(controls.fraSensor.visible());
}

TEST_F(FoldOuts, BothPanelsStartAtTheirPlaces) {
    EXPECT_EQ(controls.fraSetting.area(), kSettingPlace);
    EXPECT_EQ(controls.fraSensor.area(), kSensorPlace);
}

TEST_F(FoldOuts, APanelKeepsTheSizeThatItsViewTold) {
    controls.fraSetting.setArea({0, 0, 3000, 2000});
    hideFoldOuts(controls);
    EXPECT_EQ(controls.fraSetting.area(), (Area{kSettingPlace.left, kSettingPlace.top, 3000, 2000}));
}

TEST_F(FoldOuts, AnyOtherCaptionHidesThePanel) {
    controls.fraSetting.setVisible(true);
    controls.cmdExpandSetting.setCaption("Something else");
    controls.cmdExpandSetting.operatorClick();
    EXPECT_FALSE(controls.fraSetting.visible());
    EXPECT_EQ(controls.cmdExpandSetting.caption(), "Open Setting");
}

TEST_F(FoldOuts, CloseSettingOnAClosedPanelLeavesItReadyToOpen) {
    controls.cmdCloseSetting.operatorClick();
    EXPECT_EQ(controls.cmdExpandSetting.caption(), "Open Setting");
    EXPECT_FALSE(controls.fraSetting.visible());
}

TEST_F(FoldOuts, OpenSettingShowsThePanel) {
    controls.cmdExpandSetting.operatorClick();
    EXPECT_TRUE(controls.fraSetting.visible());
    EXPECT_EQ(controls.cmdExpandSetting.caption(), "Close Setting");
}

TEST_F(FoldOuts, OpenSettingPressedTwiceHidesItAgain) {
    controls.cmdExpandSetting.operatorClick();
    controls.cmdExpandSetting.operatorClick();
    EXPECT_FALSE(controls.fraSetting.visible());
    EXPECT_EQ(controls.cmdExpandSetting.caption(), "Open Setting");
}

TEST_F(FoldOuts, CloseSettingLeavesThePanelReadyToOpenWithOnePress) {
    controls.cmdExpandSetting.operatorClick();
    controls.cmdCloseSetting.operatorClick();
    EXPECT_FALSE(controls.fraSetting.visible());
    controls.cmdExpandSetting.operatorClick();
    EXPECT_TRUE(controls.fraSetting.visible());
}

TEST_F(FoldOuts, CloseSensorHidesTheEngineeringPanel) {
    controls.fraSensor.setVisible(true);
    controls.cmdCloseSensor.operatorClick();
    EXPECT_FALSE(controls.fraSensor.visible());
}

}  // namespace
}  // namespace quorrin
