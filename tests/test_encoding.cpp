#include <gtest/gtest.h>

#include "base/encoding.h"

using namespace lex;

TEST(Encoding, OnlyTrueUtf8IsDecoded) {
  EXPECT_EQ(Utf8VersAnsi("\xC3\xA9t\xC3\xA9 \xE2\x82\xAC"), "\xE9t\xE9 \x80");
  EXPECT_EQ(Utf8VersAnsi("\xC5\x81"), "?");  // no such letter in Windows-1252
  // Overlong forms of "/" and "." stay bytes of their own, never the character they spell.
  EXPECT_EQ(Utf8VersAnsi("\xC0\xAF"), "\xC0\xAF");
  EXPECT_EQ(Utf8VersAnsi("\xE0\x80\xAE"), "\xE0\x80\xAE");
  for (int b = 0; b < 256; ++b) {
    const char c = static_cast<char>(b);
    EXPECT_EQ(AnsiDeUnicode(UnicodeDeAnsi(c)), c) << b;
  }
}
