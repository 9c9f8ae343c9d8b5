// Text as the speech channel takes it.
#include "client/spoken_text.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

TEST(SpokenText, PlainLettersGoAsTheyAre) {
    EXPECT_EQ(spokenBytes("Good morning, 7 o'clock."), "Good morning, 7 o'clock.");
}

TEST(SpokenText, LettersOfWesternEuropeAreOneByteEach) {
    EXPECT_EQ(spokenBytes("gr\xC3\xBC\xC3\x9F"), "gr\xFC\xDF");
}

TEST(SpokenText, TheEuroAndTypographicQuotesHaveTheirPlaces) {
    EXPECT_EQ(spokenBytes("\xE2\x82\xAC \xE2\x80\x9Cno\xE2\x80\x9D"), "\x80 \x93no\x94");
}

TEST(SpokenText, ACharacterThatIsNotInTheSetIsRefused) {
    EXPECT_FALSE(spokenBytes("\xCE\xB1"));          // alpha
    EXPECT_FALSE(spokenBytes("\xF0\x9F\x98\x80"));  // four bytes
    EXPECT_FALSE(spokenBytes("\xC2\x81"));          // a control that has no place
}

TEST(SpokenText, WhatIsNoUtf8IsRefused) {
    EXPECT_FALSE(spokenBytes("\xFC"));
    EXPECT_FALSE(spokenBytes("\xC3"));
    EXPECT_FALSE(spokenBytes("\xC3("));
    EXPECT_FALSE(spokenBytes("\xE0\x81\x81"));  // longer than need be
}

}  // namespace
}  // namespace quorrin
