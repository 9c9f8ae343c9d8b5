// Whoever writes sessions down is told of what the operator does, before it has its effect.
#include <gmock/gmock.h>

#include "base/controls.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OperatorActs : public testing::Test {
  protected:
    OperatorActs() {
        form.show();
        form.onOperatorAct = [this](const OperatorAct& act) {
            acts.push_back(act.kind);
            lastValue = act.value;
            textThen = box.text();
        };
    }

    using Kind = OperatorAct::Kind;
    Form form{"frmX"};
    TextBox box{form, "txtA", "old"};
    CommandButton button{form, "cmdA"};
    CheckBox check{form, "chkA"};
    Slider slider{form, "sldA", 0, 100, 5};
    Picture picture{form, "picA"};
    Label label{form, "lblA"};
    std::vector<Kind> acts;
    decltype(OperatorAct::value) lastValue;
    std::string textThen;
};

TEST_F(OperatorActs, EachKindIsToldOnceInOrder) {
    button.operatorClick();
    button.operatorPress();
    button.operatorRelease();
    check.operatorSet(true);
    slider.operatorMove(7);
    box.operatorFocus();
    form.operatorActivate();
    form.operatorClose();
    EXPECT_THAT(acts, ElementsAre(Kind::click, Kind::press, Kind::release, Kind::set, Kind::set, Kind::focus,
                                  Kind::activate, Kind::close));
}

TEST_F(OperatorActs, ComeBeforeTheirEffectAndWithTheirValue) {
    box.operatorEdit("new");
    EXPECT_EQ(textThen, "old");
    EXPECT_EQ(std::get<std::string>(lastValue), "new");
    slider.operatorMove(9);
    EXPECT_EQ(std::get<std::int64_t>(lastValue), 9);
    check.operatorSet(true);
    EXPECT_TRUE(std::get<bool>(lastValue));
}

TEST_F(OperatorActs, KeysOfAPictureAndClicksOnALabelAreToldWhereTheFormListens) {
    picture.operatorKeyDown(38);
    picture.operatorKeyUp(38);
    label.operatorClick();
    EXPECT_THAT(acts, IsEmpty());
    int effects = 0;
    picture.onKeyDown = picture.onKeyUp = [&effects](int key) { effects += key; };
    label.onClick = [&effects] { ++effects; };
    picture.operatorKeyDown(30);
    picture.operatorKeyUp(40);
    EXPECT_EQ(std::get<std::int64_t>(lastValue), 40);
    label.operatorClick();
    EXPECT_THAT(acts, ElementsAre(Kind::keyDown, Kind::keyUp, Kind::click));
    EXPECT_EQ(effects, 71);
    form.hide();
    picture.operatorKeyDown(30);
    picture.operatorKeyUp(40);
    label.operatorClick();
    EXPECT_EQ(effects, 71);
}

TEST_F(OperatorActs, WhatHasNoEffectIsNotTold) {
    button.setEnabled(false);
    button.operatorClick();
    box.operatorKey(8);  // nobody listens to keys here
    form.hide();
    box.operatorEdit("x");
    form.operatorClose();
    EXPECT_THAT(acts, IsEmpty());
}

TEST_F(OperatorActs, WhatTheProgramDoesIsNotTold) {
    box.setText("x");
    button.click();
    check.setChecked(true);
    form.moveFocus(box);
    form.close();
    EXPECT_THAT(acts, IsEmpty());
    EXPECT_FALSE(form.shown());
}

}  // namespace
}  // namespace quorrin
