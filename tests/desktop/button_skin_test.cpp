// The skins of the buttons as they are drawn and carried: pixels.
#include "desktop/widgets/button_skin.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "base/colour_mix.h"
#include "desktop/skin/skin_looks.h"
#include "desktop/skin/skin_strip.h"
#include "desktop/widgets/control_look.h"

namespace quorrin {
namespace {

constexpr ButtonState kStates[] = {ButtonState::normal, ButtonState::pressed, ButtonState::disabled,
                                   ButtonState::hover};

bool isDark(std::int32_t look) {
    return look % 2 == 1;
}

// A pixel of a cell as it is seen on a ground.
Colour seenOn(const QColor& ground, QRgb pixel) {
    const QColor over = QColor::fromRgba(pixel);
    const auto mix = [&](int top, int below) {
        return static_cast<int>(std::lround(below + (top - below) * over.alpha() / 255.0));
    };
    return rgb(mix(over.red(), ground.red()), mix(over.green(), ground.green()),
               mix(over.blue(), ground.blue()));
}

// The least contrast of a caption with anything of the cell that it may stand on.
double leastContrast(const QImage& strip, ButtonState state, std::int32_t look) {
    const SkinLook& colours = skinLook(look);
    const Colour caption =
        plainColour(state == ButtonState::disabled ? colours.disabledCaption : colours.caption);
    const SliceRect cell = skinCell(static_cast<int>(state), look, 1);
    double least = 21;
    for (int y = cell.top + kSliceBorder; y < cell.bottom() - kSliceBorder; ++y) {
        for (int x = cell.left + kSliceBorder; x < cell.right() - kSliceBorder; ++x)
            least = std::min(least, contrastRatio(caption, seenOn(colours.ground, strip.pixel(x, y))));
    }
    return least;
}

TEST(ButtonSkin, CaptionsKeepTheContrastForReadingOnEveryStateOfEveryLook) {
    const QImage& strip = skinStrip(1);
    for (std::int32_t look = 0; look < kLooks; ++look) {
        for (const ButtonState state : kStates)
            EXPECT_GE(leastContrast(strip, state, look), 4.5)
                << "look " << look << " state " << static_cast<int>(state);
    }
}

TEST(ButtonSkin, TheContrastIsComputedFromWhatIsDrawn) {
    QImage strip = skinStrip(1);
    strip.fill(Qt::black);
    EXPECT_LT(leastContrast(strip, ButtonState::normal, buttonLook(LookKind::plain, false)), 2);
}

TEST(ButtonSkin, TheEdgeOfAPlainButtonIsSeenAgainstItsGround) {
    const QImage& strip = skinStrip(1);
    for (const bool dark : {false, true}) {
        const std::int32_t look = buttonLook(LookKind::plain, dark);
        const SliceRect cell = skinCell(0, look, 1);
        const QRgb edge = strip.pixel(cell.left, cell.top + kCellUnits / 2);
        EXPECT_GE(contrastRatio(seenOn(skinLook(look).ground, edge), plainColour(skinLook(look).ground)), 3)
            << look;
    }
}

TEST(ButtonSkin, EveryStateOfALookCanBeToldFromTheOthers) {
    const QImage& strip = skinStrip(2);
    for (std::int32_t look = 0; look < kLooks; ++look) {
        for (int one = 0; one < kButtonStates; ++one) {
            for (int other = one + 1; other < kButtonStates; ++other) {
                const bool bothClear =
                    (look / 2 == static_cast<int>(LookKind::quiet)) && one == 0 && other == 2;
                const auto cell = [&](int state) {
                    const SliceRect place = skinCell(state, look, 2);
                    return strip.copy(place.left, place.top, place.width, place.height);
                };
                // A quiet button at rest is its caption alone, whose colour tells whether it can be used.
                EXPECT_EQ(cell(one) == cell(other), bothClear) << look << " " << one << " " << other;
            }
        }
    }
}

TEST(ButtonSkin, AQuietButtonsCaptionTellsWhetherItCanBeUsed) {
    for (const bool dark : {false, true}) {
        const SkinLook& look = skinLook(buttonLook(LookKind::quiet, dark));
        EXPECT_NE(look.caption, look.disabledCaption);
    }
}

TEST(ButtonSkin, LightIsLookZeroAndDarkIsLookOne) {
    EXPECT_EQ(buttonLook(LookKind::plain, false), 0);
    EXPECT_EQ(buttonLook(LookKind::plain, true), 1);
    for (std::int32_t look = 0; look < kLooks; ++look)
        EXPECT_EQ(skinLook(look).ground.lightness() < 128, isDark(look)) << look;
}

TEST(ButtonSkin, ALookThatThereIsNotIsThePlainLightOne) {
    EXPECT_EQ(&skinLook(-1), &skinLook(0));
    EXPECT_EQ(&skinLook(kLooks), &skinLook(0));
    EXPECT_EQ(skinCell(1, kLooks, 1), skinCell(1, 0, 1));
}

TEST(ButtonSkin, TheProgramCarriesTheStripsThatTheToolDraws) {
    for (const int scale : kSkinScales)
        EXPECT_EQ(skinStrip(scale), drawSkinStrip(scale).convertToFormat(skinStrip(scale).format())) << scale;
}

TEST(ButtonSkin, ACornersRoundingLiesWithinTheBorderThatIsNeverStretched) {
    for (const int scale : kSkinScales) {
        const QImage& strip = skinStrip(scale);
        const SliceRect cell = skinCell(0, 0, scale);
        const int border = kSliceBorder * scale;
        const QRgb edge = strip.pixel(cell.left + border, cell.top);
        EXPECT_EQ(qAlpha(strip.pixel(cell.left, cell.top)) < 255, true) << scale;
        for (int x = cell.left + border; x < cell.right() - border; ++x)
            EXPECT_EQ(strip.pixel(x, cell.top), edge) << scale << " " << x;
    }
}

struct AnyRatio : testing::TestWithParam<double> {};

TEST_P(AnyRatio, ResizingLeavesTheCornersPixels) {
    const double ratio = GetParam();
    const int border = static_cast<int>(std::lround(kSliceBorder * ratio));
    const auto corners = [&](const QImage& button) {
        const int right = button.width() - border;
        const int bottom = button.height() - border;
        return std::vector<QImage>{button.copy(0, 0, border, border), button.copy(right, 0, border, border),
                                   button.copy(0, bottom, border, border),
                                   button.copy(right, bottom, border, border)};
    };
    for (std::int32_t look = 0; look < kLooks; ++look) {
        const auto small = corners(skinnedButton(ButtonState::normal, look, {40, 24}, ratio));
        const auto large = corners(skinnedButton(ButtonState::normal, look, {333, 90}, ratio));
        EXPECT_EQ(small, large) << look;
    }
}

TEST_P(AnyRatio, ThePictureHasTheScreensPixels) {
    const QImage button = skinnedButton(ButtonState::hover, 0, {100, 30}, GetParam());
    EXPECT_EQ(button.width(), std::lround(100 * GetParam()));
    EXPECT_EQ(button.height(), std::lround(30 * GetParam()));
}

TEST_P(AnyRatio, TheFaceHasNoHolesBetweenItsPieces) {
    const QImage button = skinnedButton(ButtonState::normal, 0, {101, 31}, GetParam());
    const int border = static_cast<int>(std::lround(kSliceBorder * GetParam()));
    for (int y = border; y < button.height() - border; ++y) {
        for (int x = 0; x < button.width(); ++x) ASSERT_EQ(qAlpha(button.pixel(x, y)), 255) << x << " " << y;
    }
}

INSTANTIATE_TEST_SUITE_P(ButtonSkin, AnyRatio, testing::Values(1.0, 1.25, 1.5, 1.75, 2.0, 3.0, 4.0, 5.0),
                         [](const auto& ratio) {
                             return "Percent" + std::to_string(static_cast<int>(ratio.param * 100));
                         });

TEST(ButtonSkin, AtAWholeRatioTheCornersAreTheStripsOwn) {
    for (const int scale : kSkinScales) {
        const SliceRect cell = skinCell(1, 2, scale);
        const int border = kSliceBorder * scale;
        QImage button = skinnedButton(ButtonState::pressed, 2, {200, 50}, scale);
        button.setDevicePixelRatio(1);
        EXPECT_EQ(button.copy(0, 0, border, border),
                  skinStrip(scale).copy(cell.left, cell.top, border, border))
            << scale;
    }
}

}  // namespace
}  // namespace quorrin
