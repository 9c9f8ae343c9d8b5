// Picture files with bytes changed, cut and added at random, from fixed seeds: each is read or refused, and
// what is read has all its pixels.
#include <gtest/gtest.h>

#include <cstring>
#include <random>

#include "imaging/picture_loader.h"
#include "support/picture_files.h"

namespace quorrin {
namespace {

class Mutator {
  public:
    explicit Mutator(unsigned seed) : random_(seed) {}

    // A few changes among the first `reach` bytes; now and then a cut or a tail.
    std::string operator()(std::string file, std::size_t reach) {
        const std::size_t changes = 1 + below(6);
        for (std::size_t i = 0; i < changes; ++i) change(file, below(std::min(reach, file.size())));
        if (below(8) == 0) file.resize(below(file.size() + 1));
        if (below(8) == 0) file.append(below(100), static_cast<char>(below(256)));
        return file;
    }

  private:
    std::size_t below(std::size_t count) { return count == 0 ? 0 : random_() % count; }
    void change(std::string& file, std::size_t at) {
        static constexpr std::uint32_t kOdd[] = {0,    1,      2,          3,          0x7F,       0x80,
                                                 0xFF, 0x7FFF, 0x8000,     0xFFFF,     20'000,     0x7FFFFFFF,
                                                 40,   108,    0x80000000, 0xFFFFFFFF, 0xFFFFFFFE, 0x10000};
        const int bytes = 1 << below(3);
        if (at + static_cast<std::size_t>(bytes) > file.size()) return;
        const std::uint32_t value = below(2) == 0 ? static_cast<std::uint32_t>(random_()) : kOdd[below(18)];
        putNumber(file, at, value, bytes);
    }

    std::mt19937 random_;
};

// Copies every byte of the picture, so that a sanitizer sees one that is not there.
void expectWholeOrRefused(const std::string& file, int& read, int& refused) {
    const LoadedPicture picture = readPicture(file);
    ASSERT_EQ(picture.bitmap == nullptr, picture.fault != PictureFault::none);
    if (!picture.bitmap) {
        ++refused;
        return;
    }
    ++read;
    ASSERT_TRUE(Bitmap::fits(picture.bitmap->width(), picture.bitmap->height()));
    cDIBSection dib;
    dib.CreateFromPicture(picture.bitmap.get());
    ASSERT_NE(dib.DIBSectionBitsPtr(), nullptr);
    const std::size_t bytes = static_cast<std::size_t>(dib.Width()) * 3;  // of a row, without its pad
    for (std::int32_t y = 0; y < dib.Height(); ++y)
        ASSERT_EQ(std::memcmp(dib.hDib()->row(y), picture.bitmap->row(y), bytes), 0);
}

TEST(MutatedPictures, BitmapsAreReadWholeOrRefused) {
    const std::string file = bmpFile(13, 7);
    Mutator mutate(1);
    int read = 0;
    int refused = 0;
    for (int i = 0; i < 20'000; ++i) expectWholeOrRefused(mutate(file, 54), read, refused);
    EXPECT_GT(read, 500);
    EXPECT_GT(refused, 5000);
}

TEST(MutatedPictures, JpegsAreReadWholeOrRefused) {
    const std::string file = jpegFile(*scenePicture(24, 16), 60);
    Mutator mutate(2);
    int read = 0;
    int refused = 0;
    for (int i = 0; i < 3'000; ++i) expectWholeOrRefused(mutate(file, file.size()), read, refused);
    EXPECT_GT(read, 50);
    EXPECT_GT(refused, 500);
}

}  // namespace
}  // namespace quorrin
