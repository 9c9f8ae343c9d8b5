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
