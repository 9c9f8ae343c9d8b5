#include "base/controls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/program_error.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

class Controls : public ::testing::Test {
  protected:
    Controls() { form.show(); }
    std::function<void()> counting() {
        return [this] { ++changes; };
    }
    Form form{"frmTest"};
    int changes = 0;
    int looks = 0;
};

TEST_F(Controls, RunTheirChangeEventInsideTheWriteAndOnlyWhenTheValueDiffers) {
    TextBox box(form, "box", "a");
    std::string seen;
    box.onChange = [&] {
        seen = box.text();
        ++changes;
    };
    box.setText("a");
    EXPECT_EQ(changes, 0);
    box.setText("b");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(seen, "b");
}

TEST_F(Controls, TellTheViewBeforeTheFormsLogic) {
    TextBox box(form, "box");
    std::vector<std::string> order;
    box.onLook = [&] { order.push_back("view"); };
    box.onChange = [&] { order.push_back("logic"); };
    box.setText("x");
    EXPECT_EQ(order, (std::vector<std::string>{"view", "logic"}));
}

TEST_F(Controls, LetAChangeHandlerWriteItsOwnBox) {
    TextBox box(form, "box");
    box.onChange = [&] {
        ++changes;
        box.setText("settled");
    };
    box.setText("x");
    EXPECT_EQ(box.text(), "settled");
    EXPECT_EQ(changes, 2);
}

TEST_F(Controls, TellTheViewOnlyWhatChanges) {
    CommandButton key(form, "key", "Go");
    key.onLook = [this] { ++looks; };
    key.setCaption("Go");
    key.setEnabled(true);
    key.setVisible(true);
    key.setPicture(0);
    EXPECT_EQ(looks, 0);
    key.setCaption("Stop");
    key.setEnabled(false);
    key.setVisible(false);
    key.setPicture(3);
    EXPECT_EQ(looks, 4);
    EXPECT_EQ(key.picture(), 3);
}

TEST_F(Controls, IgnoreTheOperatorWhileDisabledOrOnAHiddenForm) {
    TextBox box(form, "box", "old");
    CommandButton key(form, "key");
    CheckBox check(form, "check");
    OptionButton option(form, "option");
    Slider slider(form, "slider", 0, 10, 5);
    ComboBox combo(form, "combo");
    combo.addItem("one");
    key.onClick = key.onMouseDown = counting();
    box.onKeyPress = [this](int) { ++changes; };
    box.onChange = check.onChange = option.onChange = slider.onChange = combo.onChange = counting();
    const auto operate = [&] {
        box.operatorEdit("new");
        box.operatorKey(8);
        box.operatorFocus();
        key.operatorClick();
        key.operatorPress();
        check.operatorSet(true);
        option.operatorChoose();
        slider.operatorMove(7);
        combo.operatorChoose("one");
    };
    for (Control* control : form.controls()) control->setEnabled(false);
    operate();
    for (Control* control : form.controls()) control->setEnabled(true);
    form.hide();
    operate();
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(box.text(), "old");
    EXPECT_EQ(form.focused(), nullptr);
    form.show();
    operate();
    EXPECT_EQ(changes, 8);
    EXPECT_EQ(form.focused(), &box);
}

TEST_F(Controls, ObeyTheProgramWhateverTheirState) {
    TextBox box(form, "box");
    CommandButton key(form, "key");
    key.onClick = counting();
    box.setEnabled(false);
    key.setEnabled(false);
    form.hide();
    box.setText("written");
    key.click();
    EXPECT_EQ(box.text(), "written");
    EXPECT_EQ(changes, 1);
}

TEST_F(Controls, StayUsableWhenTheyAreOnlyHidden) {
    CommandButton key(form, "key");
    key.setVisible(false);
    EXPECT_TRUE(key.usable());
}

TEST_F(Controls, ClickWithoutAHandlerDoesNothing) {
    CommandButton key(form, "key");
    EXPECT_NO_THROW(key.operatorClick());
    EXPECT_NO_THROW(key.operatorPress());
    EXPECT_NO_THROW(key.operatorRelease());
}

TEST_F(Controls, HearOfTheReleaseOfAButtonThatWasDisabledMeanwhile) {
    CommandButton key(form, "key");
    key.onMouseUp = counting();
    key.operatorPress();
    key.setEnabled(false);
    key.operatorRelease();
    EXPECT_EQ(changes, 1);
    key.operatorRelease();
    EXPECT_EQ(changes, 1);
}

TEST_F(Controls, SayWhichTextsABoxAccepts) {
    const TextBox any(form, "any");
    const TextBox number(form, "number", "", Accepts::number);
    const TextBox whole(form, "whole", "", Accepts::integer);
    for (const char* text : {"", "x", "1.5", "40000"}) EXPECT_TRUE(any.allows(text)) << text;
    for (const char* text : {"1.5", "-3", "40000", " 7 "}) EXPECT_TRUE(number.allows(text)) << text;
    for (const char* text : {"", "x", "1,5", "1.5V"}) EXPECT_FALSE(number.allows(text)) << text;
    for (const char* text : {"-32768", "32767", " 7 "}) EXPECT_TRUE(whole.allows(text)) << text;
    for (const char* text : {"", "x", "1.5", "32768", "-32769"}) EXPECT_FALSE(whole.allows(text)) << text;
}

TEST_F(Controls, TakeFromAScriptWhatAWindowWouldNotLetBeFinished) {
    TextBox whole(form, "whole", "1", Accepts::integer);
    whole.operatorEdit("not a number");
    EXPECT_EQ(whole.text(), "not a number");
}

TEST_F(Controls, KeepABoxesColoursMarkAndTag) {
    TextBox box(form, "box");
    box.onLook = [this] { ++looks; };
    EXPECT_EQ(box.backColour(), rgb(255, 255, 255));
    EXPECT_EQ(box.foreColour(), rgb(0, 0, 0));
    box.setBackColour(rgb(0, 51, 153));
    box.setForeColour(rgb(255, 255, 255));
    box.setSelected(true);
    box.setTag("True");
    EXPECT_EQ(box.backColour(), 0x993300);
    EXPECT_TRUE(box.selected());
    EXPECT_EQ(box.tag(), "True");
    EXPECT_EQ(looks, 3);
    box.setBackColour(rgb(0, 51, 153));
    box.setSelected(true);
    EXPECT_EQ(looks, 3);
}

TEST_F(Controls, PassAKeyToItsBox) {
    TextBox box(form, "box");
    int pressed = 0;
    box.onKeyPress = [&](int key) { pressed = key; };
    box.operatorKey(13);
    EXPECT_EQ(pressed, 13);
}

TEST_F(Controls, BringASlidersValueToTheNearerLimit) {
    Slider slider(form, "slider", 1, 100, 75);
    slider.onChange = counting();
    slider.setValue(200);
    EXPECT_EQ(slider.value(), 100);
    slider.setValue(100);
    slider.operatorMove(101);
    EXPECT_EQ(changes, 1);
    slider.setValue(-5);
    EXPECT_EQ(slider.value(), 1);
    EXPECT_EQ(slider.valueText(), "1");
}

TEST_F(Controls, LetASliderFollowItsNewLimits) {
    Slider slider(form, "slider", 0, 100, 90);
    slider.onChange = counting();
    slider.setRange(0, 95);
    EXPECT_EQ(changes, 0);
    slider.setRange(0, 50);
    EXPECT_EQ(slider.value(), 50);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(slider.minimum(), 0);
    EXPECT_EQ(slider.maximum(), 50);
    EXPECT_EQ(Slider(form, "other", 0, 10, 99).value(), 10);
}

TEST_F(Controls, ChooseFromADropDownByTextOrIndex) {
    ComboBox combo(form, "combo");
    combo.onChange = counting();
    EXPECT_EQ(combo.text(), "");
    combo.addItem("7");
    combo.addItem("6");
    EXPECT_EQ(combo.index(), -1);
    combo.operatorChoose("6");
    EXPECT_EQ(combo.index(), 1);
    EXPECT_EQ(combo.valueText(), "6");
    combo.operatorChoose("5");
    combo.setIndex(2);
    combo.setIndex(-2);
    combo.setIndex(1);
    EXPECT_EQ(combo.index(), 1);
    EXPECT_EQ(changes, 1);
    combo.clear();
    EXPECT_EQ(combo.text(), "");
    EXPECT_TRUE(combo.items().empty());
}

TEST_F(Controls, ListLinesWithTheirNumbers) {
    ListBox list(form, "list");
    list.add("10.0.0.5", 1);
    list.add("10.0.0.6", 2);
    EXPECT_EQ(list.count(), 2U);
    EXPECT_EQ(list.line(1), "10.0.0.6");
    EXPECT_EQ(list.itemData(1), 2);
    EXPECT_EQ(list.valueText(), "10.0.0.5\n10.0.0.6");
    list.remove(0);
    EXPECT_EQ(list.line(0), "10.0.0.6");
    list.remove(5);
    EXPECT_EQ(list.count(), 1U);
    EXPECT_THROW(list.line(1), ProgramError);
    EXPECT_THROW(list.itemData(1), ProgramError);
}

TEST_F(Controls, TellOfAnEntryThatIsChosenOnceMore) {
    ComboBox combo(form, "combo");
    combo.addItem("a");
    combo.addItem("b");
    int clicks = 0;
    combo.onClick = [&clicks] { ++clicks; };
    combo.onChange = counting();
    form.show();
    combo.operatorChoose("b");
    combo.operatorChoose("b");
    combo.operatorChoose("c");
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(changes, 1);
    combo.setIndex(0);
    EXPECT_EQ(clicks, 2);
    combo.setEnabled(false);
    combo.operatorChoose("a");
    EXPECT_EQ(clicks, 2);
}

TEST_F(Controls, ReplaceAListsLinesAtOnce) {
    ListBox list(form, "list");
    list.add("old", 7);
    list.select(0);
    list.onLook = [this] { ++looks; };
    list.setLines({"a", "b", "c"});
    EXPECT_EQ(looks, 1);
    EXPECT_EQ(list.valueText(), "a\nb\nc");
    EXPECT_EQ(list.itemData(2), 0);
    EXPECT_EQ(list.selected(), -1);
}

TEST_F(Controls, SelectALineThatIsThereOrNone) {
    ListBox list(form, "list");
    list.setLines({"a", "b", "c"});
    list.onLook = [this] { ++looks; };
    list.select(2);
    list.select(2);
    EXPECT_EQ(list.selected(), 2);
    EXPECT_EQ(looks, 1);
    list.select(3);
    EXPECT_EQ(list.selected(), -1);
    list.select(1);
    list.select(-5);
    EXPECT_EQ(list.selected(), -1);
}

TEST_F(Controls, KeepALinesSelectionWhenOthersGo) {
    ListBox list(form, "list");
    list.setLines({"a", "b", "c"});
    list.select(1);
    list.remove(2);
    EXPECT_EQ(list.selected(), 1);
    list.remove(0);
    EXPECT_EQ(list.selected(), 0);
    list.remove(0);
    EXPECT_EQ(list.selected(), -1);
}

TEST_F(Controls, CountAListsChangesOfLinesAlone) {
    ListBox list(form, "list");
    const std::int64_t fresh = list.revision();
    list.add("a", 0);
    EXPECT_GT(list.revision(), fresh);
    const std::int64_t added = list.revision();
    list.select(0);
    list.setEnabled(false);
    EXPECT_EQ(list.revision(), added);
    list.remove(0);
    EXPECT_GT(list.revision(), added);
    const std::int64_t removed = list.revision();
    list.setLines({});
    EXPECT_GT(list.revision(), removed);
}

TEST_F(Controls, ShowALampsColourAndAPicturesNumberOrFile) {
    Shape lamp(form, "lamp", rgb(255, 0, 0));
    EXPECT_EQ(lamp.valueText(), "255");
    lamp.setFill(49152);
    EXPECT_EQ(lamp.fill(), rgb(0, 192, 0));
    Picture picture(form, "picture");
    EXPECT_EQ(picture.valueText(), "0");
    picture.setNumber(4);
    EXPECT_EQ(picture.valueText(), "4");
    picture.setFile("/app/office.bmp");
    EXPECT_EQ(picture.valueText(), "/app/office.bmp");
    picture.onLook = [this] { ++looks; };
    picture.setFile("/app/office.bmp");  // the file may have another content
    picture.refresh();
    EXPECT_EQ(looks, 2);
    EXPECT_EQ(picture.refreshes(), 1);
}

TEST_F(Controls, PrintTheirValueForAWatch) {
    VirtualClock clock;
    Label label(form, "label", "text");
    CheckBox check(form, "check", "caption", true);
    OptionButton option(form, "option");
    Timer timer(form, "timer", clock, 100);
    const Frame frame(form, "frame", "Power Status");
    EXPECT_EQ(label.valueText(), "text");
    EXPECT_EQ(check.valueText(), "1");
    check.setChecked(false);
    EXPECT_EQ(check.valueText(), "0");
    EXPECT_EQ(option.valueText(), "False");
    option.setChosen(true);
    EXPECT_EQ(option.valueText(), "True");
    EXPECT_EQ(timer.valueText(), "False");
    timer.setRunning(true);
    EXPECT_EQ(timer.valueText(), "True");
    EXPECT_EQ(frame.valueText(), "Power Status");
}

TEST_F(Controls, KeepTheContentOfAPictureThatTheProgramHasRead) {
    Picture picture(form, "picture");
    int drawn = 0;
    picture.onLook = [&drawn] { ++drawn; };
    picture.setContent("/a.bmp", "BM1");
    EXPECT_EQ(*picture.content(), "BM1");
    EXPECT_EQ(picture.valueText(), "/a.bmp");
    EXPECT_EQ(drawn, 1);
    picture.setContent("/a.bmp", "BM1");
    EXPECT_EQ(drawn, 1);
    const auto before = picture.content();
    picture.setContent("/a.bmp", "BM2");
    EXPECT_EQ(drawn, 2);
    EXPECT_EQ(*before, "BM1");
    picture.clear();
    EXPECT_EQ(picture.content(), nullptr);
    EXPECT_EQ(picture.valueText(), "0");
    EXPECT_EQ(drawn, 3);
}

TEST_F(Controls, LoseThePicturesContentWithAnotherFile) {
    Picture picture(form, "picture");
    picture.setContent("/a.bmp", "BM1");
    picture.setFile("/b.bmp");
    EXPECT_EQ(picture.content(), nullptr);
}

TEST_F(Controls, MoveAFrameKeepingItsSize) {
    Frame frame(form, "frame");
    frame.setArea({1, 2, 30, 40});
    frame.moveTo(5, 6);
    EXPECT_EQ(frame.area(), (Area{5, 6, 30, 40}));
}

TEST_F(Controls, RunAFormsTimerOnItsClock) {
    VirtualClock clock;
    Timer timer(form, "timer", clock, 100);
    timer.setHandler(counting());
    clock.runFor(500);
    EXPECT_EQ(changes, 0);
    timer.setRunning(true);
    clock.runFor(250);
    EXPECT_EQ(changes, 2);
    timer.setInterval(10);
    clock.runFor(10);
    EXPECT_EQ(changes, 3);
    timer.setRunning(false);
    clock.runFor(500);
    EXPECT_EQ(changes, 3);
}

TEST_F(Controls, NameTheElementsOfAnArrayByIndex) {
    ControlArray<TextBox, 4> boxes(form, "txt_ip", 0);
    ControlArray<Label, 3> labels(form, "IRT", 1, std::string("-"));
    EXPECT_EQ(form.find("txt_ip(0)"), &boxes(0));
    EXPECT_EQ(form.find("txt_ip(3)"), &boxes(3));
    EXPECT_EQ(form.find("IRT(1)"), &labels(1));
    EXPECT_EQ(form.find("IRT(0)"), nullptr);
    EXPECT_EQ(labels(3).caption(), "-");
    EXPECT_EQ(labels.first(), 1);
    EXPECT_EQ(labels.last(), 3);
}

TEST_F(Controls, RefuseAnElementThatAnArrayDoesNotHave) {
    ControlArray<Label, 3> labels(form, "IRT", 1);
    EXPECT_THROW(labels(0), ProgramError);
    EXPECT_THROW(labels(4), ProgramError);
    EXPECT_THROW(std::as_const(labels)(-1), ProgramError);
}

}  // namespace
}  // namespace quorrin
