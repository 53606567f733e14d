// Text from files, made harmless for where it is shown.
#include <gtest/gtest.h>

#include "text/SafeText.h"

namespace tessel {
namespace {

TEST(SafeText, NamesAndMessagesAreOneLineOfUtf8) {
  EXPECT_EQ(ForTerminal("plain \u00e9 \u20ac \U0001F600"), "plain \u00e9 \u20ac \U0001F600");
  EXPECT_EQ(ForTerminal("a\nb\x1b[2Jc\x7f\u0090"), "a?b?[2Jc??");
}

TEST(SafeText, NamesTurnNoReadingDirection) {
  EXPECT_EQ(ForTerminal("\u061c\u200e\u200f\u202a\u202e\u2066\u2069"), "???????");
  EXPECT_EQ(ForTerminal("\u200d\u2029\u202f\u2065\u206a\u05d0"),
            "\u200d\u2029\u202f\u2065\u206a\u05d0");
}

TEST(SafeText, JsonEscapesWhatATerminalObeys) {
  EXPECT_EQ(JsonForTerminal("\"\x7f\u009b\u202e\u2066\u00e9\""),
            "\"\\u007f\\u009b\\u202e\\u2066\u00e9\"");
}

TEST(SafeText, BytesThatAreNoUtf8AreMarked) {
  EXPECT_EQ(ForTerminal("\xff"), "?");
  EXPECT_EQ(ForTerminal("\xc3"), "?");                 // cut short
  EXPECT_EQ(ForTerminal("\xc3x"), "?x");               // goes on with something else
  EXPECT_EQ(ForTerminal("\xc0\xaf"), "??");            // longer than necessary
  EXPECT_EQ(ForTerminal("\xed\xa0\x80"), "???");       // half of a pair
  EXPECT_EQ(ForTerminal("\xf4\x90\x80\x80"), "????");  // beyond the last one
}

TEST(SafeText, WhatATerminalGivesBecomesBytesOrIsRefused) {
  EXPECT_EQ(FromTerminal("\u00e9\u20ac"), "\xe9\x80");
  EXPECT_EQ(FromTerminal("\xe9"), "\xe9");  // no UTF-8: taken as it is
  EXPECT_EQ(FromTerminal("\U0001F600"), std::nullopt);
}

TEST(SafeText, DocumentsKeepTheirLinesAndTabs) {
  EXPECT_EQ(DocumentForTerminal("a\r\nb\rc\nd\te\x1b\x7f\x81\x80"), "a\nb\nc\nd\te???\u20ac");
  EXPECT_EQ(DocumentForTerminal("end\r"), "end\n");
}

TEST(SafeText, APageShowsMarkupAsText) {
  EXPECT_EQ(ForHtml("<b> & \"x\" 'y'\r\n\t\x1b\x80"),
            "&lt;b&gt; &amp; &quot;x&quot; &#39;y&#39;\r\n\t\ufffd\u20ac");
}

}  // namespace
}  // namespace tessel
