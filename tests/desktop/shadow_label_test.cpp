// The caption label as a widget: what its pictures show.
#include "desktop/widgets/shadow_label.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <algorithm>
#include <cstdlib>

#include "desktop/theme/style_sheet.h"
#include "desktop/theme/theme.h"
#include "desktop/widgets/control_look.h"

namespace quorrin {
namespace {

// The label's own picture, on nothing.
QImage pictureOf(ShadowLabel& label) {
    QImage picture(label.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    label.render(&picture, {}, {}, QWidget::RenderFlags());
    return picture;
}

bool anythingDrawn(const QImage& picture) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) != 0) return true;
        }
    }
    return false;
}

TEST(ShadowLabelWidget, DrawsItsCaption) {
    ShadowLabel label("Robot X");
    label.resize(label.sizeHint());
    EXPECT_TRUE(anythingDrawn(pictureOf(label)));
}

TEST(ShadowLabelWidget, AnEmptyCaptionDrawsNothing) {
    ShadowLabel label;
    label.resize(80, 20);
    EXPECT_FALSE(anythingDrawn(pictureOf(label)));
}

TEST(ShadowLabelWidget, AnEmptyCaptionWithAutosizeTakesTheSmallestSize) {
    ShadowLabel label("Robot X");
    label.setAutosize(true);
    EXPECT_GT(label.width(), 20);
    label.setCaption("");
    EXPECT_EQ(label.size(), QSize(kShadowReach, kShadowReach));
}

// Where something is drawn.
QRect drawnArea(const QImage& picture) {
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) != 0) area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

const SystemColours kColours = {{kRoleButtonText, rgb(200, 0, 0)},
                                {kRoleButtonFace, rgb(240, 240, 250)},
                                {kRoleButtonShadow, rgb(90, 90, 100)}};

TEST(ShadowLabelWidget, SystemColourReferencesAndPlainColoursGiveTheSamePicture) {
    ShadowLabel referred("Robot X");
    referred.setSystemColours(kColours);
    referred.setBackColor(kButtonText);
    ShadowLabel plain("Robot X");
    plain.setForeColor(rgb(200, 0, 0));
    plain.setBackColor(rgb(200, 0, 0));
    plain.setShadowColor(rgb(90, 90, 100));
    for (ShadowLabel* label : {&referred, &plain}) label->resize(120, 24);
    EXPECT_EQ(pictureOf(referred), pictureOf(plain));
    plain.setForeColor(rgb(0, 0, 0));
    EXPECT_NE(pictureOf(referred), pictureOf(plain));
}

TEST(ShadowLabelWidget, OnAGroundOfTheFacesColourReferenceAndPlainBackgroundAreTheSame) {
    QWidget ground;
    ground.setPalette(QPalette(QColor(240, 240, 250)));
    ground.resize(140, 40);
    QImage pictures[2];
    for (const bool plain : {false, true}) {
        ShadowLabel label("Robot X", &ground);
        label.setSystemColours(kColours);
        if (plain) label.setBackColor(rgb(240, 240, 250));
        label.setGeometry(5, 5, 120, 24);
        pictures[plain ? 1 : 0] = ground.grab().toImage();
    }
    int most = 0;
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 140; ++x) {
            const QColor one = pictures[0].pixelColor(x, y);
            const QColor other = pictures[1].pixelColor(x, y);
            most = std::max({most, std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                             std::abs(one.blue() - other.blue())});
        }
    }
    // Sixteen layers of smooth edges are rounded before they are laid on the ground, or after.
    EXPECT_LE(most, 3);
}

TEST(ShadowLabelWidget, SystemColoursFollowTheWindowsPalette) {
    ShadowLabel label("Robot X");
    label.resize(120, 24);
    const QImage before = pictureOf(label);
    QPalette other = label.palette();
    other.setColor(QPalette::ButtonText, Qt::magenta);
    label.setPalette(other);
    EXPECT_NE(pictureOf(label), before);
}

TEST(ShadowLabelWidget, EverySystemColourIsOneOfThePalettes) {
    constexpr int kLastRole = 0x18;
    QPalette palette;
    const QPalette::ColorRole inUse[] = {
        QPalette::Base,     QPalette::Window,      QPalette::Highlight,       QPalette::Mid,
        QPalette::Button,   QPalette::Dark,        QPalette::HighlightedText, QPalette::ButtonText,
        QPalette::Text,     QPalette::Shadow,      QPalette::WindowText,      QPalette::Light,
        QPalette::Midlight, QPalette::ToolTipText, QPalette::ToolTipBase};
    for (const auto role : inUse) palette.setColor(role, QColor(200, static_cast<int>(role), 7));
    const SystemColours colours = systemColours(palette);
    for (int role = 0; role <= kLastRole; ++role) {
        const ColourParts parts = partsOf(plainColour(systemColour(role), colours));
        EXPECT_EQ(parts.red, 200) << role;
        EXPECT_EQ(parts.blue, 7) << role;
    }
    EXPECT_EQ(plainColour(systemColour(0x05), colours), rgb(200, QPalette::Base, 7));
    EXPECT_EQ(plainColour(systemColour(0x08), colours), rgb(200, QPalette::Text, 7));
    EXPECT_EQ(plainColour(kButtonFace, colours), rgb(200, QPalette::Window, 7));
    EXPECT_EQ(plainColour(kButtonShadow, colours), rgb(200, QPalette::Shadow, 7));
    EXPECT_EQ(plainColour(kButtonText, colours), rgb(200, QPalette::ButtonText, 7));
}

TEST(ShadowLabelWidget, WithoutWrappingTheTextStaysOnOneLineAndIsCutAtTheEdge) {
    ShadowLabel label("Heading of the robot in degrees");
    label.setWordWrap(false);
    const int oneLine = label.sizeHint().height();
    label.resize(60, 4 * oneLine);
    const QRect area = drawnArea(pictureOf(label));
    EXPECT_LE(area.bottom(), oneLine);
    EXPECT_EQ(area.right(), 59);
}

TEST(ShadowLabelWidget, WrappedTheSameTextTakesMoreLinesWithinTheEdge) {
    ShadowLabel label("Heading of the robot in degrees");
    const int oneLine = label.sizeHint().height();
    label.resize(80, 6 * oneLine);
    EXPECT_GT(drawnArea(pictureOf(label)).bottom(), oneLine);
    EXPECT_GT(label.heightForWidth(80), oneLine);
}

TEST(ShadowLabelWidget, AlignmentPutsTheTextLeftRightOrInTheMiddle) {
    ShadowLabel label("Robot X");
    label.resize(200, 24);
    const int left = drawnArea(pictureOf(label)).left();
    label.setAlignment(kAlignRight);
    const QRect right = drawnArea(pictureOf(label));
    label.setAlignment(kAlignCentre);
    const QRect centre = drawnArea(pictureOf(label));
    EXPECT_LE(left, 3);
    EXPECT_GE(right.right(), 195);
    EXPECT_NEAR(centre.center().x(), 100, 4);
}

TEST(ShadowLabelWidget, ALineThatIsTooLongShowsItsEndOnTheRightAndItsMiddleInTheMiddle) {
    ShadowLabel label("....................MMMMMMMM....................");
    label.setWordWrap(false);
    label.resize(40, 24);
    const QRect left = drawnArea(pictureOf(label));
    label.setAlignment(kAlignRight);
    const QRect right = drawnArea(pictureOf(label));
    label.setAlignment(kAlignCentre);
    const QRect centre = drawnArea(pictureOf(label));
    // Dots at both ends, tall letters between them.
    EXPECT_EQ(left.height(), right.height());
    EXPECT_GT(centre.height(), left.height());
}

TEST(ShadowLabelWidget, ALineBreakInTheCaptionIsOneOnlyWhereItMayWrap) {
    ShadowLabel label("Robot\nX");
    label.resize(120, 80);
    const int two = drawnArea(pictureOf(label)).height();
    label.setWordWrap(false);
    EXPECT_LT(drawnArea(pictureOf(label)).height(), two);
}

TEST(ShadowLabelWidget, TheShadowLiesRightAndBelowOfTheText) {
    ShadowLabel label("HHHH");
    label.resize(100, 24);
    label.setForeColor(rgb(255, 0, 0));
    label.setShadowColor(rgb(0, 0, 255));
    label.setFontChoice({"DejaVu Sans", 30, true, false});
    label.resize(label.sizeHint());
    const QImage picture = pictureOf(label);
    QRect text;
    QRect shadow;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (pixel == qRgb(255, 0, 0)) text |= QRect(x, y, 1, 1);
            if (qAlpha(pixel) == 255 && qBlue(pixel) > qRed(pixel)) shadow |= QRect(x, y, 1, 1);
        }
    }
    ASSERT_FALSE(text.isEmpty());
    EXPECT_EQ(shadow.bottom(), text.bottom() + kShadowReach);
    EXPECT_NEAR(shadow.right(), text.right() + kShadowReach, 1);
}

TEST(ShadowLabelWidget, AutosizeFitsTheTextWithoutCuttingIt) {
    ShadowLabel label("Robot X");
    label.setWordWrap(false);
    label.setAutosize(true);
    EXPECT_EQ(label.size(), label.sizeHint());
    const QImage fitted = pictureOf(label);
    label.setAutosize(false);
    label.resize(label.width() + 50, label.height() + 50);
    EXPECT_EQ(drawnArea(pictureOf(label)), drawnArea(fitted));
}

TEST(ShadowLabelWidget, AutosizeFollowsCaptionAndFont) {
    ShadowLabel label("Robot X");
    label.setWordWrap(false);
    label.setAutosize(true);
    const QSize before = label.size();
    label.setCaption("Robot X and Y");
    EXPECT_GT(label.width(), before.width());
    QFont large = label.font();
    large.setPointSizeF(large.pointSizeF() * 2);
    label.setFont(large);
    EXPECT_GT(label.height(), before.height());
}

TEST(ShadowLabelWidget, EveryPropertyIsStoredAndDrawn) {
    ShadowLabel label("Robot X");
    label.resize(120, 60);
    QImage before = pictureOf(label);
    const auto differs = [&](const char* what) {
        const QImage after = pictureOf(label);
        EXPECT_NE(after, before) << what;
        before = after;
    };
    label.setCaption("Robot Y");
    differs("Caption");
    label.setAlignment(kAlignRight);
    differs("Alignment");
    label.setForeColor(rgb(0, 0, 250));
    differs("ForeColor");
    label.setBackColor(rgb(250, 250, 0));
    differs("BackColor");
    label.setShadowColor(rgb(250, 0, 0));
    differs("ShadowColor");
    label.setFontChoice({"DejaVu Sans", 16, true, false});
    differs("Font");
    label.setEnabled(false);
    differs("Enabled");
    label.setCaption("Robot Y and the heading of the robot");
    differs("Caption");
    label.setWordWrap(false);
    differs("WordWrap");
    label.setAutosize(true);
    differs("Autosize");
    EXPECT_EQ(label.properties().font.points, 16);
    EXPECT_FALSE(label.properties().enabled);
}

TEST(ShadowLabelWidget, AFontWithoutASizeHasTheAmbientOneWhateverWasChosenBefore) {
    ShadowLabel label("Robot X");
    const double ambient = label.font().pointSizeF();
    label.setFontChoice({"DejaVu Sans", 20, true, false});
    label.setFontChoice({"DejaVu Sans", 0, false, false});
    EXPECT_EQ(label.font().pointSizeF(), ambient);
}

TEST(ShadowLabelWidget, ALabelMadeInADisabledParentIsDisabled) {
    QWidget window;
    window.setEnabled(false);
    EXPECT_FALSE((new ShadowLabel("Robot X", &window))->properties().enabled);
}

// What a text is drawn on: its own shadow, the window, a group, a box.
TEST(ShadowLabelWidget, TheTextKeepsTheContrastForReadingOnItsShadowAndGroundInBothLooks) {
    for (const Theme* theme : {&lightTheme(), &darkTheme()}) {
        ShadowLabelProperties label;
        label.caption = "Robot X";
        for (const bool enabled : {true, false}) {
            label.enabled = enabled;
            const std::vector<TextDraw> draws =
                labelDrawing(label, {80, 20}, {}, systemColours(palette(*theme))).draws;
            const Colour text = draws.back().colour;
            for (std::size_t i = 0; i + 1 < draws.size(); ++i)
                EXPECT_GE(contrastRatio(text, draws[i].colour), 4.5)
                    << theme->dark << enabled << " draw " << i;
            for (const QColor& ground : {theme->window, theme->surface, theme->field})
                EXPECT_GE(contrastRatio(text, plainColour(ground)), 4.5)
                    << theme->dark << enabled << ground.name().toStdString();
        }
    }
}

TEST(ShadowLabelWidget, OnAFinerScreenItIsDrawnWithTheScreensPixels) {
    ShadowLabel label("Robot X");
    label.resize(100, 24);
    QImage picture(200, 48, QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::transparent);
    label.render(&picture, {}, {}, QWidget::RenderFlags());
    // Enlarged, every pixel would have three like it.
    bool fine = false;
    for (int y = 0; y < 48; y += 2) {
        for (int x = 0; x < 200; x += 2) {
            const QRgb pixel = picture.pixel(x, y);
            fine = fine || pixel != picture.pixel(x + 1, y) || pixel != picture.pixel(x, y + 1);
        }
    }
    EXPECT_TRUE(fine);
}

TEST(ShadowLabelWidget, AScreenReaderFindsATextWithTheCaptionAsItsName) {
    ShadowLabel label("Robot X");
    QAccessibleInterface* const reader = QAccessible::queryAccessibleInterface(&label);
    ASSERT_NE(reader, nullptr);
    EXPECT_EQ(reader->role(), QAccessible::StaticText);
    EXPECT_EQ(reader->text(QAccessible::Name), "Robot X");
    label.setAccessibleName("Where the robot is");
    EXPECT_EQ(reader->text(QAccessible::Name), "Where the robot is");
}

TEST(ShadowLabelWidget, ItTakesNoFocus) {
    EXPECT_EQ(ShadowLabel("Robot X").focusPolicy(), Qt::NoFocus);
}

}  // namespace
}  // namespace quorrin
