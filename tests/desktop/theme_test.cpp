#include "desktop/theme/theme.h"

#include <gtest/gtest.h>

#include <QPalette>
#include <QRegularExpression>
#include <string>
#include <vector>

#include "desktop/theme/style_sheet.h"

namespace quorrin {
namespace {

struct Pair {
    std::string name;
    QColor ink;
    QColor paper;
    double least;  // WCAG AA: 4.5 for writing, 3 for signs and edges
};

std::vector<Pair> tonePairs(const std::string& name, const ToneColours& tone, const Theme& theme) {
    return {{name + " sign on its block", tone.onBlock, tone.block, 4.5},
            {name + " writing on its tint", tone.text, tone.tint, 4.5},
            {name + " plain writing on its tint", theme.text, tone.tint, 4.5},
            {name + " captions on its tint", theme.muted, tone.tint, 4.5},
            {name + " block on the window", tone.block, theme.window, 1.4},
            {name + " writing on a group", tone.text, theme.surface, 4.5},
            {name + " progress on its bar", tone.text, theme.line, 3}};
}

std::vector<Pair> pairs(const Theme& theme) {
    std::vector<Pair> all = {{"text on window", theme.text, theme.window, 4.5},
                             {"text on groups", theme.text, theme.surface, 4.5},
                             {"text in boxes", theme.text, theme.field, 4.5},
                             {"captions on window", theme.muted, theme.window, 4.5},
                             {"captions on groups", theme.muted, theme.surface, 4.5},
                             {"captions in boxes", theme.muted, theme.field, 4.5},
                             {"disabled on groups", theme.disabled, theme.surface, 4.5},
                             {"disabled in boxes", theme.disabled, theme.field, 4.5},
                             {"selection", theme.onAccent, theme.accent, 4.5},
                             {"links", theme.accent, theme.surface, 4.5},
                             {"button text on groups", theme.buttonText, theme.surface, 4.5},
                             {"outlines on groups", theme.outline, theme.surface, 3},
                             {"outlines of boxes", theme.outline, theme.field, 3},
                             {"focus on groups", theme.focus, theme.surface, 3},
                             {"focus on window", theme.focus, theme.window, 3},
                             {"progress on groups", theme.accent, theme.line, 3}};
    for (const auto& [name, tone] : {std::pair<std::string, ToneColours>("off", theme.off),
                                     {"good", theme.good},
                                     {"busy", theme.busy},
                                     {"warning", theme.warning},
                                     {"bad", theme.bad}}) {
        for (const Pair& pair : tonePairs(name, tone, theme)) all.push_back(pair);
    }
    for (const QColor& curve : theme.curves) all.push_back({"a curve", curve, theme.field, 3});
    return all;
}

class Themes : public testing::TestWithParam<const Theme*> {};

TEST_P(Themes, HaveLegibleContrastInEveryPairOfColours) {
    for (const Pair& pair : pairs(*GetParam())) {
        EXPECT_GE(contrast(pair.ink, pair.paper), pair.least) << pair.name;
    }
}

TEST_P(Themes, AreFoundAgainFromThePaletteTheyMake) {
    EXPECT_EQ(&themeOf(palette(*GetParam())), GetParam());
}

TEST_P(Themes, LeaveNoRoleOfTheStyleSheetWithoutAColour) {
    EXPECT_FALSE(styleSheet(*GetParam()).contains(QRegularExpression(QStringLiteral("\\{[a-zA-Z]+\\}"))));
}

INSTANTIATE_TEST_SUITE_P(LightAndDark, Themes, testing::Values(&lightTheme(), &darkTheme()),
                         [](const auto& tested) { return tested.param->dark ? "Dark" : "Light"; });

TEST(Contrast, IsTwentyOneForBlackOnWhiteAndOneForTheSameColour) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(QColor(90, 120, 150), QColor(90, 120, 150)), 1, 1e-9);
}

}  // namespace
}  // namespace quorrin
