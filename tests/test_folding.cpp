#include <gtest/gtest.h>

#include <random>

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

// The comparison that stops early must give the sign a whole folding gives, whatever the
// bytes: accents that fold to two letters, punctuation that folds to nothing, keys that are
// prefixes of each other.
TEST(Folding, TheEarlyComparisonAgreesWithTheWholeFolding) {
  std::mt19937 g(7);
  const std::string_view alphabet("aAbB\xE9\xC9\xE6\x9C ,(-.zZ\xFF\x80");
  const auto mot = [&] {
    std::string m(g() % 6, ' ');
    for (char& c : m) c = alphabet[g() % alphabet.size()];
    return m;
  };
  const auto signe = [](int v) { return (v > 0) - (v < 0); };
  for (int i = 0; i < 50000; ++i) {
    const std::string texte = mot(), autre = mot();
    const std::string cle = g() % 2 ? Sansaccent(autre) : Sansaccent(texte) + Sansaccent(autre).substr(0, g() % 2);
    EXPECT_EQ(signe(CompareSansaccent(texte, cle)), signe(Sansaccent(texte).compare(cle))) << texte << " / " << cle;
  }
}
