// The JPEG files that the station writes, judged by programs that are not its own: djpeg reads every one of
// them, and cjpeg's file of the same picture and quality is no better.
#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "imaging/intel_jpeg_library.h"
#include "imaging/turbo_jpeg_library.h"
#include "platform/host/posix_files.h"
#include "support/process.h"
#include "support/temp_folder.h"
#include "support/test_pictures.h"

namespace quorrin {
namespace {

// Three bytes a pixel, red, green, blue, rows from the top: the pixels of a PPM file.
std::string ppmPixels(const Bitmap& bitmap) {
    std::string pixels;
    for (std::int32_t y = 0; y < bitmap.height(); ++y) {
        for (std::int32_t x = 0; x < bitmap.width(); ++x) {
            const PixelColour colour = pixelOf(bitmap, x, y);
            for (const int channel : {colour.red, colour.green, colour.blue})
                pixels += static_cast<char>(channel);
        }
    }
    return pixels;
}

std::string ppmHeader(std::int32_t width, std::int32_t height) {
    return "P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
}

double psnr(const std::string& picture, const std::string& original) {
    double squares = 0;
    for (std::size_t i = 0; i < original.size(); ++i) {
        const int difference =
            static_cast<unsigned char>(picture[i]) - static_cast<unsigned char>(original[i]);
        squares += difference * difference;
    }
    return 10 * std::log10(255.0 * 255.0 * static_cast<double>(original.size()) / squares);
}

class JpegFilesTest : public ::testing::Test {
  protected:
    TempFolder folder;
    PosixFiles files;
    TurboJpegLibrary library{files};
    CurrentError error;
    mIntelJPEGLibrary module{files, library, error, "test"};

    std::string path(const std::string& name) const { return folder.path() + "/" + name; }

    bool save(Bitmap& picture, int quality, const std::string& name) {
        cDIBSection dib;
        dib.CreateFromPicture(&picture);
        return module.SaveJPG(&dib, path(name), quality);
    }
    bool runs(const std::vector<std::string>& command) {
        Process program(command, {folder.path()}, "program.out");
        const bool good = program.ends(20) == 0;
        // A decoder's warning is not its status.
        return good && program.output().empty();
    }
    // The pixels as the other program decodes them; nothing when it does not, or finds another size.
    std::optional<std::string> decoded(const std::string& name, std::int32_t width, std::int32_t height) {
        if (!runs({"djpeg", "-pnm", "-outfile", path(name + ".ppm"), path(name)})) return std::nullopt;
        const std::string ppm = files.read(path(name + ".ppm")).value_or("");
        const std::string header = ppmHeader(width, height);
        if (ppm.substr(0, header.size()) != header) return std::nullopt;
        return ppm.substr(header.size());
    }
};

TEST_F(JpegFilesTest, AnotherDecoderReadsEverySizeAndQualityWithoutAWarning) {
    for (const auto& [width, height] :
         {std::pair{1, 1}, {2, 3}, {15, 17}, {64, 48}, {317, 239}, {640, 480}}) {
        for (const int quality : {1, 30, 75, 100}) {
            ASSERT_TRUE(save(*scenePicture(width, height), quality, "a.jpg"));
            const auto pixels = decoded("a.jpg", width, height);
            ASSERT_TRUE(pixels) << width << "x" << height << " at " << quality;
            EXPECT_EQ(pixels->size(), static_cast<std::size_t>(width * height * 3));
        }
    }
}

TEST_F(JpegFilesTest, AnotherDecoderSeesTheFourCornersWhereTheyBelong) {
    for (const int width : {64, 65, 66, 67}) {
        constexpr int kHeight = 48;
        ASSERT_TRUE(save(*cornersPicture(width, kHeight), 90, "a.jpg"));
        const auto pixels = decoded("a.jpg", width, kHeight);
        ASSERT_TRUE(pixels);
        const auto expectAt = [&](int x, int y, const PixelColour& wanted) {
            const auto at = static_cast<std::size_t>((y * width + x) * 3);
            EXPECT_NEAR(static_cast<unsigned char>((*pixels)[at]), wanted.red, 12) << x << "," << y;
            EXPECT_NEAR(static_cast<unsigned char>((*pixels)[at + 1]), wanted.green, 12) << x << "," << y;
            EXPECT_NEAR(static_cast<unsigned char>((*pixels)[at + 2]), wanted.blue, 12) << x << "," << y;
        };
        expectAt(0, 0, kUpperLeft);
        expectAt(width - 1, 0, kUpperRight);
        expectAt(0, kHeight - 1, kLowerLeft);
        expectAt(width - 1, kHeight - 1, kLowerRight);
    }
}

TEST_F(JpegFilesTest, AQualityMeansWhatItMeansToTheEncodersOwnProgram) {
    for (const auto& [width, height] : {std::pair{640, 480}, {320, 240}}) {
        const auto picture = scenePicture(width, height);
        const std::string original = ppmPixels(*picture);
        ASSERT_TRUE(files.writeWhole(path("a.ppm"), ppmHeader(width, height) + original));
        for (const int quality : {75, 30}) {
            ASSERT_TRUE(save(*picture, quality, "ours.jpg"));
            ASSERT_TRUE(runs({"cjpeg", "-quality", std::to_string(quality), "-outfile", path("theirs.jpg"),
                              path("a.ppm")}));
            const auto ours = decoded("ours.jpg", width, height);
            const auto theirs = decoded("theirs.jpg", width, height);
            ASSERT_TRUE(ours && theirs);
            const double dB = psnr(*theirs, original);
            EXPECT_GT(dB, 25) << "the judge itself is wrong";
            EXPECT_NEAR(psnr(*ours, original), dB, 0.1) << width << " at " << quality;
            RecordProperty("psnr_" + std::to_string(width) + "_" + std::to_string(quality),
                           std::to_string(psnr(*ours, original)) + " against " + std::to_string(dB));
        }
    }
}

}  // namespace
}  // namespace quorrin
