#include <gtest/gtest.h>

#include <filesystem>

#include "base/error.h"
#include "data/dictionary_file.h"
#include "data/index_file.h"
#include "editing/duplicates.h"
#include "test_support.h"

using namespace lex;
using doubles::Empreinte;
using Numeros = std::vector<std::int32_t>;

namespace {

Empreinte EmpreinteConstante(std::string_view) { return {7, 7}; }
// Articles of one index line collide, whatever their definitions.
Empreinte EmpreinteDeLigneIndex(std::string_view texte) {
  return doubles::EmpreinteTexte(texte.substr(0, texte.find('\r')));
}

struct Dictio {
  test::DossierTemp d;
  std::string chemin = d.Chemin("dic.txt");
  IndexTable table;

  explicit Dictio(const std::string& contenu) {
    d.Ecrire("dic.txt", contenu);
    TableLettre lettres;
    ConstruireTables(chemin, table, lettres, [] {});
  }
  Numeros Doubles() { return ArticlesDoubles(chemin, table); }
  Numeros Doubles(std::size_t bloc, doubles::FonctionEmpreinte e) {
    return doubles::ArticlesDoubles(chemin, table, bloc, e);
  }
};

// The duplicates of `contenu`, which every block size, down to one byte, and prints that
// collide must give alike.
Numeros Doubles(const std::string& contenu) {
  Dictio x(contenu);
  const Numeros trouves = x.Doubles();
  for (std::size_t bloc : {1, 2, 3, 7, 64}) {
    EXPECT_EQ(x.Doubles(bloc, doubles::EmpreinteTexte), trouves) << "block of " << bloc;
    EXPECT_EQ(x.Doubles(bloc, EmpreinteConstante), trouves) << "block of " << bloc << ", one print";
  }
  EXPECT_EQ(x.Doubles(5, EmpreinteDeLigneIndex), trouves);
  return trouves;
}

}  // namespace

TEST(Doubles, LaterCopiesAnywhereAreListedAndTheFirstStays) {
  // 1 a, 2 a (next to it), 3 b, 4 c, 5 b (further), 6 a (a third copy), 7 d
  EXPECT_EQ(Doubles("a\r\nx\r\n\r\na\r\nx\r\n\r\nb\r\ny\r\n\r\nc\r\nz\r\n\r\nb\r\ny\r\n\r\na\r\nx\r\n\r\nd\r\n"),
            (Numeros{2, 5, 6}));
  // Empty lines before the first article belong to no text; a second empty line after an
  // article is shown with it, so only an article followed by as many is its copy.
  EXPECT_EQ(Doubles("\r\n\r\na\r\nx\r\n\r\nb\r\n\r\n\r\nc\r\n\r\na\r\nx\r\n\r\nb\r\n\r\n\r\nb\r\n"), (Numeros{4, 5}));
  // Index lines alone.
  EXPECT_EQ(Doubles("a\r\n\r\na\r\n\r\nb\r\n\r\na"), (Numeros{2, 4}));
}

TEST(Doubles, TheLastArticleNeedsNoSeparator) {
  EXPECT_EQ(Doubles("a\r\nx\r\n\r\nb\r\n\r\na\r\nx"), (Numeros{3}));
  EXPECT_EQ(Doubles("a\r\nx\r\n\r\nb\r\n\r\na\r\nx\r\n"), (Numeros{3}));
  EXPECT_EQ(Doubles("a\nx\n\nb\n\na\nx"), (Numeros{3}));
  // The last article keeps a line end more than the others: its text then ends with one.
  EXPECT_EQ(Doubles("a\r\nx\r\n\r\na\r\nx\r\n\r\n"), Numeros{});
}

TEST(Doubles, LfAndCrLfFormsAreTheSameText) {
  EXPECT_EQ(Doubles("a\r\nx\r\n\r\nb\ny\n\na\nx\n\nb\r\ny\r\n\r\nc\nz\r\n\r\nc\r\nz\n\nd\n"), (Numeros{3, 4, 6}));
  // A CR alone is no line end.
  EXPECT_EQ(Doubles("a\r\nx\r\n\r\na\rx\r\n\r\na\r\r\nx\r\n"), Numeros{});
}

TEST(Doubles, ArticlesThatDifferAnywhereAreKept) {
  EXPECT_EQ(Doubles("a\r\nx\r\ny\r\n\r\na\r\nx\r\nz\r\n\r\na\r\nx\r\n\r\na\r\nx \r\n\r\n"
                    "A\r\nx\r\n\r\na\r\nx\r\ny\r\nw"),
            Numeros{});
  EXPECT_EQ(Doubles("a\r\n\r\nb\r\n\r\nc"), Numeros{});
  EXPECT_EQ(Doubles("a\r\nx\r\n"), Numeros{});
  EXPECT_EQ(Doubles(""), Numeros{});
}

TEST(Doubles, ArticlesLongerThanABlockAreComparedWhole) {
  std::string longue;
  for (int i = 0; i < 300; ++i) longue += "ligne " + std::to_string(i) + "\r\n";
  std::string autre = longue;
  autre[autre.size() / 2] = '#';
  const std::string contenu = "long\r\n" + longue + "\r\ncourt\r\n\r\nlong\r\n" + autre + "\r\nlong\r\n" + longue;
  Dictio x(contenu);
  for (std::size_t bloc : {1, 100, 1000, 4096, 1 << 20}) {
    EXPECT_EQ(x.Doubles(bloc, doubles::EmpreinteTexte), Numeros{4}) << bloc;
    EXPECT_EQ(x.Doubles(bloc, EmpreinteDeLigneIndex), Numeros{4}) << bloc;
  }
}

TEST(Doubles, AFileCutBehindTheTablesBackRaisesReadingPastTheEnd) {
  Dictio x("a\r\nx\r\n\r\nb\r\ny\r\n\r\na\r\nx\r\n");
  x.d.Ecrire("dic.txt", "a\r\nx\r\n\r\nb\r\ny\r\n\r\na\r\n");
  try {
    x.Doubles();
    ADD_FAILURE() << "no error";
  } catch (const LexError& e) {
    EXPECT_EQ(e.numero(), 62);
  }
  std::filesystem::remove(CheminNatif(x.chemin));
  EXPECT_THROW(x.Doubles(), LexError);
}

TEST(Doubles, TheArticleTextIsTheOneReadingGives) {
  // Every string of up to seven of these bytes, as a middle or a last article.
  const char alphabet[] = {'a', '\r', '\n'};
  std::vector<std::string> bruts{""};
  for (std::size_t debut = 0, longueur = 0; longueur < 7; ++longueur) {
    const std::size_t fin = bruts.size();
    for (std::size_t i = debut; i < fin; ++i)
      for (char c : alphabet) bruts.push_back(bruts[i] + c);
    debut = fin;
  }
  std::string tampon;
  for (const std::string& brut : bruts)
    for (bool derniere : {false, true})
      ASSERT_EQ(doubles::TexteArticle(brut, derniere, tampon), DecoupeArticle(brut, derniere))
          << testing::PrintToString(brut) << (derniere ? " last" : "");
}

TEST(Doubles, PrintsTellApartTextsOneBitApart) {
  // Every length around the sixteen-byte steps, every bit of every byte: the tail and the
  // length must count as much as the body.
  for (std::size_t longueur = 0; longueur <= 48; ++longueur) {
    const std::string base(longueur, 'a');
    const Empreinte e = doubles::EmpreinteTexte(base);
    EXPECT_EQ(doubles::EmpreinteTexte(std::string(base)), e);
    EXPECT_NE(doubles::EmpreinteTexte(base + '\0'), e) << longueur;
    for (std::size_t i = 0; i < longueur; ++i)
      for (int bit = 0; bit < 8; ++bit) {
        std::string t = base;
        t[i] = static_cast<char>(t[i] ^ (1 << bit));
        const Empreinte f = doubles::EmpreinteTexte(t);
        EXPECT_NE(f.a, e.a) << longueur << " " << i << " " << bit;
        EXPECT_NE(f.b, e.b) << longueur << " " << i << " " << bit;
      }
  }
}
