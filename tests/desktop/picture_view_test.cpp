// The picture view and the station's own picture files: what the station saves is what the view shows.
#include "desktop/widgets/picture_view.h"

#include <gtest/gtest.h>

#include "support/picture_files.h"

namespace quorrin {
namespace {

void expectCorner(const QColor& found, const PixelColour& wanted) {
    EXPECT_NEAR(found.red(), wanted.red, 12);
    EXPECT_NEAR(found.green(), wanted.green, 12);
    EXPECT_NEAR(found.blue(), wanted.blue, 12);
}

TEST(PictureView, ShowsAJpegOfTheStationTheRightWayUp) {
    PictureView view;
    view.show();
    view.setContent(std::make_shared<const std::string>(jpegFile(*cornersPicture(64, 48), 90)));
    ASSERT_EQ(view.image().size(), QSize(64, 48));
    expectCorner(view.image().pixelColor(0, 0), kUpperLeft);
    expectCorner(view.image().pixelColor(63, 0), kUpperRight);
    expectCorner(view.image().pixelColor(0, 47), kLowerLeft);
    expectCorner(view.image().pixelColor(63, 47), kLowerRight);
}

TEST(PictureView, KeepsItsPictureWhenTheNextFileIsNone) {
    PictureView view;
    view.show();
    const std::string file = jpegFile(*cornersPicture(64, 48), 90);
    view.setContent(std::make_shared<const std::string>(file));
    for (const std::string& broken : {std::string(), std::string("text"), bmpFile(3, 2).substr(0, 40)})
        view.setContent(std::make_shared<const std::string>(broken));
    EXPECT_EQ(view.image().size(), QSize(64, 48));
    // A header alone asks for more memory than a picture may have.
    std::string large = bmpFile(3, 2);
    putNumber(large, 18, 20'000, 4);
    putNumber(large, 22, 20'000, 4);
    view.setContent(std::make_shared<const std::string>(large));
    EXPECT_EQ(view.image().size(), QSize(64, 48));
}

}  // namespace
}  // namespace quorrin
