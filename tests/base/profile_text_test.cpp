#include "base/profile_text.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

using std::string;

string value(const string& text, const string& section, const string& key) {
    return profileValue(text, section, key).value_or("<none>");
}

TEST(ProfileText, FindsAValueInItsSection) {
    const string text = "[WiFi]\nWiFiIP=10.0.0.1\nWiFiPort=10001\n[servo1]\ninit=2300\n";
    EXPECT_EQ(value(text, "WiFi", "WiFiIP"), "10.0.0.1");
    EXPECT_EQ(value(text, "WiFi", "WiFiPort"), "10001");
    EXPECT_EQ(value(text, "servo1", "init"), "2300");
}

TEST(ProfileText, DoesNotLookForAKeyInAnotherSection) {
    EXPECT_FALSE(profileValue("[a]\nx=1\n[b]\ny=2\n", "a", "y").has_value());
    EXPECT_FALSE(profileValue("[a]\nx=1\n[b]\ny=2\n", "b", "x").has_value());
    EXPECT_FALSE(profileValue("[a]\nx=1\n", "c", "x").has_value());
    EXPECT_FALSE(profileValue("", "a", "x").has_value());
}

TEST(ProfileText, SaysNothingBeforeTheFirstSection) {
    EXPECT_FALSE(profileValue("x=1\n[a]\ny=2\n", "", "x").has_value());
    EXPECT_FALSE(profileValue("x=1\n[a]\ny=2\n", "a", "x").has_value());
}

TEST(ProfileText, ComparesNamesWithoutRegardToCase) {
    EXPECT_EQ(value("[wIfI]\nWIFIPORT=7\n", "WiFi", "WiFiPort"), "7");
}

TEST(ProfileText, TellsNamesApartThatOnlyBeginAlike) {
    EXPECT_EQ(value("[WiFi2]\nWiFiIP=no\n[WiFi]\nWiFiIPx=no\nWiFiI=no\nWiFiIP=yes\n", "WiFi", "WiFiIP"),
              "yes");
}

TEST(ProfileText, IgnoresBlanksAroundNamesEqualSignAndValue) {
    EXPECT_EQ(value("  [ WiFi ]  \n \tWiFiIP \t=  10.0.0.1\t \n", "WiFi", "WiFiIP"), "10.0.0.1");
}

TEST(ProfileText, KeepsBlanksInsideAValue) {
    EXPECT_EQ(value("[a]\nx=one  two\n", "a", "x"), "one  two");
}

TEST(ProfileText, TakesOffOnePairOfMatchingQuotes) {
    EXPECT_EQ(value("[a]\nx=\" 7 \"\n", "a", "x"), " 7 ");
    EXPECT_EQ(value("[a]\nx='7'\n", "a", "x"), "7");
    EXPECT_EQ(value("[a]\nx=\"\"7\"\"\n", "a", "x"), "\"7\"");
    EXPECT_EQ(value("[a]\nx=\"\"\n", "a", "x"), "");
}

TEST(ProfileText, KeepsQuotesThatDoNotMatch) {
    EXPECT_EQ(value("[a]\nx=\"7'\n", "a", "x"), "\"7'");
    EXPECT_EQ(value("[a]\nx=\"7\n", "a", "x"), "\"7");
    EXPECT_EQ(value("[a]\nx=\"\n", "a", "x"), "\"");
    EXPECT_EQ(value("[a]\nx=say \"7\"\n", "a", "x"), "say \"7\"");
}

TEST(ProfileText, TakesTheFirstOfSeveralLinesWithAKey) {
    EXPECT_EQ(value("[a]\nx=1\nx=2\n", "a", "x"), "1");
}

TEST(ProfileText, CountsOnlyTheFirstOfSeveralSectionsWithAName) {
    const string text = "[a]\nx=1\n[b]\nz=9\n[A]\nx=2\ny=3\n";
    EXPECT_EQ(value(text, "a", "x"), "1");
    EXPECT_FALSE(profileValue(text, "a", "y").has_value());
}

TEST(ProfileText, SkipsCommentLines) {
    EXPECT_EQ(value("; [a]\n[a]\n;x=1\n  ; x=2\nx=3\n", "a", "x"), "3");
    EXPECT_FALSE(profileValue("[a]\n;x=1\n", "a", ";x").has_value());
}

TEST(ProfileText, KeepsASemicolonInsideAValue) {
    EXPECT_EQ(value("[a]\nx=1 ; one\n", "a", "x"), "1 ; one");
}

TEST(ProfileText, TellsAnEmptyValueFromAMissingKey) {
    EXPECT_EQ(value("[a]\nx=\n", "a", "x"), "");
    EXPECT_EQ(value("[a]\nx\n", "a", "x"), "<none>");
}

TEST(ProfileText, KeepsEqualSignsInsideAValue) {
    EXPECT_EQ(value("[a]\nx=y=z\n", "a", "x"), "y=z");
}

TEST(ProfileText, ReadsLinesThatEndWithCrLfOrCrOrNothing) {
    EXPECT_EQ(value("[a]\r\nx=1\r\ny=2\r\n", "a", "y"), "2");
    EXPECT_EQ(value("[a]\rx=1\ry=2", "a", "x"), "1");
    EXPECT_EQ(value("[a]\nx=1", "a", "x"), "1");
}

TEST(ProfileText, SkipsAByteOrderMark) {
    EXPECT_EQ(value("\xEF\xBB\xBF[a]\nx=1\n", "a", "x"), "1");
}

TEST(ProfileText, DoesNotTakeAnUnclosedBracketForASection) {
    EXPECT_EQ(value("[a]\n[b\nx=1\n", "a", "x"), "1");
}

TEST(ProfileText, ReplacesAValueInItsPlaceAndKeepsEveryOtherByte) {
    EXPECT_EQ(withProfileValue("; top\r\n[WiFi]\r\n  wifiip = 1.2.3.4 \r\nWiFiPort=1\r\n\r\n[z]\r\n", "WiFi",
                               "WiFiIP", "127.127.0.1"),
              "; top\r\n[WiFi]\r\n  wifiip = 127.127.0.1 \r\nWiFiPort=1\r\n\r\n[z]\r\n");
}

TEST(ProfileText, ReplacesQuotesTogetherWithTheValue) {
    EXPECT_EQ(withProfileValue("[a]\nx=\"old\"\n", "a", "x", "new"), "[a]\nx=new\n");
}

TEST(ProfileText, FillsAnEmptyValue) {
    EXPECT_EQ(withProfileValue("[a]\nx=\ny=2\n", "a", "x", "1"), "[a]\nx=1\ny=2\n");
    EXPECT_EQ(withProfileValue("[a]\nx=", "a", "x", "1"), "[a]\nx=1");
}

TEST(ProfileText, ReplacesInTheFirstSectionAndLineOnly) {
    EXPECT_EQ(withProfileValue("[a]\nx=1\nx=2\n[a]\nx=3\n", "a", "x", "9"), "[a]\nx=9\nx=2\n[a]\nx=3\n");
}

TEST(ProfileText, PutsANewKeyBehindTheLastFilledLineOfItsSection) {
    EXPECT_EQ(withProfileValue("[a]\nx=1\n\n[b]\ny=2\n", "a", "z", "3"), "[a]\nx=1\nz=3\n\n[b]\ny=2\n");
    EXPECT_EQ(withProfileValue("[a]\n[b]\ny=2\n", "a", "z", "3"), "[a]\nz=3\n[b]\ny=2\n");
    EXPECT_EQ(withProfileValue("[a]\nx=1", "a", "z", "3"), "[a]\nx=1\nz=3\n");
}

TEST(ProfileText, PutsANewSectionAtTheEnd) {
    EXPECT_EQ(withProfileValue("[a]\nx=1\n", "b", "z", "3"), "[a]\nx=1\n[b]\nz=3\n");
    EXPECT_EQ(withProfileValue("[a]\nx=1", "b", "z", "3"), "[a]\nx=1\n[b]\nz=3\n");
    EXPECT_EQ(withProfileValue("", "b", "z", "3"), "[b]\nz=3\n");
    EXPECT_EQ(withProfileValue("\xEF\xBB\xBF", "b", "z", "3"), "\xEF\xBB\xBF[b]\nz=3\n");
}

TEST(ProfileText, EndsNewLinesAsTheTextDoes) {
    EXPECT_EQ(withProfileValue("[a]\r\nx=1\r\n", "a", "y", "2"), "[a]\r\nx=1\r\ny=2\r\n");
    EXPECT_EQ(withProfileValue("[a]\r\nx=1", "b", "y", "2"), "[a]\r\nx=1\r\n[b]\r\ny=2\r\n");
}

TEST(ProfileText, ReadsBackWhatItWrote) {
    string text = "\xEF\xBB\xBF; mine\r\n[Other]\r\nk=v\r\n";
    text = withProfileValue(text, "WiFi", "WiFiIP", "10.0.0.9");
    text = withProfileValue(text, "WIFI", "WiFiPort", "10002");
    text = withProfileValue(text, "wifi", "wifiip", "10.0.0.10");
    EXPECT_EQ(value(text, "WiFi", "WiFiIP"), "10.0.0.10");
    EXPECT_EQ(value(text, "WiFi", "WiFiPort"), "10002");
    EXPECT_EQ(value(text, "Other", "k"), "v");
    EXPECT_EQ(text.rfind("\xEF\xBB\xBF; mine\r\n[Other]\r\nk=v\r\n", 0), 0U);
}

}  // namespace
}  // namespace quorrin
