// The French thesaurus's format: the encoding line, words with their count of meanings, and
// what a damaged file gives.
#include <gtest/gtest.h>

#include <fstream>

#include "exchange/mythes.h"
#include "test_support.h"

using namespace lex::exchange;
using namespace std::string_literals;

namespace {

class MyThes : public ::testing::Test {
 protected:
  std::filesystem::path Ecrit(const std::string& octets) {
    const std::filesystem::path f = dossier_.Chemin("thes.dat");
    std::ofstream(f, std::ios::binary) << octets;
    return f;
  }
  std::vector<ArticleImporte> Lit(const std::string& octets) {
    std::vector<ArticleImporte> lus;
    LitMyThes(Ecrit(octets), [&](ArticleImporte&& a) { lus.push_back(std::move(a)); });
    return lus;
  }
  // The error's place and problem, or "" when the file was read.
  std::string Erreur(const std::string& octets) {
    try {
      Lit(octets);
    } catch (const ErreurImport& e) {
      EXPECT_NE(std::string(e.what()).find("thes.dat"), std::string::npos) << e.what();
      return e.endroit() + " | " + e.probleme();
    }
    return "";
  }
  lex::test::DossierTemp dossier_;
};

TEST_F(MyThes, EachWordAnArticleEachMeaningALine) {
  // CR LF or LF, blanks and no-break spaces around a synonym, an empty field, a word whose
  // count is zero (left out), an empty line between words.
  const auto lus = Lit(
      "UTF-8\r\n"
      "chat|2\r\n"
      "(Nom)|f\xC3\xA9lin|matou|minet\xC2\xA0 |mistigri\r\n"
      "(Nom)|chatonne||minette\r\n"
      "vide|0\n"
      "\n"
      "\xC3\xA0|1\n"
      "(Pr\xC3\xA9position)|chez\n");
  ASSERT_EQ(lus.size(), 2u);
  EXPECT_EQ(lus[0].index, "chat");
  EXPECT_EQ(lus[0].definition, (std::vector<std::string>{"(Nom) f\xC3\xA9lin, matou, minet, mistigri",
                                                          "(Nom) chatonne, minette"}));
  EXPECT_EQ(lus[1].index, "\xC3\xA0");
  EXPECT_EQ(lus[1].definition, std::vector<std::string>{"(Pr\xC3\xA9position) chez"});
}

TEST_F(MyThes, TheFirstLineNamesTheEncoding) {
  const auto latin1 = Lit("ISO8859-1\n\xE9t\xE9|1\n(Nom)|saison|\xE9t\xE9 indien\n");
  ASSERT_EQ(latin1.size(), 1u);
  EXPECT_EQ(latin1[0].index, "\xC3\xA9t\xC3\xA9");
  EXPECT_EQ(latin1[0].definition[0], "(Nom) saison, \xC3\xA9t\xC3\xA9 indien");
  const auto koi8 = Lit("KOI8-R\n\xDE\xC1\xCA|1\n(-)|\xDE\xC1\xCA\n");  // "чай"
  EXPECT_EQ(koi8[0].index, "\xD1\x87\xD0\xB0\xD0\xB9");
}

TEST_F(MyThes, DamagedFilesNameTheLine) {
  EXPECT_EQ(Erreur(""), " | fichier vide");
  EXPECT_EQ(Erreur("KLINGON-9\nchat|1\n(Nom)|matou\n"), "ligne 1 | encodage \xC2\xAB KLINGON-9 \xC2\xBB inconnu");
  EXPECT_EQ(Erreur("UTF-8\nchat|1\n(Nom)|matou\nchien|un\n(Nom)|cabot\n"),
            "ligne 4 | \xC2\xAB un \xC2\xBB n'est pas un nombre de sens");
  EXPECT_EQ(Erreur("UTF-8\nchat|99999999999999999999999\n(Nom)|matou\n"),
            "ligne 2 | \xC2\xAB 99999999999999999999999 \xC2\xBB n'est pas un nombre de sens");
  EXPECT_EQ(Erreur("UTF-8\nchat\n"), "ligne 2 | \xC2\xAB chat \xC2\xBB n'est pas de la forme mot|nombre de sens");
  // Fewer meanings than announced: at the end of the file, or where the next word starts.
  EXPECT_EQ(Erreur("UTF-8\nchat|3\n(Nom)|matou\n"),
            "ligne 2 | le mot \xC2\xAB chat \xC2\xBB annonce 3 sens, le fichier n'en donne que 1");
  EXPECT_EQ(Erreur("UTF-8\nchat|2\n(Nom)|matou\nchien|1\n(Nom)|cabot\n"),
            "ligne 2 | le mot \xC2\xAB chat \xC2\xBB annonce 2 sens, le fichier n'en donne que 1");
  EXPECT_EQ(Erreur("UTF-8\nchat|1\n(Nom)|ma\xE9tou\n"), "ligne 3 | texte qui n'est pas en \xC2\xAB UTF-8 \xC2\xBB");
  EXPECT_EQ(Erreur("UTF-8\n\n"), " | le fichier ne contient aucun mot");
  EXPECT_EQ(Erreur("UTF-8\nchat|1\n(Nom)|ma\0tou\n"s),
            "ligne 3 | retour chariot ou caract\xC3\xA8re nul au milieu de la ligne");
  EXPECT_EQ(Erreur("UTF-8\nchat|1\r\n(Nom)|ma\rtou\r\n"),
            "ligne 3 | retour chariot ou caract\xC3\xA8re nul au milieu de la ligne");
}

TEST_F(MyThes, RecognisedFromItsFirstLines) {
  EXPECT_TRUE(EstMyThes(Ecrit("UTF-8\nchat|1\n(Nom)|matou\n")));
  EXPECT_TRUE(EstMyThes(Ecrit("\xEF\xBB\xBFISO8859-1\r\nchat|1\r\n")));
  EXPECT_FALSE(EstMyThes(Ecrit("chat\tun f\xC3\xA9lin\nchien\tun canid\xC3\xA9\n")));
  EXPECT_FALSE(EstMyThes(Ecrit("UTF-8\nchat\n")));
  EXPECT_FALSE(EstMyThes(dossier_.Chemin("absent.dat")));
}

}  // namespace
