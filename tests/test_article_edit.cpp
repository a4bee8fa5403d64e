// A few articles changed in a dictionary: the file copied around them by the index's offsets,
// and the index files and tables brought up to date without a scan. The result must be what a
// full rebuild of the new file gives, byte for byte.
#include <gtest/gtest.h>

#include <random>

#include "base/error.h"
#include "data/article_edit.h"
#include "data/folding.h"
#include "data/index_file.h"
#include "data/index_update.h"
#include "data/open_dictionary.h"
#include "test_support.h"

namespace lex {
namespace {

using test::DossierTemp;

struct Dico {
  DossierTemp d;
  FichiersIndex f;
  DictionnaireOuvert o;
  explicit Dico(const std::string& octets) {
    d.Ecrire("dic", octets);
    f = {d.Chemin("dic"), d.Chemin("idx"), d.Chemin("let")};
    o.fichiers = f;
    ConstruireIndex(f, true, o.TableIndex, o.Lettres, [] {});
  }
  // The articles as read, without the empty lines around them: the first one is read with
  // the empty lines that open the file, the last one with those that end it.
  std::vector<std::string> Articles(const DictionnaireOuvert& x) const {
    ListeAffichee l(x);
    std::vector<std::string> v;
    for (std::int32_t i = 1; i <= l.Nombre(); ++i) {
      std::string a = l.Lit(i);
      a.erase(0, a.find_first_not_of("\r\n"));
      a.erase(a.find_last_not_of("\r\n") + 1);
      v.push_back(a);
    }
    return v;
  }
  // Writes the change into "dic2" and brings the index up to date; false when it had to be
  // rebuilt.
  // The pieces point into `r`, which the caller keeps.
  std::pair<Recomposition, bool> Applique(const Retouche& r) {
    const EtatDictio ancien = LireEtatDictio(f.dictio);
    Recomposition rc;
    {
      EcritureSure cible(d.Chemin("dic2"), Donnees::Reconstructible);
      rc = EcritRetouche(f.dictio, cible, o.TableIndex, r);
      cible.Valider();
    }
    FichiersIndex f2 = f;
    f2.dictio = d.Chemin("dic2");
    SuiviIndex index(f2, ancien, o.TableIndex.NombreArticle(), LireEtatDictio(f2.dictio), rc);
    const bool suivi = index.Actif();
    IndexTable::Ancien avant;
    if (suivi) index.Termine(true, o.TableIndex, o.Lettres, [] {}, avant);
    o.fichiers = f2;
    return {rc, suivi};
  }
};

std::string Mot(std::mt19937& g) {
  static const char* mots[] = {"chat", "chien", "\xE9t\xE9", "abc (x)", "abc", "zoo, n.", "lion [1]", "a", "\xC9t\xE9"};
  return mots[g() % 9];
}

std::string Article(std::mt19937& g, int numero) {
  std::string a = Mot(g) + " " + std::to_string(numero);
  for (unsigned l = g() % 3; l > 0; --l) a += "\r\ndef " + Mot(g);
  return a;
}

TEST(Retouche, LeFichierEtLIndexSontCeQuUneReconstructionDonne) {
  for (unsigned graine = 0; graine < 120; ++graine) {
    std::mt19937 g(graine);
    const int n = static_cast<int>(g() % 8);
    const std::string fin = g() % 3 == 0 ? "\n" : "\r\n";
    std::vector<std::string> avant;
    std::string octets = g() % 4 == 0 ? fin : "";  // an empty line before the first article
    for (int i = 0; i < n; ++i) {
      avant.push_back(Article(g, i));
      std::string a = avant.back();
      if (fin == "\n") a.erase(std::remove(a.begin(), a.end(), '\r'), a.end());
      octets += a + fin;
      if (i + 1 < n) octets += fin + (g() % 5 == 0 ? fin : "");
    }
    if (n > 0 && g() % 4 == 0) octets.resize(octets.size() - fin.size());  // no line end at the end
    if (n > 0 && g() % 4 == 0) octets += fin;                                // an empty line at the end
    SCOPED_TRACE("graine " + std::to_string(graine) + ": " + octets);
    Dico dic(octets);
    ASSERT_EQ(dic.o.TableIndex.NombreArticle(), n);
    ASSERT_EQ(dic.Articles(dic.o), avant);

    // Random removals, new articles and changed ones (a change goes before the entry after
    // the one it replaces), then what reading should give, in order.
    Retouche r;
    for (int k = 1; k <= n + 1; ++k) {
      while (g() % 3 == 0) r.inseres.push_back({k, Article(g, 100 + k), 0});
      if (k <= n && g() % 3 == 0) {
        r.retires.push_back(k);
        if (g() % 2 == 0) r.inseres.push_back({k + 1, "chang\xE9 " + std::to_string(k), k});
      }
    }
    std::stable_sort(r.inseres.begin(), r.inseres.end(), [](auto& a, auto& b) { return a.avant < b.avant; });
    std::vector<std::string> attendus;
    for (std::size_t j = 0, x = 0, k = 1; k <= static_cast<std::size_t>(n) + 1; ++k) {
      for (; j < r.inseres.size() && r.inseres[j].avant == static_cast<std::int32_t>(k); ++j)
        attendus.push_back(r.inseres[j].texte);
      if (k > static_cast<std::size_t>(n)) break;
      if (x < r.retires.size() && r.retires[x] == static_cast<std::int32_t>(k)) ++x;
      else attendus.push_back(avant[k - 1]);
    }

    auto [rc, suivi] = dic.Applique(r);
    ASSERT_TRUE(suivi);
    // The file holds the articles expected, in order.
    DictionnaireOuvert neuf;
    neuf.fichiers = {dic.d.Chemin("dic2"), dic.d.Chemin("idx2"), dic.d.Chemin("let2")};
    ConstruireIndex(neuf.fichiers, true, neuf.TableIndex, neuf.Lettres, [] {});
    EXPECT_EQ(dic.Articles(neuf), attendus);
    // The index files are those a rebuild writes, and so are the tables.
    EXPECT_EQ(dic.d.Lire("idx"), dic.d.Lire("idx2"));
    EXPECT_EQ(dic.d.Lire("let"), dic.d.Lire("let2"));
    const IndexTable& t = dic.o.TableIndex;
    ASSERT_EQ(t.NombreArticle(), neuf.TableIndex.NombreArticle());
    for (std::int32_t i = 1; i <= t.NombreArticle() + 1; ++i) {
      EXPECT_EQ(t.position(i), neuf.TableIndex.position(i)) << i;
      EXPECT_EQ(t.texte(i), neuf.TableIndex.texte(i)) << i;
      if (i <= t.NombreArticle()) {
        EXPECT_EQ(t.cle(i), neuf.TableIndex.cle(i)) << i;
      }
    }
    // Every entry kept, and every changed one, is found under the number the change gives.
    const std::vector<std::string> apres = dic.Articles(neuf);
    for (int k = 1; k <= n; ++k) {
      const std::int32_t m = rc.changement.Nouveau(k);
      const bool retire = std::binary_search(r.retires.begin(), r.retires.end(), k);
      if (!retire) {
        EXPECT_EQ(apres.at(static_cast<std::size_t>(m - 1)), avant[static_cast<std::size_t>(k - 1)]);
      } else if (m != 0) {
        EXPECT_EQ(apres.at(static_cast<std::size_t>(m - 1)), "chang\xE9 " + std::to_string(k));
      }
    }
  }
}

// A change whose working copy could not take its place: the table goes back to what it was.
TEST(Retouche, LaTableRevientQuandLaCopieNAPasPuPrendreSaPlace) {
  Dico dic("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  const std::string avant = dic.d.Lire("idx");
  Retouche r;
  r.retires = {1};
  r.inseres.push_back({3, "lion", 0});
  EcritureSure cible(dic.d.Chemin("dic2"), Donnees::Reconstructible);
  const Recomposition rc = EcritRetouche(dic.f.dictio, cible, dic.o.TableIndex, r);
  IndexTable::Ancien ancien = dic.o.TableIndex.Recomposer(rc.morceaux, static_cast<std::int32_t>(rc.taille), SansaccentEpureVers);
  ASSERT_EQ(dic.o.TableIndex.texte(2), "lion");
  dic.o.TableIndex.Restaurer(std::move(ancien));
  IndexTable t;
  TableLettre l;
  ASSERT_EQ(LireIndex(dic.f, t, l), EtatIndex::Charge);
  ASSERT_EQ(dic.o.TableIndex.NombreArticle(), t.NombreArticle());
  for (std::int32_t i = 1; i <= t.NombreArticle() + 1; ++i) {
    EXPECT_EQ(dic.o.TableIndex.texte(i), t.texte(i));
    EXPECT_EQ(dic.o.TableIndex.position(i), t.position(i));
  }
  EXPECT_EQ(dic.d.Lire("idx"), avant);
}

TEST(Retouche, UnIndexQuiNeDecritPlusLeFichierEstAReconstruire) {
  Dico dic("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  // Changed behind the program's back since the index was made.
  dic.d.Ecrire("dic", "chat\r\ncat\r\n\r\nchien\r\nDOG\r\n");
  Retouche r;
  r.inseres.push_back({3, "lion", 0});
  const std::string idx = dic.d.Lire("idx");
  auto [rc, suivi] = dic.Applique(r);
  EXPECT_FALSE(suivi);
  EXPECT_EQ(dic.d.Lire("idx"), idx);
  EXPECT_EQ(dic.o.TableIndex.NombreArticle(), 2);
}

TEST(Retouche, UneEntreeQueLaTableNAPasEstRefusee) {
  Dico dic("chat\r\ncat\r\n");
  EcritureSure cible(dic.d.Chemin("dic2"), Donnees::Reconstructible);
  Retouche r;
  r.retires = {2};
  EXPECT_THROW(EcritRetouche(dic.f.dictio, cible, dic.o.TableIndex, r), LexError);
  r.retires.clear();
  r.inseres.push_back({3, "x", 0});
  EXPECT_THROW(EcritRetouche(dic.f.dictio, cible, dic.o.TableIndex, r), LexError);
}

}  // namespace
}  // namespace lex
