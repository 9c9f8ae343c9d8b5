#include "desktop/window_clipboard.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "imaging/dib_section.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

TEST(WindowClipboard, TakesABitmapTheRightWayUpAndKeepsItAfterTheBitmapIsGone) {
    WindowClipboard clipboard;
    QGuiApplication::clipboard()->setText("before");
    {
        cDIBSection dib(cDIBSection::Host{nullptr, nullptr, &clipboard});
        const auto picture = cornersPicture(5, 3);
        dib.CreateFromPicture(picture.get());
        EXPECT_TRUE(dib.CopyToClipboard(false));
    }
    const QImage image = QGuiApplication::clipboard()->image();
    ASSERT_EQ(image.size(), QSize(5, 3));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(4, 0), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(0, 2), QColor(0, 0, 255));
    EXPECT_EQ(image.pixelColor(4, 2), QColor(255, 255, 0));
    EXPECT_TRUE(QGuiApplication::clipboard()->text().isEmpty());
}

TEST(WindowClipboard, RefusesAPictureWithoutAllItsPixels) {
    WindowClipboard clipboard;
    EXPECT_FALSE(clipboard.placeBitmap({2, 2, std::string(11, '\0')}));
    EXPECT_FALSE(clipboard.placeBitmap({0, 0, ""}));
    EXPECT_FALSE(clipboard.placeBitmap({-1, -1, std::string(3, '\0')}));
}

}  // namespace
}  // namespace quorrin
