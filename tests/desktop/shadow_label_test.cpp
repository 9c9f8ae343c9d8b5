// The caption label as a widget: what its pictures show.
#include "desktop/widgets/shadow_label.h"

#include <gtest/gtest.h>

#include <QAccessible>

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

}  // namespace
}  // namespace quorrin
