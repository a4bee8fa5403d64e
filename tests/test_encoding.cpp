#include <gtest/gtest.h>

#include "base/encoding.h"

using namespace lex;

TEST(Encoding, RoundTripAndReplacement) {
  EXPECT_EQ(AnsiVersUtf8("\xE9t\xE9 \x80 \x9C \x85"), "\xC3\xA9t\xC3\xA9 \xE2\x82\xAC \xC5\x93 \xE2\x80\xA6");
  std::string tous;
  for (int b = 0; b < 256; ++b) {
    const char c = static_cast<char>(b);
    tous += c;
    EXPECT_EQ(AnsiDeUnicode(UnicodeDeAnsi(c)), c) << b;
  }
  EXPECT_EQ(Utf8VersAnsi(AnsiVersUtf8(tous)), tous);
  // Outside Windows-1252: replaced, not crashed on; broken UTF-8 kept byte for byte.
  EXPECT_EQ(Utf8VersAnsi("\xE2\x86\x92 \xF0\x9F\x98\x80 \xC5\x81"), "? ? ?");
  EXPECT_EQ(Utf8VersAnsi("\xE9t\xC3"), "\xE9t\xC3");
  // Overlong forms of "/" and "." stay bytes of their own, never the character they spell.
  EXPECT_EQ(Utf8VersAnsi("\xC0\xAF"), "\xC0\xAF");
  EXPECT_EQ(Utf8VersAnsi("\xE0\x80\xAE"), "\xE0\x80\xAE");
}
