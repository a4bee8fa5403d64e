#include <gtest/gtest.h>

#include "data/dictionary_file.h"
#include "test_support.h"

using namespace lex;

namespace {
// Offsets of the index lines of a file as the index builder counts them.
std::string Lire(const test::DossierTemp& d, std::int64_t debut, std::int64_t fin, bool derniere) {
  return LireArticle(d.Chemin("d.txt"), {debut, fin, derniere});
}
}  // namespace

TEST(Articles, SeparatorAndLastLineEndsAreTrimmed) {
  test::DossierTemp d;
  // "mot" at 0, "definition" at 5, empty at 17, "autre" at 19, "def2" at 26, end 32.
  d.Ecrire("d.txt", "mot\r\ndefinition\r\n\r\nautre\r\ndef2\r\n");
  EXPECT_EQ(Lire(d, 0, 19, false), "mot\r\ndefinition");
  EXPECT_EQ(Lire(d, 19, 32, true), "autre\r\ndef2");
}

TEST(Articles, UnusualEndsAndSeparators) {
  test::DossierTemp d;
  d.Ecrire("d.txt", "a\r\nb");  // no final line end: the last article is whole
  EXPECT_EQ(Lire(d, 0, 4, true), "a\r\nb");
  d.Ecrire("d.txt", "a\r\nb\r\n\r\n");  // two line ends at the end: one stays
  EXPECT_EQ(Lire(d, 0, 8, true), "a\r\nb\r\n");
  d.Ecrire("d.txt", "a\r\nb\r\n\r\n\r\nc\r\n");  // two empty lines between: one line end stays
  EXPECT_EQ(Lire(d, 0, 10, false), "a\r\nb\r\n");
  d.Ecrire("d.txt", "\r\n\r\na\r\nb\r\n\r\nc\r\n");  // empty lines before article 1 belong to it
  EXPECT_EQ(Lire(d, 0, 12, false), "\r\n\r\na\r\nb");
}

TEST(Articles, LfOnlyAndMixedFilesGiveCrLfArticles) {
  test::DossierTemp d;
  d.Ecrire("d.txt", "mot\ndef\n\nautre\r\nx\n\nfin\ny");
  EXPECT_EQ(Lire(d, 0, 9, false), "mot\r\ndef");
  EXPECT_EQ(Lire(d, 9, 19, false), "autre\r\nx");
  EXPECT_EQ(Lire(d, 19, 24, true), "fin\r\ny");
}

TEST(Articles, ReadingPastTheEndOfAShrunkFileGivesBlanks) {
  test::DossierTemp d;
  d.Ecrire("d.txt", "mot\r\n");
  EXPECT_EQ(Lire(d, 0, 8, true), "mot\r\n   ");
}
