// Picture files as they should be, and every way in which they are not.
#include "imaging/picture_loader.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>

#include "imaging/bmp_picture.h"
#include "imaging/intel_jpeg_library.h"
#include "imaging/jpeg_picture.h"
#include "imaging/turbo_jpeg_library.h"
#include "platform/virtual/memory_files.h"
#include "support/picture_files.h"

namespace quorrin {
namespace {

PictureFault faultOf(const std::string& content) {
    const LoadedPicture picture = readPicture(content);
    EXPECT_EQ(picture.bitmap == nullptr, picture.fault != PictureFault::none);
    return picture.fault;
}

PictureFault faultWith(std::size_t at, std::uint32_t value, int bytes) {
    std::string file = bmpFile(3, 2);
    putNumber(file, at, value, bytes);
    return faultOf(file);
}

TEST(BmpPicture, TheRowsStandWhereTheFileHasThem) {
    const auto picture = cornersPicture(5, 4);
    const LoadedPicture read = readPicture(bmpFileOf(*picture));
    ASSERT_NE(read.bitmap, nullptr);
    EXPECT_EQ(read.bitmap->width(), 5);
    EXPECT_EQ(read.bitmap->height(), 4);
    EXPECT_EQ(std::memcmp(read.bitmap->bits(), picture->bits(), picture->bytes()), 0);
}

TEST(BmpPicture, RowsFromTheTopAreTurnedRound) {
    const auto picture = cornersPicture(5, 4);
    std::string file = bmpFileOf(*picture);
    putNumber(file, 22, static_cast<std::uint32_t>(-4), 4);
    const LoadedPicture read = readPicture(file);
    ASSERT_NE(read.bitmap, nullptr);
    EXPECT_EQ(pixelOf(*read.bitmap, 0, 0), kLowerLeft);
    EXPECT_EQ(pixelOf(*read.bitmap, 4, 3), kUpperRight);
}

TEST(BmpPicture, ALongerHeaderAndBytesBehindThePictureDoNoHarm) {
    const auto picture = cornersPicture(5, 4);
    std::string file = bmpFileOf(*picture);
    file.insert(54, 68, 'h');
    putNumber(file, 10, 54 + 68, 4);
    putNumber(file, 14, 108, 4);
    file += "more";
    const LoadedPicture read = readPicture(file);
    ASSERT_NE(read.bitmap, nullptr);
    EXPECT_EQ(pixelOf(*read.bitmap, 0, 0), kUpperLeft);
}

TEST(BmpPicture, TheSizesThatTheHeaderTellsAreNotBelieved) {
    EXPECT_EQ(faultWith(2, 0xFFFFFFFF, 4), PictureFault::none);
    EXPECT_EQ(faultWith(34, 0xFFFFFFFF, 4), PictureFault::none);
}

TEST(BmpPicture, AFileWithoutAByteIsEmpty) {
    EXPECT_EQ(faultOf(""), PictureFault::empty);
    EXPECT_EQ(readBmp24("").fault, PictureFault::empty);
    EXPECT_EQ(readJpeg("").fault, PictureFault::empty);
}

TEST(BmpPicture, IsCutShortWhereverItEnds) {
    const std::string file = bmpFile(3, 2);
    for (std::size_t length = 1; length < file.size(); ++length)
        EXPECT_EQ(faultOf(file.substr(0, length)), PictureFault::cutShort) << length;
}

TEST(BmpPicture, OtherFilesAreNoPicture) {
    EXPECT_EQ(faultOf("text"), PictureFault::notAPicture);
    EXPECT_EQ(faultOf("\xFF"), PictureFault::notAPicture);
    EXPECT_EQ(faultOf(std::string(1000, '\0')), PictureFault::notAPicture);
    EXPECT_EQ(readJpeg("BM").fault, PictureFault::notAPicture);
}

TEST(BmpPicture, AHeaderOf20000By20000IsTooLargeWhateverFollows) {
    std::string file = bmpFile(3, 2);
    putNumber(file, 18, 20'000, 4);
    putNumber(file, 22, 20'000, 4);
    EXPECT_EQ(faultOf(file), PictureFault::tooLarge);
    putNumber(file, 18, 0x7FFFFFFF, 4);
    putNumber(file, 22, 0x7FFFFFFF, 4);
    EXPECT_EQ(faultOf(file), PictureFault::tooLarge);
    putNumber(file, 22, 0x80000000, 4);
    EXPECT_EQ(faultOf(file), PictureFault::tooLarge);
}

TEST(BmpPicture, ASizeThatFitsButNotTheFileIsCutShort) {
    EXPECT_EQ(faultWith(18, 8000, 4), PictureFault::cutShort);
    EXPECT_EQ(faultWith(22, 3, 4), PictureFault::cutShort);
    EXPECT_EQ(faultWith(10, 55, 4), PictureFault::cutShort);
    EXPECT_EQ(faultWith(10, 0xFFFFFFFF, 4), PictureFault::cutShort);
}

TEST(BmpPicture, OtherDepthsAndPackedRowsAreNotRead) {
    for (const std::uint32_t bits : {0U, 1U, 4U, 8U, 16U, 32U, 7U})
        EXPECT_EQ(faultWith(28, bits, 2), PictureFault::unsupported) << bits;
    for (const std::uint32_t packing : {1U, 2U, 3U, 4U, 5U, 0xFFFFFFFFU})
        EXPECT_EQ(faultWith(30, packing, 4), PictureFault::unsupported) << packing;
}

TEST(BmpPicture, AHeaderThatMakesNoSenseIsDamaged) {
    EXPECT_EQ(faultWith(18, 0, 4), PictureFault::damaged);
    EXPECT_EQ(faultWith(18, 0xFFFFFFFF, 4), PictureFault::damaged);
    EXPECT_EQ(faultWith(22, 0, 4), PictureFault::damaged);
    EXPECT_EQ(faultWith(14, 12, 4), PictureFault::damaged);
    EXPECT_EQ(faultWith(14, 0xFFFFFFFF, 4), PictureFault::damaged);
    EXPECT_EQ(faultWith(10, 53, 4), PictureFault::damaged);
    EXPECT_EQ(faultWith(26, 2, 2), PictureFault::damaged);
}

TEST(JpegPicture, ComesOutTheRightWayUp) {
    const LoadedPicture read = readPicture(jpegFile(*cornersPicture(33, 20), 95));
    ASSERT_NE(read.bitmap, nullptr);
    EXPECT_EQ(read.bitmap->width(), 33);
    EXPECT_EQ(read.bitmap->height(), 20);
    EXPECT_NEAR(pixelOf(*read.bitmap, 0, 0).red, 255, 10);
    EXPECT_NEAR(pixelOf(*read.bitmap, 32, 0).green, 255, 10);
    EXPECT_NEAR(pixelOf(*read.bitmap, 0, 19).blue, 255, 10);
}

TEST(JpegPicture, IsDamagedWhereverItEnds) {
    const std::string file = jpegFile(*scenePicture(32, 24), 75);
    for (std::size_t length = 2; length < file.size() - 2; ++length)
        EXPECT_EQ(faultOf(file.substr(0, length)), PictureFault::damaged) << length;
}

TEST(JpegPicture, AFrameThatIsLargerThanABitmapMayBeIsTooLarge) {
    std::string file = jpegFile(*scenePicture(32, 24), 75);
    const std::size_t frame = file.find("\xFF\xC0");
    ASSERT_NE(frame, std::string::npos);
    for (std::size_t i = 5; i < 9; ++i) file[frame + i] = static_cast<char>(0x4E);  // 20,046 x 20,046
    EXPECT_EQ(faultOf(file), PictureFault::tooLarge);
}

TEST(JpegPicture, OfFourInksIsNotRead) {
    std::string file = jpegFile(*scenePicture(32, 24), 75);
    const std::size_t frame = file.find("\xFF\xC0");
    ASSERT_NE(frame, std::string::npos);
    file.insert(frame + 19, std::string("\x04\x22\x01", 3));
    file[frame + 3] = 20;  // length of the frame header
    file[frame + 9] = 4;   // channels
    EXPECT_EQ(faultOf(file), PictureFault::unsupported);
}

TEST(PictureLoader, ReadsAFileByItsContentAndNotItsName) {
    MemoryFiles files;
    files.put("/app/a.jpg", bmpFile(3, 2));
    files.put("/app/b.bmp", jpegFile(*scenePicture(32, 24), 75));
    EXPECT_EQ(loadPicture(files, "/app/a.jpg").bitmap->width(), 3);
    EXPECT_EQ(loadPicture(files, "/app/b.bmp").bitmap->width(), 32);
    EXPECT_EQ(loadPicture(files, "/app/none").fault, PictureFault::missing);
}

TEST(PictureLoader, TellsEachFaultInAWordOfItsOwn) {
    std::set<std::string> texts;
    for (int fault = 1; fault <= static_cast<int>(PictureFault::damaged); ++fault)
        texts.insert(pictureFaultText(static_cast<PictureFault>(fault)));
    EXPECT_EQ(texts.size(), 7U);
    EXPECT_STREQ(pictureFaultText(PictureFault::none), "");
}

}  // namespace
}  // namespace quorrin
