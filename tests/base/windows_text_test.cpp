#include "base/windows_text.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(WindowsText, PlainTextStaysAsItIs) {
    EXPECT_EQ(windowsText("1.5,wondering,^\r\n~"), "1.5,wondering,^\r\n~");
    EXPECT_EQ(windowsText(""), "");
}

TEST(WindowsText, ALatinLetterIsItsOneByte) {
    EXPECT_EQ(windowsText("\u00A0\u00FC\u00FF"), "\xA0\xFC\xFF");
}

TEST(WindowsText, TheLettersBetweenHaveTheirBytes) {
    EXPECT_EQ(windowsText("\u20AC\u201E\u2026\u0160\u017D\u2019\u2013\u2122\u0178"),
              "\x80\x84\x85\x8A\x8E\x92\x96\x99\x9F");
}

TEST(WindowsText, ACharacterThatIsNotInItIsOneQuestionMark) {
    EXPECT_EQ(windowsText("a\u673Ab"), "a?b");
    EXPECT_EQ(windowsText("\U0001F916"), "?");
    EXPECT_EQ(windowsText("\u0080"), "?");  // its byte is another character's
    EXPECT_EQ(windowsText("\u0081"), "\x81");
}

TEST(WindowsText, AByteThatIsNoUtf8IsAQuestionMark) {
    EXPECT_EQ(windowsText("a\xFF\xC3"), "a??");
}

}  // namespace
}  // namespace quorrin
