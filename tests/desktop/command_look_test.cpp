// How the push button looks, and what a screen reader is told of it.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QPixmap>
#include <memory>

#include "desktop/theme/icons.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/button_skin.h"
#include "desktop/widgets/command.h"
#include "desktop/widgets/control_look.h"

namespace quorrin {
namespace {

QImage pictureOf(QWidget& widget) {
    QImage picture(widget.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    widget.render(&picture, {}, {}, QWidget::RenderFlags());
    return picture;
}

QIcon redIcon() {
    QPixmap red(16, 16);
    red.fill(Qt::red);
    return QIcon(red);
}

int pixelsOf(const QImage& picture, const QColor& colour) {
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == colour.rgb() ? 1 : 0;
    }
    return count;
}

struct CommandLook : testing::Test {
    Command button;

    void SetUp() override {
        button.setCaption("");
        button.resize(90, 30);
    }
    QImage skin(ButtonState state, std::int32_t look) { return skinnedButton(state, look, button.size(), 1); }
};

TEST_F(CommandLook, AFreshButtonCarriesTheDefaultCaption) {
    EXPECT_EQ(Command().caption(), "XpButton1");
}

TEST_F(CommandLook, WithoutAFaceItIsItsSkin) {
    EXPECT_EQ(pictureOf(button), skin(ButtonState::normal, button.look()));
}

TEST_F(CommandLook, EachStateWearsItsCell) {
    button.setButtonLook(0);
    button.model().mouseMove({});
    EXPECT_EQ(pictureOf(button), skin(ButtonState::hover, 0));
    button.model().mouseDown({MouseButton::left, 0, 1, 1});
    EXPECT_EQ(pictureOf(button), skin(ButtonState::pressed, 0));
    button.setEnabled(false);
    EXPECT_EQ(pictureOf(button), skin(ButtonState::disabled, 0));
}

TEST_F(CommandLook, AnotherLookWearsAnotherSkin) {
    button.setButtonLook(3);
    EXPECT_EQ(pictureOf(button), skin(ButtonState::normal, 3));
}

TEST_F(CommandLook, ResizingRepaintsWithTheCornersUnchanged) {
    const QImage before = pictureOf(button).copy(0, 0, 3, 3);
    button.resize(300, 80);
    const QImage after = pictureOf(button);
    EXPECT_EQ(after.copy(0, 0, 3, 3), before);
    EXPECT_EQ(after, skin(ButtonState::normal, button.look()));
}

TEST_F(CommandLook, OnAFinerScreenItWearsTheFinerSkin) {
    for (const double ratio : {1.5, 2.0, 3.0}) {
        QImage picture((QSizeF(button.size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        button.render(&picture, {}, {}, QWidget::RenderFlags());
        EXPECT_EQ(picture, skinnedButton(ButtonState::normal, button.look(), button.size(), ratio)) << ratio;
    }
}

TEST_F(CommandLook, WithoutALookOfItsOwnItFollowsTheTheme) {
    const QPalette own = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    button.setLookKind(LookKind::accent);
    const std::int32_t inTheDark = button.look();
    QApplication::setPalette(own);
    EXPECT_EQ(inTheDark, buttonLook(LookKind::accent, true));
    EXPECT_EQ(button.look(), buttonLook(LookKind::accent, false));
}

TEST_F(CommandLook, TheCaptionIsDrawnInItsColour) {
    button.setCaption("HHHH");
    button.setFontColor(rgb(255, 0, 0));
    EXPECT_GT(pixelsOf(pictureOf(button), Qt::red), 4);
}

TEST_F(CommandLook, ADisabledCaptionHasTheSkinsColour) {
    button.setFontColor(rgb(255, 0, 0));
    button.setEnabled(false);
    EXPECT_EQ(button.captionColour(), skinLook(button.look()).disabledCaption);
}

TEST_F(CommandLook, AnIconIsDrawnAndAnEmptyOneHidesItAgain) {
    button.setIcon(redIcon());
    EXPECT_GT(pixelsOf(pictureOf(button), Qt::red), 50);
    button.setIcon(QIcon());
    EXPECT_EQ(pictureOf(button), skin(ButtonState::normal, button.look()));
}

TEST_F(CommandLook, APictureOfTheProjectsOwnHasTheCaptionsColourOnEveryLook) {
    button.setIcon(writingIcon(IconName::stop));
    button.setIconSize({24, 24});
    for (const LookKind kind :
         {LookKind::plain, LookKind::accent, LookKind::danger, LookKind::quiet, LookKind::on}) {
        button.setLookKind(kind);
        for (const bool enabled : {true, false}) {
            button.setEnabled(enabled);
            EXPECT_GT(pixelsOf(pictureOf(button), button.captionColour()), 20)
                << static_cast<int>(kind) << enabled;
        }
    }
}

TEST_F(CommandLook, APressShiftsTheFaceByOneUnit) {
    button.setIcon(redIcon());
    const auto top = [this] {
        const QImage picture = pictureOf(button);
        int y = 0;
        while (y < picture.height() && pixelsOf(picture.copy(0, y, picture.width(), 1), Qt::red) == 0) ++y;
        return y;
    };
    const int rest = top();
    button.model().mouseDown({MouseButton::left, 0, 1, 1});
    EXPECT_EQ(top(), rest + 1);
}

TEST_F(CommandLook, ACaptionThatDoesNotFitKeepsOffTheEdges) {
    button.setFontColor(rgb(255, 0, 0));
    button.setCaption("HHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHHH");
    const QImage picture = pictureOf(button);
    EXPECT_GT(pixelsOf(picture, Qt::red), 4);
    EXPECT_EQ(pixelsOf(picture.copy(0, 0, kFaceMargin - 2, 30), Qt::red), 0);
    EXPECT_EQ(pixelsOf(picture.copy(90 - kFaceMargin + 2, 0, kFaceMargin - 2, 30), Qt::red), 0);
}

TEST_F(CommandLook, TheHintMakesRoomForCaptionIconAndFont) {
    const QSize bare = button.sizeHint();
    button.setCaption("Show Control");
    const QSize captioned = button.sizeHint();
    EXPECT_GT(captioned.width(), bare.width());
    button.setIcon(redIcon());
    EXPECT_GT(button.sizeHint().width(), captioned.width());
    QFont large = button.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    button.setFont(large);
    EXPECT_GT(button.sizeHint().height(), captioned.height());
}

TEST_F(CommandLook, TheFocusRectangleIsDottedTwoUnitsInside) {
    QWidget window;
    Command& focused = *new Command(&window);
    focused.setCaption("");
    focused.setFontColor(rgb(255, 0, 0));
    focused.resize(90, 30);
    window.resize(100, 40);
    window.show();
    window.activateWindow();
    focused.setFocus();
    QCoreApplication::processEvents();
    ASSERT_TRUE(focused.hasFocus());
    const QImage picture = pictureOf(focused);
    for (const QRect side :
         {QRect(2, 2, 86, 1), QRect(2, 27, 86, 1), QRect(2, 2, 1, 26), QRect(87, 2, 1, 26)}) {
        const int dots = pixelsOf(picture.copy(side), Qt::red);
        const int length = side.width() * side.height();
        EXPECT_GT(dots, length / 4) << side.x() << " " << side.y();
        EXPECT_LT(dots, length * 3 / 4) << side.x() << " " << side.y();
    }
    EXPECT_EQ(pixelsOf(picture.copy(0, 0, 2, 30), Qt::red), 0);
    EXPECT_EQ(pixelsOf(picture.copy(88, 0, 2, 30), Qt::red), 0);
    EXPECT_EQ(pixelsOf(picture.copy(3, 3, 84, 24), Qt::red), 0);
}

TEST_F(CommandLook, AsStoredItWearsWhatTheFormHolds) {
    CommandButtonProperties stored;
    stored.caption = "Talk";
    stored.enabled = false;
    stored.buttonLook = 5;
    stored.font = {"DejaVu Sans", 20, true, false};
    Command made(stored);
    EXPECT_EQ(made.caption(), "Talk");
    EXPECT_FALSE(made.isEnabled());
    EXPECT_EQ(made.look(), 5);
    EXPECT_EQ(made.font().pointSizeF(), 20);
    EXPECT_TRUE(made.font().bold());
}

TEST_F(CommandLook, AFontWithoutASizeHasTheAmbientOneWhateverWasChosenBefore) {
    const double ambient = button.font().pointSizeF();
    button.setFontChoice({"DejaVu Sans", 20, true, false});
    EXPECT_EQ(button.font().pointSizeF(), 20);
    button.setFontChoice({"DejaVu Sans", 0, false, false});
    EXPECT_EQ(button.font().pointSizeF(), ambient);
    button.setFontChoice({});
    EXPECT_EQ(button.font(), QApplication::font());
}

TEST_F(CommandLook, AButtonMadeInADisabledParentIsDisabled) {
    QWidget window;
    window.setEnabled(false);
    Command& made = *new Command(&window);
    Command& stored = *new Command(CommandButtonProperties(), {}, &window);
    for (Command* one : {&made, &stored}) EXPECT_EQ(one->model().cell(), ButtonState::disabled);
    window.setEnabled(true);
    for (Command* one : {&made, &stored}) EXPECT_EQ(one->model().cell(), ButtonState::normal);
}

struct CommandAccess : CommandLook {
    std::string told;
    QAccessibleInterface* reader() { return QAccessible::queryAccessibleInterface(&button); }
};

TEST_F(CommandAccess, AScreenReaderFindsAButton) {
    ASSERT_NE(reader(), nullptr);
    EXPECT_EQ(reader()->role(), QAccessible::Button);
}

TEST_F(CommandAccess, ItsNameIsTheCaptionUnlessItHasOneOfItsOwn) {
    button.setCaption("Start");
    EXPECT_EQ(reader()->text(QAccessible::Name), "Start");
    button.setAccessibleName("Start the robot");
    EXPECT_EQ(reader()->text(QAccessible::Name), "Start the robot");
}

TEST_F(CommandAccess, ItCanBePressed) {
    button.onPress = [this] { told += "press "; };
    button.onRelease = [this] { told += "release "; };
    button.onClick = [this] { told += "click "; };
    QAccessibleActionInterface* const actions = reader()->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(told, "press release click ");
}

TEST_F(CommandAccess, ADisabledOneOffersNoPress) {
    button.setEnabled(false);
    EXPECT_FALSE(
        reader()->actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()));
    EXPECT_TRUE(reader()->state().disabled);
}

TEST_F(CommandAccess, ItTellsThatItIsPressed) {
    button.model().mouseDown({MouseButton::left, 0, 1, 1});
    EXPECT_TRUE(reader()->state().pressed);
}

}  // namespace
}  // namespace quorrin
