#include <gtest/gtest.h>

#include "data/dictionary_file.h"
#include "test_support.h"

using namespace lex;

// An article read between the offsets of two index lines, as the index builder counts them.
TEST(Articles, SeparatorsAndLineEndsAreTrimmedAndEveryLineEndsWithCrLf) {
  struct Cas {
    std::string fichier;
    std::int64_t debut, fin;
    bool derniere;
    std::string article;
  };
  const std::string deux = "mot\r\ndefinition\r\n\r\nautre\r\ndef2\r\n";  // "autre" at 19, end 32
  const std::string melange = "mot\ndef\n\nautre\r\nx\n\nfin\ny";
  test::DossierTemp d;
  for (const Cas& c : std::vector<Cas>{
           {deux, 0, 19, false, "mot\r\ndefinition"},
           {deux, 19, 32, true, "autre\r\ndef2"},
           {"a\r\nb", 0, 4, true, "a\r\nb"},                         // no final line end: the last article is whole
           {"a\r\nb\r\n\r\n", 0, 8, true, "a\r\nb\r\n"},             // two line ends at the end: one stays
           {"a\r\nb\r\n\r\n\r\nc\r\n", 0, 10, false, "a\r\nb\r\n"},  // two empty lines between: one line end stays
           {"\r\n\r\na\r\nb\r\n\r\nc\r\n", 0, 12, false, "\r\n\r\na\r\nb"},  // empty lines before article 1 belong to it
           {melange, 0, 9, false, "mot\r\ndef"},                     // LF only, and mixed
           {melange, 9, 19, false, "autre\r\nx"},
           {melange, 19, 24, true, "fin\r\ny"},
           {"mot\r\n", 0, 8, true, "mot\r\n   "},  // past the end of a file shrunk since: blanks
       }) {
    d.Ecrire("d.txt", c.fichier);
    EXPECT_EQ(LireArticle(d.Chemin("d.txt"), {c.debut, c.fin, c.derniere}), c.article) << c.fichier << " " << c.debut;
  }
}
