// Texts from elsewhere on a terminal.
#include "client/printable_text.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(PrintableTextTest, WhatCanBeReadStaysAsItIs) {
    EXPECT_EQ(printableText("say Gr\xC3\xBC\xC3\x9F \"you\""), "say Gr\xC3\xBC\xC3\x9F \"you\"");
    EXPECT_EQ(printableBytes("0,0,0,4,JOY,0"), "0,0,0,4,JOY,0");
}

TEST(PrintableTextTest, ControlCharactersAreTold) {
    EXPECT_EQ(printableText(std::string_view("\x1B[2J\n\0\x7F", 7)), "\\x1B[2J\\x0A\\x00\\x7F");
    EXPECT_EQ(printableBytes("\x9B\x31\xFF"), "\\x9B1\\xFF");
}

TEST(PrintableTextTest, LongTextsAreCut) {
    EXPECT_EQ(printableText(std::string(kToldBytes, 'x')), std::string(kToldBytes, 'x'));
    EXPECT_EQ(printableBytes(std::string(kToldBytes + 1, 'x')), std::string(kToldBytes, 'x') + "...");
}

}  // namespace
}  // namespace quorrin
