// What the installation copies to a new user has the form that the programs expect.
#include <gmock/gmock.h>

#include "tree/command.h"
#include "tree/source_text.h"

namespace quorrin::tree {
namespace {

using testing::HasSubstr;

// Little-endian number of `bytes` bytes.
unsigned numberAt(const std::string& data, std::size_t at, int bytes) {
    unsigned value = 0;
    for (int i = bytes - 1; i >= 0; --i) {
        value = value * 256U + static_cast<unsigned char>(data.at(at + static_cast<std::size_t>(i)));
    }
    return value;
}

TEST(ShippedFiles, TheGreetingIsPcmOf8kHz16BitMono) {
    const std::string wav = readText("share/happy8k.wav");
    EXPECT_EQ(wav.substr(0, 4), "RIFF");
    EXPECT_EQ(numberAt(wav, 4, 4), wav.size() - 8);
    EXPECT_EQ(wav.substr(8, 8), "WAVEfmt ");
    EXPECT_EQ(numberAt(wav, 20, 2), 1U);
    EXPECT_EQ(numberAt(wav, 22, 2), 1U);
    EXPECT_EQ(numberAt(wav, 24, 4), 8000U);
    EXPECT_EQ(numberAt(wav, 34, 2), 16U);
    EXPECT_EQ(numberAt(wav, 40, 4), wav.size() - 44);
}

TEST(ShippedFiles, TheFaceIsA24BitBitmapOf128By128Pixels) {
    const std::string bmp = readText("share/quorrin128.bmp");
    EXPECT_EQ(bmp.substr(0, 2), "BM");
    EXPECT_EQ(numberAt(bmp, 2, 4), bmp.size());
    EXPECT_EQ(numberAt(bmp, 18, 4), 128U);
    EXPECT_EQ(numberAt(bmp, 22, 4), 128U);
    EXPECT_EQ(numberAt(bmp, 28, 2), 24U);
    EXPECT_EQ(numberAt(bmp, 10, 4) + 128U * 3U * 128U, bmp.size());
}

TEST(ShippedFiles, SoundAndFaceAreWhatTheirGeneratorWrites) {
    const Outcome outcome = runCommand("tools/make-share-files --check");
    EXPECT_EQ(outcome.status, 0) << outcome.output;
}

TEST(ShippedFiles, EveryServoOfTheHeadHasItsNeutralPosition) {
    const std::string ini = readText("share/Quorrinsdk.ini");
    for (const char* section : {"[servo1]", "[servo2]", "[servo3]", "[servo5]", "[servo6]"}) {
        EXPECT_THAT(ini, HasSubstr(section));
    }
    EXPECT_EQ(matchesOf(ini, "^init=[0-9]+$").size(), 5U);
}

}  // namespace
}  // namespace quorrin::tree
