#include "imaging/dib_section.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "base/program_error.h"
#include "platform/virtual/virtual_clock.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

void expectEmpty(const cDIBSection& dib) {
    EXPECT_EQ(dib.hDib(), nullptr);
    EXPECT_EQ(dib.hdc(), nullptr);
    EXPECT_EQ(dib.DIBSectionBitsPtr(), nullptr);
}

TEST(DibSection, IsEmptyAtFirst) {
    const cDIBSection dib;
    expectEmpty(dib);
    EXPECT_EQ(dib.Width(), 0);
    EXPECT_EQ(dib.Height(), 0);
    EXPECT_EQ(dib.BytesPerScanLine(), 0);
}

TEST(DibSection, AWidthOfOneHasRowsOfFourBytesAndAPadOfOne) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(1, 3));
    EXPECT_EQ(dib.BytesPerScanLine(), 4);
    EXPECT_EQ(dib.BytesPerScanLine() - dib.Width() * 3, 1);
}

TEST(DibSection, AWidthThatIsAMultipleOfFourHasNoPad) {
    cDIBSection dib;
    for (const int width : {4, 8, 320, 640}) {
        ASSERT_TRUE(dib.Create(width, 1));
        EXPECT_EQ(dib.BytesPerScanLine(), width * 3);
    }
}

TEST(DibSection, AMadeOneHasItsBitmapSelectedIntoItsContext) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(5, 4));
    ASSERT_NE(dib.hdc(), nullptr);
    ASSERT_NE(dib.hDib(), nullptr);
    EXPECT_EQ(dib.hdc()->selected(), dib.hDib());
    EXPECT_EQ(dib.DIBSectionBitsPtr(), dib.hDib()->bits());
    EXPECT_EQ(dib.Width(), 5);
    EXPECT_EQ(dib.Height(), 4);
}

TEST(DibSection, ItsHeaderIsThatOfABitmapFromTheBottomUp) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(5, 4));
    const BitmapInfoHeader& header = dib.header();
    EXPECT_EQ(header.size, 40U);
    EXPECT_EQ(header.width, 5);
    EXPECT_EQ(header.height, 4);
    EXPECT_EQ(header.planes, 1);
    EXPECT_EQ(header.bitCount, 24);
    EXPECT_EQ(header.compression, 0U);
    EXPECT_EQ(header.sizeImage, 64U);
}

TEST(DibSection, MakingAnotherReplacesTheOneThatWasThere) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(2, 2));
    dib.DIBSectionBitsPtr()[0] = 9;
    ASSERT_TRUE(dib.Create(3, 3));
    EXPECT_EQ(dib.DIBSectionBitsPtr()[0], 0);
    EXPECT_EQ(dib.Width(), 3);
}

TEST(DibSection, ABitmapThatCannotBeMadeLeavesItEmptyWithoutAnError) {
    cDIBSection dib;
    for (const auto& [width, height] :
         {std::pair{0, 0}, {-3, 5}, {5, -3}, {20'000, 20'000}, {2'147'483'647, 2}}) {
        ASSERT_TRUE(dib.Create(2, 2));
        EXPECT_FALSE(dib.Create(width, height)) << width;
        expectEmpty(dib);
    }
}

TEST(DibSection, ItGoesOnTellingTheLastSizeAfterClearUp) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(5, 4));
    dib.ClearUp();
    EXPECT_EQ(dib.Width(), 5);
    EXPECT_EQ(dib.Height(), 4);
    EXPECT_EQ(dib.BytesPerScanLine(), 16);
}

TEST(DibSection, TheLengthOfARowThatDoesNotFitIsAnError) {
    cDIBSection dib;
    EXPECT_FALSE(dib.Create(2'147'483'647, 1));
    EXPECT_THROW(dib.BytesPerScanLine(), ProgramError);
}

TEST(DibSection, ClearUpFreesOnceAndDoesNothingTheSecondTime) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(5, 4));
    dib.ClearUp();
    expectEmpty(dib);
    dib.ClearUp();
    expectEmpty(dib);
    ASSERT_TRUE(dib.Create(2, 2));
}

TEST(DibSection, CreateDibTellsTheHandleAndNeedsNoContext) {
    cDIBSection dib;
    Bitmap* handle = nullptr;
    EXPECT_TRUE(dib.CreateDIB(nullptr, 3, 2, handle));
    EXPECT_EQ(handle, dib.hDib());
    EXPECT_EQ(dib.DIBSectionBitsPtr(), handle->bits());
    EXPECT_EQ(dib.header().sizeImage, 24U);
    EXPECT_FALSE(dib.CreateDIB(nullptr, 0, 2, handle));
    EXPECT_EQ(handle, nullptr);
    EXPECT_EQ(dib.DIBSectionBitsPtr(), nullptr);
}

TEST(DibSection, CreateDibTakesTheOldBitmapOutOfTheContext) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(3, 2));
    Bitmap* handle = nullptr;
    EXPECT_TRUE(dib.CreateDIB(dib.hdc(), 4, 2, handle));
    EXPECT_EQ(dib.hdc()->selected(), nullptr);
}

TEST(DibSection, FromAPictureItIsACopy) {
    const auto picture = cornersPicture(5, 4);
    cDIBSection dib;
    dib.CreateFromPicture(picture.get());
    ASSERT_NE(dib.hDib(), nullptr);
    EXPECT_NE(dib.DIBSectionBitsPtr(), picture->bits());
    EXPECT_EQ(std::memcmp(dib.DIBSectionBitsPtr(), picture->bits(), picture->bytes()), 0);
    setPixel(*picture, 0, 0, {1, 2, 3});
    EXPECT_EQ(pixelOf(*dib.hDib(), 0, 0), kUpperLeft);
}

TEST(DibSection, FromNoPictureItIsEmpty) {
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(2, 2));
    dib.CreateFromPicture(nullptr);
    expectEmpty(dib);
}

class DibCopyTest : public ::testing::Test {
  protected:
    const std::unique_ptr<Bitmap> picture = cornersPicture(4, 4);
    DeviceContext context;
    cDIBSection dib;

    DibCopyTest() {
        context.select(picture.get());
        dib.Create(3, 3);
    }
};

TEST_F(DibCopyTest, LoadsFromThePlaceInTheSourceToItsOwnCorner) {
    dib.LoadPictureBlt(&context, 2, 0, 1, 2);
    EXPECT_EQ(pixelOf(*dib.hDib(), 0, 1), kUpperRight);
    EXPECT_EQ(pixelOf(*dib.hDib(), 1, 1), (PixelColour{0, 0, 0}));
}

TEST_F(DibCopyTest, ANegativeSizeMeansItsOwn) {
    dib.LoadPictureBlt(&context);
    EXPECT_EQ(pixelOf(*dib.hDib(), 2, 2), kLowerRight);
    dib.LoadPictureBlt(&context, 2, 0, 1, -7);
    EXPECT_EQ(pixelOf(*dib.hDib(), 0, 2), kLowerRight);
    EXPECT_EQ(pixelOf(*dib.hDib(), 1, 0), kUpperLeft);
}

TEST_F(DibCopyTest, PaintsFromItsPlaceToThePlaceInTheTarget) {
    setPixel(*dib.hDib(), 2, 1, {7, 8, 9});
    dib.PaintPicture(&context, 3, 0, 1, 1, 2, 1);
    EXPECT_EQ(pixelOf(*picture, 3, 0), (PixelColour{7, 8, 9}));
    EXPECT_EQ(pixelOf(*picture, 2, 0), kUpperRight);
}

TEST_F(DibCopyTest, PaintsAllOfItselfUnlessToldOtherwise) {
    dib.PaintPicture(&context);
    EXPECT_EQ(pixelOf(*picture, 2, 2), (PixelColour{0, 0, 0}));
    EXPECT_EQ(pixelOf(*picture, 3, 3), kLowerRight);
}

TEST_F(DibCopyTest, JoinsByAnotherOperationWhereOneIsGiven) {
    dib.LoadPictureBlt(&context, 0, 0, -1, -1, RasterOperation::notSourceCopy);
    EXPECT_EQ(pixelOf(*dib.hDib(), 0, 0), (PixelColour{0, 255, 255}));
    dib.PaintPicture(&context, 0, 0, -1, -1, 0, 0, RasterOperation::whiteness);
    EXPECT_EQ(pixelOf(*picture, 2, 2), (PixelColour{255, 255, 255}));
}

TEST_F(DibCopyTest, CopiesNothingWithoutAContextOrWhenEmpty) {
    dib.LoadPictureBlt(nullptr);
    dib.PaintPicture(nullptr);
    EXPECT_EQ(pixelOf(*dib.hDib(), 0, 0), (PixelColour{0, 0, 0}));
    dib.ClearUp();
    dib.LoadPictureBlt(&context);
    dib.PaintPicture(&context);
    EXPECT_EQ(pixelOf(*picture, 0, 0), kUpperLeft);
}

class RandomBitsTest : public ::testing::Test {
  protected:
    VirtualClock clock{CivilTime{2026, 11, 20, 9, 30, 15}};
    cDIBSection dib{cDIBSection::Host{&clock, nullptr, nullptr}};
    // What a walk that began at this time of day draws.
    std::mt19937 sequence{9 * 3600 + 30 * 60 + 15};
    int next() { return static_cast<int>(sequence() & 0xFF); }
    const std::uint8_t* inMemory(int x, int y) {
        return dib.DIBSectionBitsPtr() + y * dib.BytesPerScanLine() + x * 3;
    }
};

TEST_F(RandomBitsTest, GreyGoesRowByRowWithOneValueForAllThreeBytes) {
    ASSERT_TRUE(dib.Create(3, 2));
    dib.RandomiseBits(true);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            const int value = next();
            for (int channel = 0; channel < 3; ++channel) EXPECT_EQ(inMemory(x, y)[channel], value) << x << y;
        }
    }
}

TEST_F(RandomBitsTest, ColourGoesColumnByColumnAndLeavesBlueDark) {
    ASSERT_TRUE(dib.Create(3, 2));
    std::memset(dib.DIBSectionBitsPtr(), 0xAA, 24);
    dib.RandomiseBits(false);
    for (int x = 0; x < 3; ++x) {
        for (int y = 0; y < 2; ++y) {
            EXPECT_EQ(inMemory(x, y)[0], 0);
            EXPECT_EQ(inMemory(x, y)[1], next()) << x << y;
            EXPECT_EQ(inMemory(x, y)[2], next()) << x << y;
        }
    }
}

TEST_F(RandomBitsTest, AnotherTimeOfDayGivesOtherPixels) {
    ASSERT_TRUE(dib.Create(4, 4));
    dib.RandomiseBits(true);
    const std::string first(reinterpret_cast<const char*>(dib.DIBSectionBitsPtr()), 48);
    clock.runFor(1000);
    dib.RandomiseBits(true);
    EXPECT_NE(std::string(reinterpret_cast<const char*>(dib.DIBSectionBitsPtr()), 48), first);
}

TEST_F(RandomBitsTest, ThePadStaysAndAnEmptyOneHasNoPixels) {
    ASSERT_TRUE(dib.Create(1, 2));
    dib.RandomiseBits(false);
    dib.RandomiseBits(true);
    EXPECT_EQ(dib.DIBSectionBitsPtr()[3], 0);
    EXPECT_EQ(dib.DIBSectionBitsPtr()[7], 0);
    dib.ClearUp();
    dib.RandomiseBits(true);
    expectEmpty(dib);
}

}  // namespace
}  // namespace quorrin
