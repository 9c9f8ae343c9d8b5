#include "base/whole_bitmap.h"

#include <gtest/gtest.h>

#include <string>

namespace quorrin {
namespace {

void put(std::string& file, std::size_t at, std::uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        file[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> 8 * i);
}

// Three by two pixels of 24 bits: rows of 12 bytes.
std::string small() {
    std::string file(54 + 24, '\0');
    file[0] = 'B';
    file[1] = 'M';
    put(file, 10, 54, 4);
    put(file, 14, 40, 4);
    put(file, 18, 3, 4);
    put(file, 22, 2, 4);
    put(file, 26, 1, 2);
    put(file, 28, 24, 2);
    return file;
}

std::string with(std::size_t at, std::uint32_t value, int bytes) {
    std::string file = small();
    put(file, at, value, bytes);
    return file;
}

TEST(WholeBitmap, IsOneWithAllItsRows) {
    EXPECT_TRUE(isWholeBitmap(small()));
    EXPECT_TRUE(isWholeBitmap(small() + "more"));
    EXPECT_TRUE(isWholeBitmap(with(22, static_cast<std::uint32_t>(-2), 4)));
}

TEST(WholeBitmap, IsNotOneThatIsCutOffAnywhere) {
    const std::string file = small();
    for (std::size_t length = 0; length < file.size(); ++length)
        EXPECT_FALSE(isWholeBitmap(file.substr(0, length))) << length;
}

TEST(WholeBitmap, CountsRowsInFourBytes) {
    // 33 pixels of one bit are two words; 24 bytes are three rows of them, not four.
    std::string file = with(28, 1, 2);
    put(file, 18, 33, 4);
    put(file, 22, 3, 4);
    EXPECT_TRUE(isWholeBitmap(file));
    put(file, 22, 4, 4);
    EXPECT_FALSE(isWholeBitmap(file));
}

TEST(WholeBitmap, TakesTheSizeOfAPackedPictureFromItsHeader) {
    std::string file = with(28, 8, 2);
    put(file, 30, 1, 4);
    EXPECT_FALSE(isWholeBitmap(file));
    put(file, 34, 24, 4);
    EXPECT_TRUE(isWholeBitmap(file));
    put(file, 34, 25, 4);
    EXPECT_FALSE(isWholeBitmap(file));
}

TEST(WholeBitmap, IsNothingWithAHeaderThatMakesNoSense) {
    EXPECT_FALSE(isWholeBitmap(with(0, 'X', 1)));
    EXPECT_FALSE(isWholeBitmap(with(10, 53, 4)));
    EXPECT_FALSE(isWholeBitmap(with(14, 12, 4)));
    EXPECT_FALSE(isWholeBitmap(with(18, 0, 4)));
    EXPECT_FALSE(isWholeBitmap(with(18, 0xFFFFFFFF, 4)));
    EXPECT_FALSE(isWholeBitmap(with(18, 0x7FFFFFFF, 4)));
    EXPECT_FALSE(isWholeBitmap(with(22, 0, 4)));
    EXPECT_FALSE(isWholeBitmap(with(22, 0x80000000, 4)));
    EXPECT_FALSE(isWholeBitmap(with(28, 7, 2)));
    EXPECT_FALSE(isWholeBitmap(with(10, 0xFFFFFFFF, 4)));
}

}  // namespace
}  // namespace quorrin
