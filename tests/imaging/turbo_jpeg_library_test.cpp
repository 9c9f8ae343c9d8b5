// What the real JPEG library writes, read back by this room's own reader.
#include "imaging/turbo_jpeg_library.h"

#include <gtest/gtest.h>

#include <cstring>

#include "imaging/intel_jpeg_library.h"
#include "imaging/picture_loader.h"
#include "platform/host/posix_files.h"
#include "platform/virtual/memory_files.h"
#include "support/temp_folder.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

void expectNear(const PixelColour& found, const PixelColour& wanted) {
    EXPECT_NEAR(found.red, wanted.red, 12);
    EXPECT_NEAR(found.green, wanted.green, 12);
    EXPECT_NEAR(found.blue, wanted.blue, 12);
}

void expectCorners(const Bitmap& picture) {
    const std::int32_t right = picture.width() - 1;
    const std::int32_t bottom = picture.height() - 1;
    expectNear(pixelOf(picture, 0, 0), kUpperLeft);
    expectNear(pixelOf(picture, right, 0), kUpperRight);
    expectNear(pixelOf(picture, 0, bottom), kLowerLeft);
    expectNear(pixelOf(picture, right, bottom), kLowerRight);
}

class TurboJpegLibraryTest : public ::testing::Test {
  protected:
    MemoryFiles files;
    TurboJpegLibrary library{files};
    CurrentError error;
    mIntelJPEGLibrary module{files, library, error, "station"};
    cDIBSection dib;

    TurboJpegLibraryTest() { files.createFolder("/app"); }

    bool save(int quality, const std::string& path = "/app/a.jpg") {
        return module.SaveJPG(&dib, path, quality);
    }
    void takeCorners(int width, int height) {
        const auto picture = cornersPicture(width, height);
        dib.CreateFromPicture(picture.get());
    }
    JpegCoreProperties ready() {
        JpegCoreProperties block;
        EXPECT_EQ(library.ijlInit(block), kJpegOk);
        block.DIBWidth = block.JPGWidth = dib.Width();
        block.JPGHeight = dib.Height();
        block.DIBHeight = -dib.Height();
        block.DIBBytes = dib.DIBSectionBitsPtr();
        block.DIBPadBytes = dib.BytesPerScanLine() - dib.Width() * 3;
        block.JPGFile = "/app/a.jpg";
        block.jquality = 75;
        return block;
    }
};

TEST_F(TurboJpegLibraryTest, ThePictureComesOutTheRightWayUpInItsColours) {
    for (const int width : {64, 65, 66, 67, 320}) {
        takeCorners(width, 48);
        ASSERT_TRUE(save(90));
        const LoadedPicture read = loadPicture(files, "/app/a.jpg");
        ASSERT_NE(read.bitmap, nullptr);
        EXPECT_EQ(read.bitmap->width(), width);
        EXPECT_EQ(read.bitmap->height(), 48);
        expectCorners(*read.bitmap);
    }
}

TEST_F(TurboJpegLibraryTest, APositiveHeightTellsOfRowsFromTheTop) {
    takeCorners(64, 48);
    JpegCoreProperties block = ready();
    block.DIBHeight = 48;
    ASSERT_EQ(library.ijlWrite(block, IJL_JFILE_WRITEWHOLEIMAGE), kJpegOk);
    const LoadedPicture read = loadPicture(files, "/app/a.jpg");
    ASSERT_NE(read.bitmap, nullptr);
    expectNear(pixelOf(*read.bitmap, 0, 0), kLowerLeft);
}

TEST_F(TurboJpegLibraryTest, WritesABaselineFileOfThreeChannelsWithHalvedColour) {
    takeCorners(64, 48);
    ASSERT_TRUE(save(75));
    const std::string file = files.read("/app/a.jpg").value_or("");
    EXPECT_EQ(file.substr(6, 4), "JFIF");
    const std::size_t frame = file.find("\xFF\xC0");  // baseline; others begin otherwise
    ASSERT_NE(frame, std::string::npos);
    EXPECT_EQ(file[frame + 9], 3);
    EXPECT_EQ(file[frame + 11], 0x22);
    EXPECT_EQ(file[frame + 14], 0x11);
    EXPECT_EQ(file[frame + 17], 0x11);
}

TEST_F(TurboJpegLibraryTest, AHigherQualityMakesALargerFile) {
    const auto picture = scenePicture(160, 120);
    dib.CreateFromPicture(picture.get());
    std::size_t before = 0;
    for (const int quality : {1, 30, 75, 100}) {
        ASSERT_TRUE(save(quality));
        const std::size_t size = files.read("/app/a.jpg").value_or("").size();
        EXPECT_GT(size, before) << quality;
        before = size;
    }
}

TEST_F(TurboJpegLibraryTest, TheSmallestPictureIsOne) {
    takeCorners(1, 1);
    ASSERT_TRUE(save(100));
    const LoadedPicture read = loadPicture(files, "/app/a.jpg");
    ASSERT_NE(read.bitmap, nullptr);
    EXPECT_EQ(read.bitmap->width(), 1);
}

// Noise compresses so badly that the file outgrows the bitmap.
TEST_F(TurboJpegLibraryTest, NoiseAtTheHighestQualityHasRoom) {
    ASSERT_TRUE(dib.Create(101, 67));
    dib.RandomiseBits(false);
    ASSERT_TRUE(save(100));
    EXPECT_NE(loadPicture(files, "/app/a.jpg").bitmap, nullptr);
}

TEST_F(TurboJpegLibraryTest, ASmallPictureAfterALargeOneIsWholeAgain) {
    takeCorners(320, 240);
    ASSERT_TRUE(save(75));
    takeCorners(16, 16);
    ASSERT_TRUE(save(75));
    const LoadedPicture read = loadPicture(files, "/app/a.jpg");
    ASSERT_NE(read.bitmap, nullptr);
    EXPECT_EQ(read.bitmap->width(), 16);
    EXPECT_LT(files.read("/app/a.jpg").value_or("").size(), 2000U);
}

TEST_F(TurboJpegLibraryTest, AnEmptyBitmapIsNotWritten) {
    takeCorners(16, 16);
    dib.ClearUp();
    EXPECT_FALSE(save(75));
    EXPECT_FALSE(files.fileExists("/app/a.jpg"));
    EXPECT_EQ(error.text, "Failed to save to JPG -1");
    EXPECT_FALSE(module.SaveJPG(nullptr, "/app/a.jpg", 75));
}

TEST_F(TurboJpegLibraryTest, AQualityOutsideItsRangeIsAFailure) {
    takeCorners(16, 16);
    for (const int quality : {0, -1, 101, 2'147'483'647}) EXPECT_FALSE(save(quality)) << quality;
    EXPECT_EQ(error.text, "Failed to save to JPG -1");
}

TEST_F(TurboJpegLibraryTest, ASideThatNoJpegHasIsAFailure) {
    ASSERT_TRUE(dib.Create(65'501, 1));
    EXPECT_FALSE(save(75));
    EXPECT_EQ(error.text, "Failed to save to JPG -3");
    ASSERT_TRUE(dib.Create(65'500, 1));
    EXPECT_TRUE(save(75));
}

TEST_F(TurboJpegLibraryTest, AFullDiskIsAFailureAndLeavesNoFile) {
    takeCorners(16, 16);
    files.put("/app/a.jpg", "old");
    files.setDiskFull(true);
    EXPECT_FALSE(save(75));
    EXPECT_FALSE(files.fileExists("/app/a.jpg"));
    EXPECT_EQ(error.text, "Failed to save to JPG -4");
}

TEST_F(TurboJpegLibraryTest, AFolderThatIsNotThereIsAFailure) {
    takeCorners(16, 16);
    EXPECT_FALSE(save(75, "/nowhere/a.jpg"));
    EXPECT_FALSE(save(75, ""));
}

TEST_F(TurboJpegLibraryTest, OnlyAWholePictureOfTheBlocksOwnKindIsWritten) {
    takeCorners(16, 16);
    JpegCoreProperties block = ready();
    EXPECT_EQ(library.ijlWrite(block, 7), kJpegBadProperties);
    block.JPGWidth = 8;
    EXPECT_EQ(library.ijlWrite(block, IJL_JFILE_WRITEWHOLEIMAGE), kJpegBadProperties);
    block = ready();
    block.JPGChannels = 1;
    EXPECT_EQ(library.ijlWrite(block, IJL_JFILE_WRITEWHOLEIMAGE), kJpegBadProperties);
    block = ready();
    block.JPGFile = nullptr;
    EXPECT_EQ(library.ijlWrite(block, IJL_JFILE_WRITEWHOLEIMAGE), kJpegBadProperties);
}

TEST_F(TurboJpegLibraryTest, NothingIsWrittenOnceItIsFreed) {
    takeCorners(16, 16);
    JpegCoreProperties block = ready();
    EXPECT_EQ(library.ijlFree(block), kJpegOk);
    EXPECT_EQ(library.ijlWrite(block, IJL_JFILE_WRITEWHOLEIMAGE), kJpegNoEncoder);
}

TEST(SaveJpgOnDisk, ANewFileTakesTheTimesAndPermissionsOfTheOldOne) {
    const TempFolder folder;
    PosixFiles files;
    TurboJpegLibrary library(files);
    CurrentError error;
    mIntelJPEGLibrary module(files, library, error, "station");
    cDIBSection dib;
    const auto picture = cornersPicture(32, 32);
    dib.CreateFromPicture(picture.get());
    const std::string path = folder.path() + "/a.jpg";
    const FileStamps old{1'000'000'000'000'000'001, 1'100'000'000'000'000'002, 0604};
    ASSERT_TRUE(files.writeWhole(path, "old"));
    ASSERT_TRUE(files.putBackStamps(path, old));

    EXPECT_TRUE(module.SaveJPG(&dib, path, 75));
    EXPECT_EQ(files.stampsOf(path), old);
    EXPECT_EQ(files.read(path).value_or("").substr(0, 2), "\xFF\xD8");
    EXPECT_EQ(files.filesIn(folder.path()), std::vector<std::string>{"a.jpg"});
}

}  // namespace
}  // namespace quorrin
