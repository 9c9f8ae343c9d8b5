#include "robot/stand_in_pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/camera_pictures.h"
#include "platform/virtual/memory_files.h"
#include "robot/site_error.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr CameraSize kSize{4, 2};

CameraPicture plain(int width, int height, char grey) {
    return {width, height,
            std::string(3 * static_cast<std::size_t>(width) * static_cast<std::size_t>(height), grey)};
}
char greyAt(const CameraPicture& picture, int x, int y) {
    return picture.pixels[3 * static_cast<std::size_t>(y * picture.width + x)];
}

class StandInTest : public testing::Test {
  protected:
    StandInTest() { files.createFolder("/shots"); }

    void put(const std::string& path, char grey) { files.put(path, bitmapFile(plain(4, 2, grey))); }
    StandInPictures pictures(const std::string& path, CameraSize size = kSize) {
        return {files, pictureFileReader(files), path, size,
                [this](const std::string& line) { log.push_back(line); }};
    }
    static std::string greysOf(StandInPictures& shown, int count) {
        std::string greys;
        for (int i = 0; i < count; ++i) greys += greyAt(shown.next(), 0, 0);
        return greys;
    }
    std::string errorOf(const std::string& path) {
        try {
            pictures(path);
        } catch (const SiteError& error) {
            return error.what();
        }
        return "";
    }

    MemoryFiles files;
    std::vector<std::string> log;
};

TEST_F(StandInTest, AFileIsShownAgainAndAgain) {
    put("/shots/one.bmp", 'x');
    StandInPictures shown = pictures("/shots/one.bmp");
    EXPECT_EQ(greysOf(shown, 3), "xxx");
}

TEST_F(StandInTest, AFoldersPicturesFollowEachOtherByNameAndBeginAgain) {
    put("/shots/b.bmp", 'b');
    put("/shots/a.BMP", 'a');
    put("/shots/c.bmp", 'c');
    files.put("/shots/notes.txt", "no picture");
    StandInPictures shown = pictures("/shots");
    EXPECT_EQ(greysOf(shown, 7), "abcabca");
    EXPECT_THAT(log, ElementsAre());
}

TEST_F(StandInTest, AFolderMayEndInASlash) {
    put("/shots/a.bmp", 'a');
    StandInPictures shown = pictures("/shots/");
    EXPECT_EQ(greysOf(shown, 1), "a");
}

TEST_F(StandInTest, APictureOfTheCamerasSizeIsGivenByteByByte) {
    CameraPicture corners = plain(4, 2, '\0');
    for (std::size_t i = 0; i < corners.pixels.size(); ++i) corners.pixels[i] = static_cast<char>(i * 7);
    files.put("/shots/corners.bmp", bitmapFile(corners));
    StandInPictures shown = pictures("/shots/corners.bmp");
    EXPECT_EQ(shown.next().pixels, corners.pixels);
}

TEST_F(StandInTest, ABrokenPictureIsToldOnceAndLeftOut) {
    put("/shots/a.bmp", 'a');
    files.put("/shots/b.jpg", "\xFF\xD8 broken");
    put("/shots/c.bmp", 'c');
    StandInPictures shown = pictures("/shots");
    EXPECT_EQ(greysOf(shown, 5), "acaca");
    ASSERT_EQ(log.size(), 1u);
    EXPECT_THAT(log[0], HasSubstr("/shots/b.jpg: the picture in the file is damaged"));
}

TEST_F(StandInTest, TheLastPictureStaysWhenAllOthersHaveGone) {
    put("/shots/a.bmp", 'a');
    put("/shots/b.bmp", 'b');
    StandInPictures shown = pictures("/shots");
    EXPECT_EQ(greysOf(shown, 1), "a");
    files.remove("/shots/a.bmp");
    files.remove("/shots/b.bmp");
    EXPECT_EQ(greysOf(shown, 3), "aaa");
}

TEST_F(StandInTest, NothingToShowIsAnError) {
    EXPECT_THAT(errorOf("/shots"), HasSubstr("in the folder /shots"));
    EXPECT_THAT(errorOf("/shots/missing.bmp"), HasSubstr("/shots/missing.bmp"));
    files.put("/shots/bad.bmp", "");
    EXPECT_THAT(errorOf("/shots"), HasSubstr("no picture for the camera in /shots"));
    EXPECT_THAT(log.back(), HasSubstr("the file is empty"));
}

TEST(FittedPicture, KeepsItsShapeInTheMiddleOfBlack) {
    const CameraPicture wide = fittedPicture(plain(8, 2, 'w'), kSize);
    EXPECT_EQ(greyAt(wide, 0, 0), 'w');
    EXPECT_EQ(greyAt(wide, 3, 0), 'w');
    EXPECT_EQ(greyAt(wide, 0, 1), '\0');
    const CameraPicture tall = fittedPicture(plain(2, 2, 't'), kSize);
    EXPECT_EQ(greyAt(tall, 0, 0), '\0');
    EXPECT_EQ(greyAt(tall, 1, 1), 't');
    EXPECT_EQ(greyAt(tall, 2, 1), 't');
    EXPECT_EQ(greyAt(tall, 3, 1), '\0');
}

TEST(FittedPicture, ALargerOneIsAveraged) {
    CameraPicture fine = plain(8, 4, '\0');
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 8; x += 2)
            for (std::size_t i = 0; i < 3; ++i)
                fine.pixels[3 * static_cast<std::size_t>(y * 8 + x) + i] = 100;
    const CameraPicture coarse = fittedPicture(fine, kSize);
    EXPECT_EQ(coarse.pixels, std::string(24, 50));
}

TEST(FittedPicture, ThinLinesAndSinglePixelsDoNotVanish) {
    EXPECT_EQ(fittedPicture(plain(1000, 1, 'l'), kSize).pixels.find('l'), 0u);
    EXPECT_EQ(fittedPicture(plain(1, 1000, 'l'), kSize).width, 4);
    EXPECT_EQ(greyAt(fittedPicture(plain(1, 1, 'p'), kSize), 1, 0), 'p');
}

}  // namespace
}  // namespace quorrin
