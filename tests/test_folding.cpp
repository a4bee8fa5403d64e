#include <gtest/gtest.h>

#include "base/encoding.h"
#include "base/error.h"
#include "data/folding.h"

using namespace lex;

TEST(Folding, AccentsAndCaseInEveryVariant) {
  auto versTampon = [](std::string_view s) {
    char dest[64];
    return std::string(dest, SansaccentEpureVers(s, dest));
  };
  for (auto plie : {Sansaccent, SansAccentSeul, SansaccentEpure, +versTampon}) {
    EXPECT_EQ(plie("\xC9l\xE8ve"), "ELEVE");
    EXPECT_EQ(plie("c\x9Cur"), "COEUR");
    EXPECT_EQ(plie("\xC6sop"), "AESOP");
    EXPECT_EQ(plie("a`b"), "AAB");  // the lone grave accent is a letter A
    EXPECT_EQ(plie("\xFF\x9A\xDF"), "\x9F\x8A\xDF");  // ÿ š stay letters, upper-cased; ß stays
  }
}

TEST(Folding, EachVariantRemovesItsOwnPunctuation) {
  const std::string ane = "l'\xE2ne (n.m.)";
  EXPECT_EQ(Sansaccent(ane), "LANENM");
  EXPECT_EQ(SansaccentEpure(ane), "LANE(NM)");
  EXPECT_EQ(SansAccentSeul(ane), "L'ANE (N.M.)");
  // Typographic marks: small tilde and the double and left quotes go, the right quote stays.
  EXPECT_EQ(Sansaccent("\x98\x93x\x94\x91y\x92"), "XY\x92");
  EXPECT_EQ(SansaccentEpure("a+b,c[d]"), "A+B,C[D]");
  EXPECT_EQ(Sansaccent("a+b,c[d]{e}\\f/g"), "ABCDEFG");
}

TEST(Folding, WordExtraction) {
  for (auto [position, mot] : {std::pair{5, "petit"}, {8, "petit"}, {1, "le"}, {3, ""}, {14, ""}})
    EXPECT_EQ(EXTRAITMOT("le petit chat", position), mot) << position;
  EXPECT_EQ(EXTRAITMOT_separateur("a-b,c", 3, "-,"), "b");
  EXPECT_THROW(EXTRAITMOT("abc", 0), LexError);
}
