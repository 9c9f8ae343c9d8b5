// Each kind of control once with its real widget, both ways.
#include <QPushButton>
#include <QTemporaryDir>

#include "console/control_words.h"
#include "console/frm_login.h"
#include "desktop/window_bench.h"

namespace quorrin {
namespace {

struct Bindings : WindowBench {};

TEST_F(Bindings, ATypedLetterReachesTheBoxAfterItsTurn) {
    auto& line = put<QLineEdit>("txtName");
    line.setCursorPosition(3);
    QTest::keyClicks(&line, "d");
    EXPECT_EQ(form.txtName.text(), "abc");
    settle();
    EXPECT_EQ(form.txtName.text(), "abcd");
}

TEST_F(Bindings, ATextThatTheProgramWritesIsShown) {
    auto& line = put<QLineEdit>("txtName");
    form.txtName.setText("new");
    EXPECT_EQ(line.text(), "new");
}

TEST_F(Bindings, AnEditOnItsWayIsNotOverwrittenByAnOlderValue) {
    auto& line = put<QLineEdit>("txtName");
    line.setCursorPosition(3);
    QTest::keyClicks(&line, "d");
    form.txtName.setText("older");
    EXPECT_EQ(line.text(), "abcd");
    settle();
    EXPECT_EQ(line.text(), "abcd");
    EXPECT_EQ(form.txtName.text(), "abcd");
}

TEST_F(Bindings, OfTwoEditsOnTheirWayTheFirstOnesTurnLeavesTheSecondOneSeen) {
    auto& line = put<QLineEdit>("txtName");
    std::vector<std::string> seen;
    form.txtName.onChange = [&] { seen.push_back(form.txtName.text() + "/" + line.text().toStdString()); };
    line.setCursorPosition(3);
    QTest::keyClicks(&line, "de");
    settle();
    EXPECT_EQ(seen, (std::vector<std::string>{"abcd/abcde", "abcde/abcde"}));
}

TEST_F(Bindings, WhatTheFormMakesOfAnEditIsShown) {
    auto& line = put<QLineEdit>("txtName");
    form.txtName.onChange = [this] { form.txtName.setText("ABC"); };
    line.setCursorPosition(3);
    QTest::keyClicks(&line, "d");
    settle();
    EXPECT_EQ(line.text(), "ABC");
}

TEST_F(Bindings, AnEditThatTheFormDoesNotTakeIsTakenBack) {
    auto& line = put<QLineEdit>("txtName");
    QTest::keyClicks(&line, "x");
    form.txtName.setEnabled(false);
    settle();
    EXPECT_EQ(line.text(), "abc");
}

TEST_F(Bindings, AProgramsTextLeavesTheCursorWhereItWas) {
    auto& line = put<QLineEdit>("txtName");
    activate();
    line.setFocus();
    line.setCursorPosition(1);
    form.txtName.setText("xyz");
    EXPECT_EQ(line.cursorPosition(), 1);
}

TEST_F(Bindings, ANumberIsGivenOnWhenItIsFinished) {
    auto& line = put<QLineEdit>("txtLimit");
    line.clear();
    QTest::keyClicks(&line, "55");
    settle();
    EXPECT_EQ(form.txtLimit.text(), "40");
    QTest::keyClick(&line, Qt::Key_Return);
    settle();
    EXPECT_EQ(form.txtLimit.text(), "55");
}

TEST_F(Bindings, ANumberBeingTypedIsNotOverwritten) {
    auto& line = put<QLineEdit>("txtLimit");
    line.clear();
    QTest::keyClicks(&line, "5");
    form.txtLimit.setText("41");
    EXPECT_EQ(line.text(), "5");
}

TEST_F(Bindings, ATextThatIsNotAllowedIsTakenBackWhenFinished) {
    auto& line = put<QLineEdit>("txtLimit");
    line.clear();
    QTest::keyClicks(&line, "5x");
    QTest::keyClick(&line, Qt::Key_Return);
    settle();
    EXPECT_EQ(form.txtLimit.text(), "40");
    EXPECT_EQ(line.text(), "40");
}

TEST_F(Bindings, EscapeTakesAnUnfinishedNumberBack) {
    auto& line = put<QLineEdit>("txtLimit");
    line.clear();
    QTest::keyClicks(&line, "5");
    QTest::keyClick(&line, Qt::Key_Escape);
    EXPECT_EQ(line.text(), "40");
}

TEST_F(Bindings, ColoursOfTheFormsOwnAreShownAndPlainOnesAreTheThemes) {
    auto& line = put<QLineEdit>("txtName");
    form.txtName.setBackColour(rgb(0, 51, 153));
    form.txtName.setForeColour(rgb(255, 255, 255));
    EXPECT_EQ(line.styleSheet().toStdString(), "background-color: #003399; color: #ffffff;");
    form.txtName.setBackColour(rgb(255, 255, 255));
    EXPECT_EQ(line.styleSheet().toStdString(), "") << "white letters on white cannot be read";
}

TEST_F(Bindings, AMarkedTextIsSelectedAlsoWhenItIsWrittenAfterwards) {
    auto& line = put<QLineEdit>("txtName");
    form.txtName.setSelected(true);
    EXPECT_EQ(line.selectedText(), "abc");
    form.txtName.setText("bc");
    EXPECT_EQ(line.selectedText(), "bc");
    form.txtName.setSelected(false);
    EXPECT_FALSE(line.hasSelectedText());
}

TEST_F(Bindings, BackspaceAndEnterReachABoxThatListensBeforeTheirEffect) {
    auto& line = put<QLineEdit>("txtName");
    std::string heard;
    form.txtName.onKeyPress = [&](int key) { heard += std::to_string(key) + form.txtName.text() + " "; };
    line.setCursorPosition(3);
    QTest::keyClick(&line, Qt::Key_Backspace);
    QTest::keyClick(&line, Qt::Key_Return);
    settle();
    EXPECT_EQ(heard, "8abc 13ab ");
}

TEST_F(Bindings, ALabelShowsItsCaption) {
    auto& label = put<ShadowLabel>("lblState");
    form.lblState.setCaption("busy");
    EXPECT_EQ(label.caption(), "busy");
}

TEST_F(Bindings, APlainLabelShowsItsCaptionAsPlainText) {
    QLabel label;
    bind(label, form.lblState, acts);
    form.lblState.setCaption("<b>busy</b>");
    EXPECT_EQ(label.text(), "<b>busy</b>");
    EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(Bindings, ALinkShowsItsAddressWithEveryLetterAndMakesNoShortcutOfIt) {
    QPushButton site;
    bindLink(site, form.lblState, acts);
    form.lblState.setCaption("https://quorrin.example/?a=1&b=2");
    EXPECT_EQ(site.text(), "https://quorrin.example/?a=1&&b=2");
    EXPECT_TRUE(site.shortcut().isEmpty());
    int clicks = 0;
    form.lblState.onClick = [&] { ++clicks; };
    QTest::mouseClick(&site, Qt::LeftButton);
    settle();
    EXPECT_EQ(clicks, 1);
}

TEST_F(Bindings, AButtonShowsItsCaption) {
    auto& button = put<Command>("cmdGo");
    form.cmdGo.setCaption("Stop");
    EXPECT_EQ(button.caption(), "Stop");
}

TEST_F(Bindings, APlainButtonShowsItsCaptionWithEveryLetter) {
    QPushButton button;
    bind(button, form.cmdGo, acts);
    form.cmdGo.setCaption("Stop & go");
    EXPECT_EQ(button.text(), "Stop && go");
}

TEST_F(Bindings, AButtonsPressReleaseAndClickReachItsControlInTheirOrder) {
    auto& button = put<Command>("cmdGo");
    settle();
    std::string heard;
    form.cmdGo.onMouseDown = [&] { heard += "down "; };
    form.cmdGo.onMouseUp = [&] { heard += "up "; };
    form.cmdGo.onClick = [&] { heard += "click "; };
    button.onPress();
    button.onClick();
    button.onRelease();
    EXPECT_EQ(heard, "");
    settle();
    EXPECT_EQ(heard, "down click up ");
}

TEST_F(Bindings, AKeyOnAButtonClicksIt) {
    auto& button = put<Command>("cmdGo");
    activate();
    int clicks = 0;
    form.cmdGo.onClick = [&] { ++clicks; };
    QTest::keyClick(&button, Qt::Key_Space);
    settle();
    EXPECT_EQ(clicks, 1);
}

TEST_F(Bindings, APlainButtonsClickIsPressReleaseAndClickInTheirOrder) {
    QPushButton button;
    bind(button, form.cmdGo, acts);
    std::string heard;
    form.cmdGo.onMouseDown = [&] { heard += "down "; };
    form.cmdGo.onMouseUp = [&] { heard += "up "; };
    form.cmdGo.onClick = [&] { heard += "click "; };
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(heard, "");
    settle();
    EXPECT_EQ(heard, "down up click ");
}

TEST_F(Bindings, ADisabledButtonIsDisabledInItsWindow) {
    auto& button = put<Command>("cmdGo");
    form.cmdGo.setEnabled(false);
    EXPECT_FALSE(button.isEnabled());
    form.cmdGo.setEnabled(true);
    EXPECT_TRUE(button.isEnabled());
}

TEST_F(Bindings, AnInvisibleControlIsNotToBeSeen) {
    auto& button = put<Command>("cmdGo");
    settle();
    form.cmdGo.setVisible(false);
    EXPECT_TRUE(button.isHidden());
    form.cmdGo.setVisible(true);
    EXPECT_FALSE(button.isHidden());
}

TEST_F(Bindings, AControlThatIsInvisibleFromTheBeginningStaysUnseenWhenItsWindowIsShown) {
    form.cmdGo.setVisible(false);
    auto& button = put<Command>("cmdGo");
    window.show();
    EXPECT_FALSE(button.isVisible());
}

TEST_F(Bindings, ATickReachesTheCheckBoxAndBack) {
    auto& box = put<QCheckBox>("chkRemote");
    QTest::keyClick(&box, Qt::Key_Space);
    settle();
    EXPECT_TRUE(form.chkRemote.checked());
    form.chkRemote.setChecked(false);
    EXPECT_FALSE(box.isChecked());
}

TEST_F(Bindings, ATickThatTheFormDoesNotTakeIsTakenBack) {
    auto& box = put<QCheckBox>("chkRemote");
    QTest::keyClick(&box, Qt::Key_Space);
    form.chkRemote.setEnabled(false);
    settle();
    EXPECT_FALSE(box.isChecked());
}

TEST_F(Bindings, AnOptionIsChosenByTheFormsRule) {
    auto& fast = put<QRadioButton>("optFast");
    auto& slow = put<QRadioButton>("optSlow");
    form.optSlow.onChange = [this] { form.optFast.setChosen(!form.optSlow.chosen()); };
    QTest::keyClick(&slow, Qt::Key_Space);
    settle();
    EXPECT_TRUE(form.optSlow.chosen());
    EXPECT_TRUE(slow.isChecked());
    EXPECT_FALSE(fast.isChecked());
}

TEST_F(Bindings, AChosenOptionCannotBeTakenBack) {
    auto& fast = put<QRadioButton>("optFast");
    QTest::keyClick(&fast, Qt::Key_Space);
    settle();
    EXPECT_TRUE(fast.isChecked());
}

TEST_F(Bindings, ASlidersKeyMovesTheValueByItsSmallChange) {
    form.sldLevel.smallChange = 5;
    auto& slider = put<QSlider>("sldLevel");
    QTest::keyClick(&slider, Qt::Key_Right);
    settle();
    EXPECT_EQ(form.sldLevel.value(), 80);
}

TEST_F(Bindings, AProgramsValueMovesTheSliderAndIsNoDeedOfTheOperator) {
    auto& slider = put<QSlider>("sldLevel");
    form.sldLevel.setRange(0, 50);
    EXPECT_EQ(slider.maximum(), 50);
    EXPECT_EQ(slider.value(), 50);
    EXPECT_EQ(acts.underWay(), 0);
}

TEST_F(Bindings, AnItemChosenInTheDropDownReachesItsControl) {
    form.cobDay.addItem("7");
    form.cobDay.addItem("6");
    auto& combo = put<QComboBox>("cobDay");
    QTest::keyClick(&combo, Qt::Key_End);
    settle();
    EXPECT_EQ(form.cobDay.text(), "6");
}

TEST_F(Bindings, TheDropDownShowsItemsAndChoiceOfItsControl) {
    auto& combo = put<QComboBox>("cobDay");
    form.cobDay.addItem("7");
    form.cobDay.addItem("6");
    EXPECT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.currentIndex(), -1);
    form.cobDay.setIndex(1);
    EXPECT_EQ(combo.currentText(), "6");
    form.cobDay.clear();
    EXPECT_EQ(combo.count(), 0);
}

TEST_F(Bindings, APictureIsReadFromItsFileAndKeptWhenThatCannotBeRead) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("frame.bmp");
    QImage frame(4, 2, QImage::Format_RGB32);
    frame.fill(Qt::red);
    ASSERT_TRUE(frame.save(file));
    auto& view = put<PictureView>("imgCamera");
    settle();
    form.imgCamera.setFile(file.toStdString());
    EXPECT_EQ(view.image().size(), QSize(4, 2));
    ASSERT_TRUE(QFile::remove(file));
    form.imgCamera.setFile(file.toStdString());
    EXPECT_EQ(view.image().size(), QSize(4, 2));
}

TEST_F(Bindings, APictureThatIsNotToBeSeenIsReadWhenItIs) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("frame.bmp");
    ASSERT_TRUE(QImage(4, 2, QImage::Format_RGB32).save(file));
    auto& view = put<PictureView>("imgCamera");
    form.imgCamera.setFile(file.toStdString());
    EXPECT_TRUE(view.image().isNull());
    settle();
    EXPECT_FALSE(view.image().isNull());
}

TEST_F(Bindings, APictureThatIsOnlyDrawnAnewOrDisabledIsNotReadAgain) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("frame.bmp");
    ASSERT_TRUE(QImage(4, 2, QImage::Format_RGB32).save(file));
    auto& view = put<PictureView>("imgCamera");
    settle();
    form.imgCamera.setFile(file.toStdString());
    ASSERT_TRUE(QImage(8, 6, QImage::Format_RGB32).save(file));
    form.imgCamera.refresh();
    form.imgCamera.setEnabled(false);
    EXPECT_EQ(view.image().size(), QSize(4, 2));
}

TEST_F(Bindings, APictureIsReadAgainWhenTheSameFileIsNamedAgain) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("frame.bmp");
    ASSERT_TRUE(QImage(4, 2, QImage::Format_RGB32).save(file));
    auto& view = put<PictureView>("imgCamera");
    settle();
    form.imgCamera.setFile(file.toStdString());
    ASSERT_TRUE(QImage(8, 6, QImage::Format_RGB32).save(file));
    form.imgCamera.setFile(file.toStdString());
    EXPECT_EQ(view.image().size(), QSize(8, 6));
}

TEST_F(Bindings, AClearedPictureIsReadWhenItsFileIsNamedAgain) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("frame.bmp");
    ASSERT_TRUE(QImage(4, 2, QImage::Format_RGB32).save(file));
    auto& view = put<PictureView>("imgCamera");
    settle();
    form.imgCamera.setFile(file.toStdString());
    form.imgCamera.clear();
    EXPECT_TRUE(view.image().isNull());
    form.imgCamera.setFile(file.toStdString());
    EXPECT_EQ(view.image().size(), QSize(4, 2));
}

TEST_F(Bindings, AFrameTellsItsControlWhereItIs) {
    auto& frame = put<QGroupBox>("fraPanel");
    EXPECT_EQ(frame.title(), "Panel");
    window.layout()->removeWidget(&frame);
    settle();
    frame.setGeometry(10, 20, 300, 40);
    EXPECT_EQ(form.fraPanel.area(), (Area{150, 300, 4500, 600}));
}

TEST_F(Bindings, AFrameTellsItsControlAlsoWhenOnlyWhatHoldsItMoves) {
    auto* const outer = new QWidget(&window);
    auto* const inner = new QWidget(outer);
    auto* const frame = controls("fraPanel");
    frame->setParent(inner);
    frame->setGeometry(10, 20, 300, 40);
    outer->setGeometry(0, 0, 400, 200);
    inner->setGeometry(0, 0, 400, 200);
    outer->show();
    settle();
    outer->move(30, 0);
    settle();
    EXPECT_EQ(form.fraPanel.area(), (Area{600, 300, 4500, 600}));
    inner->move(0, 40);
    settle();
    EXPECT_EQ(form.fraPanel.area(), (Area{600, 900, 4500, 600}));
}

TEST_F(Bindings, AFrameThatIsPutElsewhereTellsItsNewPlace) {
    auto* const frame = controls("fraPanel");
    frame->setParent(&window);
    frame->setGeometry(10, 20, 300, 40);
    frame->show();
    settle();
    auto* const holder = new QWidget(&window);
    holder->setGeometry(50, 0, 400, 200);
    holder->show();
    frame->setParent(holder);
    frame->show();
    settle();
    EXPECT_EQ(form.fraPanel.area(), (Area{900, 300, 4500, 600}));
    holder->move(60, 0);
    settle();
    EXPECT_EQ(form.fraPanel.area(), (Area{1050, 300, 4500, 600}));
}

TEST_F(Bindings, TwoWidgetsMayShowOneControl) {
    auto& one = put<ShadowLabel>("lblState");
    auto& two = put<ShadowLabel>("lblState");
    form.lblState.setCaption("busy");
    EXPECT_EQ(one.caption(), "busy");
    EXPECT_EQ(two.caption(), "busy");
}

TEST_F(Bindings, ADeedOnItsWayOutlivesItsWidget) {
    auto& line = put<QLineEdit>("txtName");
    QTest::keyClicks(&line, "x");
    delete &line;
    settle();
    EXPECT_EQ(form.txtName.text(), "xabc");
}

TEST_F(Bindings, AWidgetCarriesItsControlsName) {
    EXPECT_EQ(put<Command>("cmdGo").objectName(), "cmdGo");
}

TEST_F(Bindings, AWidgetCarriesTheWordsOfItsControl) {
    frmLogin login(clock);
    ControlFactory factory(acts, login);
    const std::unique_ptr<QWidget> port(factory("txtRobotPort"));
    const ControlWords& words = controlWords("frmLogin", "txtRobotPort");
    EXPECT_EQ(port->accessibleName().toStdString(), words.name);
    EXPECT_EQ(port->toolTip().toStdString(), words.tip);
}

TEST_F(Bindings, AShortcutWorksAlsoWhenItsWidgetIsDressedTwice) {
    frmLogin login(clock);
    login.show();
    int clicks = 0;
    login.cmdCancel.onClick = [&] { ++clicks; };
    QWidget top;
    ControlFactory factory(acts, login);
    QWidget* const cancel = factory("cmdCancel");
    cancel->setParent(&top);
    factory.dress(*cancel, login.cmdCancel);
    top.show();
    top.activateWindow();
    settle();
    QTest::keyClick(&top, Qt::Key_Escape);
    settle();
    EXPECT_EQ(clicks, 1);
}

TEST_F(Bindings, ANameThatTheFormDoesNotHaveIsAnError) {
    EXPECT_THROW(controls("cmdNone"), ProgramError);
}

TEST_F(Bindings, AReadOutCannotBeTypedInto) {
    const std::unique_ptr<QLineEdit> line(controls.readOut("txtName"));
    QTest::keyClicks(line.get(), "x");
    EXPECT_EQ(acts.underWay(), 0);
    EXPECT_EQ(line->text(), "abc");
}

}  // namespace
}  // namespace quorrin
