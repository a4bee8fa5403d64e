// Tab-separated text read into articles, and the format found from the files themselves.
#include <gtest/gtest.h>

#include "exchange/dictionary_writer.h"
#include "exchange/formats.h"
#include "exchange/tab_separated.h"
#include "test_support.h"

using namespace lex;
using namespace lex::exchange;

namespace {


std::vector<ArticleImporte> Lit(const std::string& octets) {
  test::DossierTemp d;
  d.Ecrire("mots.txt", octets);
  std::vector<ArticleImporte> lus;
  LitTabulations(d.Chemin("mots.txt"), [&](ArticleImporte&& a) { lus.push_back(std::move(a)); });
  return lus;
}

ErreurImport Refus(const std::string& octets) {
  try {
    Lit(octets);
  } catch (const ErreurImport& e) {
    return e;
  }
  ADD_FAILURE() << "accepted";
  return ErreurImport("", "", "");
}

void Compare(const std::vector<ArticleImporte>& lus, const std::vector<ArticleImporte>& attendus) {
  ASSERT_EQ(lus.size(), attendus.size());
  for (std::size_t i = 0; i < lus.size(); ++i) {
    EXPECT_EQ(lus[i].index, attendus[i].index) << i;
    EXPECT_EQ(lus[i].definition, attendus[i].definition) << i;
  }
}

TEST(Tabulations, ReadsUtf8WithItsMarkLineEndsAndEscapes) {
  Compare(Lit("\xEF\xBB\xBF" "chat\tf\xC3\xA9lin\\nanimal\r\n"
              "\r\n"
              "chemin\tC:\\\\dossier\\tx \\q\n"
              "seul\t\n"),
          {{"chat", {"f\xC3\xA9lin", "animal"}}, {"chemin", {"C:\\dossier\tx \\q"}}, {"seul", {}}});
}

TEST(Tabulations, AFileWithOneLineNotUtf8IsWindows1252Throughout) {
  Compare(Lit("caf\xC3\xA9\tboisson\nth\xE9\tboisson\n"),
          {{"caf\xC3\x83\xC2\xA9", {"boisson"}}, {"th\xC3\xA9", {"boisson"}}});
  Compare(Lit("\x9C" "uf\tnourriture \x80\n"), {{"\xC5\x93uf", {"nourriture \xE2\x82\xAC"}}});
}

TEST(Tabulations, BadLinesAreNamed) {
  const ErreurImport sansTab = Refus("a\tb\nc\td\nsans tabulation\n");
  EXPECT_EQ(sansTab.endroit(), "ligne 3");
  EXPECT_EQ(sansTab.probleme(), "pas de tabulation entre le mot d'entr\xC3\xA9" "e et la d\xC3\xA9" "finition");
  EXPECT_NE(sansTab.fichier().find("mots.txt"), std::string::npos);
  EXPECT_EQ(Refus("a\tb\nc\td\re\n").endroit(), "ligne 2");
  EXPECT_EQ(Refus(std::string("a\tb\0c\n", 6)).probleme(), "octet nul dans la ligne");
  EXPECT_EQ(Refus("a\tb\n \tc\n").probleme(), "mot d'entr\xC3\xA9" "e vide");
  EXPECT_EQ(Refus("a\\nb\tc\n").endroit(), "ligne 1");
  EXPECT_EQ(Refus("").probleme(), "fichier vide : aucun article");
  EXPECT_EQ(Refus("\r\n\n").probleme(), "fichier vide : aucun article");
  EXPECT_EQ(Refus(std::string("\xFF\xFE" "a\0\t\0", 6)).probleme(), "fichier en UTF-16 : enregistrez-le en UTF-8 ou en Windows-1252");
}

TEST(Formats, TheFormatIsFoundFromTheFile) {
  test::DossierTemp d;
  d.Ecrire("mots.txt", "\r\nz\xC3\xA8" "bre\tanimal\n");
  d.Ecrire("texte.txt", "une ligne\n\tpuis une tabulation\n");
  d.Ecrire("binaire", std::string("a\tb\0", 4));
  EXPECT_EQ(FormatDe(d.Chemin("mots.txt")).nom, "tabulations");
  for (const char* nom : {"texte.txt", "binaire"}) {
    try {
      FormatDe(d.Chemin(nom));
      ADD_FAILURE() << nom;
    } catch (const ErreurImport& e) {
      EXPECT_TRUE(e.probleme().starts_with("format inconnu (formats lus : ")) << e.probleme();
      EXPECT_NE(e.probleme().find("tabulations"), std::string::npos);
    }
  }
  EXPECT_THROW(FormatDe(d.Chemin("absent.txt")), ErreurImport);
  ASSERT_NE(FormatNomme("tabulations"), nullptr);
  EXPECT_EQ(FormatNomme("inconnu"), nullptr);
  for (const Format& f : Formats()) EXPECT_EQ(FormatNomme(f.nom), &f);
}

TEST(Formats, ATabFileBecomesASortedDictionary) {
  test::DossierTemp d;
  d.Ecrire("mots.txt", "z\xC3\xA8" "bre\tanimal ray\xC3\xA9\\n\\nrayures \xE2\x80\x90 noires\r\nabeille\tinsecte\r\n");
  const Format& f = FormatDe(d.Chemin("mots.txt"));
  EcrivainDictionnaire e(d.Chemin("mots.txt"));
  f.lit(d.Chemin("mots.txt"), e.Entree());
  const BilanEcriture b = e.Ecrit(d.Chemin("mots.dic"));
  EXPECT_EQ(d.Lire("mots.dic"), "abeille\r\ninsecte\r\n\r\nz\xE8" "bre\r\nanimal ray\xE9\r\nrayures - noires\r\n");
  EXPECT_EQ(b.articles, 2u);
  EXPECT_EQ(b.changes, 1u);
}

}  // namespace
