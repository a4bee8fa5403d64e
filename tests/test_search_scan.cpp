// How the definition searches see an article, the fixed-string finder, and the block scan of
// the dictionary compared with reading every article with ListeAffichee::Lit.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/encoding.h"
#include "data/index_file.h"
#include "search/article_scan.h"
#include "search/article_text.h"
#include "search/finder.h"
#include "test_support.h"

using namespace lex;

namespace {
constexpr auto npos = std::string::npos;
}

TEST(SearchText, ALineBreakIsABlankOnlyInATextThatHasOne) {
  // The phrase broken over two lines is found, and the caret goes to its start.
  EXPECT_EQ(OccurrenceArticle("x\r\ny z\r\nle chat\r\nnoir", "CHAT NOIR", false, false), 11u);
  EXPECT_EQ(OccurrenceArticle("chat et chat\r\nchat", "CHAT", false, true), 14u);  // the last one
  // Without a single blank the text is taken as it is: its line breaks are no blanks.
  EXPECT_EQ(OccurrenceArticle("chat\r\nnoir", "CHAT NOIR", false, false), npos);
  EXPECT_EQ(OccurrenceArticle("chat\r\nnoir", "NOIR", false, false), 6u);
}

TEST(SearchText, CaseIsFoldedUnlessRespectedAndAccentsNever) {
  EXPECT_EQ(OccurrenceArticle("un F\xE9lin", AiguilleDefinitions("f\xE9lin", false), false, false), 3u);
  EXPECT_EQ(OccurrenceArticle("un f\xE9lin", AiguilleDefinitions("felin", false), false, false), npos);
  EXPECT_EQ(OccurrenceArticle("un Chat", AiguilleDefinitions("chat", true), true, false), npos);
  EXPECT_EQ(OccurrenceArticle("chat", "", false, false), npos);
  // Inside the shown text, from a position on or before a limit; occurrences overlap as a
  // repeated forward search finds them.
  EXPECT_EQ(ChercheAvant("Chat chat", "CHAT", false, 1), 5u);
  EXPECT_EQ(ChercheAvant("Chat chat", "Chat", true, 1), npos);
  EXPECT_EQ(ChercheAvant("chat", "CHAT", false, 5), npos);
  EXPECT_EQ(TestRechercheChaineArriere("aaaa", "AA", false, 3), 2u);
  EXPECT_EQ(TestRechercheChaineArriere("aaaa", "AA", false, 1), 0u);
  EXPECT_EQ(TestRechercheChaineArriere("aaaa", "AA", false, 0), npos);
}

TEST(SearchFinder, AgreesWithPlainFindInBothModes) {
  std::mt19937 hasard(11);
  const std::string alphabet = "abAB\xE9\xC9 \r\n\x9C\x8C\xFF";
  for (int essai = 0; essai < 3000; ++essai) {
    std::string texte(hasard() % 60, ' '), motif(1 + hasard() % 12, ' ');
    for (char& c : texte) c = alphabet[hasard() % alphabet.size()];
    for (char& c : motif) c = alphabet[hasard() % 6];
    const bool majuscules = hasard() % 2;
    if (majuscules) motif = MajusculesAnsi(motif);
    const std::string vu = majuscules ? MajusculesAnsi(texte) : texte;
    const Chercheur ch(motif, majuscules);
    const char* h = ch.Premier(texte.data(), texte.data() + texte.size());
    ASSERT_EQ(h ? static_cast<std::size_t>(h - texte.data()) : npos, vu.find(motif)) << essai;
  }
}

namespace {

// A small dictionary in a temporary folder, opened as the window opens one.
struct Dico {
  test::DossierTemp d;
  DictionnaireOuvert dico;
  ListeAffichee liste{dico};
  int beeps = 0;
  explicit Dico(const std::string& octets) {
    d.Ecrire("d.txt", octets);
    dico.fichiers = {d.Chemin("d.txt"), d.Chemin("index.d"), d.Chemin("lettre.d")};
    ConstruireIndex(dico.fichiers, true, dico.TableIndex, dico.Lettres, [] {});
  }
  // What reading every article with ListeAffichee::Lit finds, in the order of the scan.
  std::vector<std::int32_t> Attendu(std::int32_t premier, std::int32_t dernier, bool arriere, const std::string& aiguille,
                                    bool rc) {
    std::vector<std::int32_t> r;
    for (std::int32_t i = premier; arriere ? i >= dernier : i <= dernier; i += arriere ? -1 : 1)
      if (OccurrenceArticle(liste.Lit(i), aiguille, rc, false) != npos) r.push_back(i);
    return r;
  }
  std::vector<std::int32_t> Parcours(std::int32_t premier, std::int32_t dernier, bool arriere,
                                     const std::string& aiguille, bool rc, std::int64_t bloc, std::size_t arret = 0) {
    std::vector<std::int32_t> r;
    ParcoursArticles(liste, [this] { ++beeps; }, premier, dernier, arriere, aiguille, rc, [&](std::int32_t i) {
      r.push_back(i);
      return r.size() != arret;
    }, bloc);
    return r;
  }
};

std::string DictionnaireAuHasard(std::mt19937& hasard) {
  const std::string lettres = "abAB\xE9\xC9 ";
  const bool lf = hasard() % 4 == 0;  // a file with LF-only line ends
  const std::string fin = lf ? "\n" : "\r\n";
  std::string s = hasard() % 5 == 0 ? fin : "";
  for (int a = 0, n = 1 + static_cast<int>(hasard() % 30); a < n; ++a) {
    for (int l = 0, nl = 1 + static_cast<int>(hasard() % 3); l < nl; ++l) {
      std::string ligne(1 + hasard() % 8, ' ');
      for (char& c : ligne) c = lettres[hasard() % lettres.size()];
      if (l == 0) ligne[0] = 'm';  // an index line is never empty
      s += ligne + fin;
    }
    s += fin;
    if (hasard() % 6 == 0) s += fin;
  }
  if (hasard() % 5 == 0) s.resize(s.size() - fin.size());
  return s;
}

}  // namespace

// Over the dictionary's own index, one changed on disk since, and result lists in any order.
TEST(SearchScan, FindsExactlyWhatReadingEachArticleFinds) {
  std::mt19937 hasard(5);
  // Blanks before, after and between the pieces, which line breaks may stand for.
  const std::vector<std::string> aiguilles = {"a", "AB", "a b", "b\xE9", " ", "  ", "A A", "\xC9" "a", "m", "ab a",
                                              "a bB", "b ", " a", "a  b", "\xE9 \r\nm"};
  for (int essai = 0; essai < 200; ++essai) {
    Dico dico(DictionnaireAuHasard(hasard));
    if (essai % 4 == 1) {
      // Changed on disk after its index was made: shorter, or other text of the same size.
      std::string autre = DictionnaireAuHasard(hasard);
      dico.d.Ecrire("d.txt", autre.substr(0, autre.size() / 2));
    } else if (essai % 4 == 2) {
      const IndexTable& t = dico.dico.TableIndex;
      std::vector<EntreeTrouvee> liste;
      for (std::int32_t i = 1; i <= t.NombreArticle(); ++i)
        if (hasard() % 3) liste.push_back({i, i == 1 ? 0 : t.position(i), t.position(i + 1)});
      if (liste.empty()) continue;
      if (hasard() % 2) std::shuffle(liste.begin(), liste.end(), hasard);  // entries out of file order
      dico.liste.MontreResultats(liste, "");
    }
    const std::int32_t n = dico.liste.Nombre();
    for (const std::string& brute : aiguilles) {
      const bool rc = hasard() % 2;
      const std::string aiguille = AiguilleDefinitions(brute, rc);
      const std::int64_t bloc = std::vector<std::int64_t>{1, 7, 16, 64, kTailleBloc}[hasard() % 5];
      const std::int32_t a = 1 + static_cast<std::int32_t>(hasard() % n), b = 1 + static_cast<std::int32_t>(hasard() % n);
      SCOPED_TRACE(testing::Message() << "essai " << essai << " aiguille '" << brute << "' bloc " << bloc);
      EXPECT_EQ(dico.Parcours(1, n, false, aiguille, rc, bloc), dico.Attendu(1, n, false, aiguille, rc));
      EXPECT_EQ(dico.Parcours(std::max(a, b), std::min(a, b), true, aiguille, rc, bloc),
                dico.Attendu(std::max(a, b), std::min(a, b), true, aiguille, rc));
      const auto premiers = dico.Attendu(std::min(a, b), n, false, aiguille, rc);
      EXPECT_EQ(dico.Parcours(std::min(a, b), n, false, aiguille, rc, bloc, 1),
                std::vector<std::int32_t>(premiers.begin(), premiers.begin() + std::min<std::size_t>(1, premiers.size())));
    }
  }
}

TEST(SearchScan, BeepsOncePerThousandEntriesExamined) {
  std::string s;
  for (int i = 0; i < 2500; ++i) s += "mot " + std::to_string(i) + "\r\ndef\r\n\r\n";
  Dico dico(s);
  dico.Parcours(1, 2500, false, "ABSENT", false, kTailleBloc);
  EXPECT_EQ(dico.beeps, 2);
  dico.beeps = 0;
  dico.Parcours(2500, 1, true, "ABSENT", false, kTailleBloc);
  EXPECT_EQ(dico.beeps, 2);
  dico.beeps = 0;
  // Stopping at entry 2000 from entry 1000 has examined 1001 entries.
  EXPECT_EQ(dico.Parcours(1000, 2500, false, "MOT 1999", false, kTailleBloc, 1), std::vector<std::int32_t>{2000});
  EXPECT_EQ(dico.beeps, 1);
}
