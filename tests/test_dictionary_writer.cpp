// Outside text brought to Windows-1252, and the dictionary file made of imported articles:
// its bytes, its order, what it refuses and what it leaves behind when it refuses.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/encoding.h"
#include "data/write_error.h"
#include "exchange/dictionary_writer.h"
#include "exchange/unicode_fold.h"
#include "test_support.h"

using namespace lex;
using namespace lex::exchange;

namespace {

TEST(ReplieurAnsi, KeepsWhatWindows1252HoldsAndFoldsTheRest) {
  ReplieurAnsi r;
  // œ é € — are Windows-1252 characters; ő ﬁ ‐ 中 are not.
  EXPECT_EQ(r.Replie("\xC5\x93 \xC3\xA9 \xE2\x82\xAC \xE2\x80\x94"), "\x9C \xE9 \x80 \x97");
  EXPECT_EQ(r.Changes(), 0u);
  EXPECT_EQ(r.Replie("\xC5\x91 \xEF\xAC\x81 \xE2\x80\x90 \xE4\xB8\xAD"), "o fi - ?");
  EXPECT_EQ(r.Changes(), 4u);
  const std::vector<std::string> attendus = {"\xC5\x91\xE2\x86\x92o", "\xEF\xAC\x81\xE2\x86\x92" "fi",
                                             "\xE2\x80\x90\xE2\x86\x92-", "\xE4\xB8\xAD\xE2\x86\x92?"};
  EXPECT_EQ(r.Exemples(), attendus);
  // The Jargon File's angle brackets (U+2329, U+3009) read as brackets, not as "?".
  EXPECT_EQ(r.Replie("\xE2\x8C\xA9x\xE3\x80\x89"), "<x>");
}

TEST(ReplieurAnsi, EveryWindows1252ByteComesBackAsItWas) {
  // Export gives the undefined bytes as the C1 controls of the same value: they come back too.
  std::string tous;
  for (int b = 1; b < 256; ++b) tous += static_cast<char>(b);
  ReplieurAnsi r;
  EXPECT_EQ(r.Replie(AnsiVersUtf8(tous)), tous);
  EXPECT_EQ(r.Changes(), 0u);
}

TEST(ReplieurAnsi, ComposesAccentsCountsEveryChangeAndKeepsFiveExamples) {
  ReplieurAnsi r;
  // A letter and its combining accent are the accented letter: nothing was changed.
  EXPECT_EQ(r.Replie("cafe\xCC\x81"), "caf\xE9");
  // A byte that is not UTF-8 is taken as the Windows-1252 character it is.
  EXPECT_EQ(r.Replie("caf\xE9 ok"), "caf\xE9 ok");
  EXPECT_EQ(r.Changes(), 0u);
  // Phonetics of a pronunciation line, a minus sign, the same change twice.
  EXPECT_EQ(r.Replie("\xC5\x91\xC5\x91 /w\xC9\x94\xCB\x90t\xC9\x99r/ \xE2\x88\x92"), "oo /wo:ter/ -");
  EXPECT_EQ(r.Changes(), 6u);
  EXPECT_EQ(r.Exemples().size(), ReplieurAnsi::kExemples);
  EXPECT_EQ(r.Exemples().back(), "\xE2\x88\x92\xE2\x86\x92-");  // ő→o is kept once
}

std::string Ecrit(std::vector<ArticleImporte> articles, BilanEcriture* bilan = nullptr,
                  EcrivainDictionnaire::Ordre ordre = EcrivainDictionnaire::Ordre::Alphabetique) {
  test::DossierTemp d;
  EcrivainDictionnaire e("source.txt");
  for (auto& a : articles) e.Entree()(std::move(a));
  const auto cible = std::filesystem::path(d.Chemin("sortie.dic"));
  BilanEcriture b = e.Ecrit(cible, ordre);
  if (bilan) *bilan = b;
  return test::Octets(cible);
}

TEST(EcrivainDictionnaire, WritesSortedArticlesWithCrLfAndOneEmptyLineBetween) {
  BilanEcriture bilan;
  const std::string octets = Ecrit({{"z\xC3\xA8" "bre", {"animal ray\xC3\xA9", "", "rayures"}},
                                    {"chat", {"f\xC3\xA9lin"}},
                                    {"chat (animal)", {"x"}},
                                    {"Chat", {"nom propre"}},
                                    {"abeille", {}},
                                    {"!", {"point d'exclamation"}}},
                                   &bilan);
  // "chat" and "Chat" have the same keys: they stay in the source's order. "!" has an empty key.
  EXPECT_EQ(octets,
            "!\r\npoint d'exclamation\r\n\r\n"
            "abeille\r\n\r\n"
            "chat\r\nf\xE9lin\r\n\r\n"
            "Chat\r\nnom propre\r\n\r\n"
            "chat (animal)\r\nx\r\n\r\n"
            "z\xE8" "bre\r\nanimal ray\xE9\r\nrayures\r\n");
  EXPECT_EQ(bilan.articles, 6u);
  EXPECT_EQ(bilan.changes, 0u);
}

TEST(EcrivainDictionnaire, AChronologyKeepsTheSourcesOrderWhenAskedTo) {
  EXPECT_EQ(Ecrit({{"1789", {"R\xC3\xA9volution"}}, {"1515", {"Marignan"}}}, nullptr,
                  EcrivainDictionnaire::Ordre::Source),
            "1789\r\nR\xE9volution\r\n\r\n1515\r\nMarignan\r\n");
}

TEST(EcrivainDictionnaire, EqualKeysKeepTheSourceOrderAmongThousands) {
  std::vector<ArticleImporte> articles;
  for (int i = 0; i < 3000; ++i)
    articles.push_back({i % 3 == 0 ? "mot" : i % 3 == 1 ? "Mot" : "m\xC3\xB4t", {std::to_string(i)}});
  BilanEcriture bilan;
  const std::string octets = Ecrit(std::move(articles), &bilan);
  std::size_t p = 0;
  for (int i = 0; i < 3000; ++i) {
    const std::string attendu = std::string(i % 3 == 0 ? "mot" : i % 3 == 1 ? "Mot" : "m\xF4t") + "\r\n" +
                                std::to_string(i) + "\r\n";
    ASSERT_EQ(octets.compare(p, attendu.size(), attendu), 0) << i;
    p += attendu.size() + 2;
  }
  EXPECT_EQ(p, octets.size() + 2);
}

TEST(EcrivainDictionnaire, CountsTheCharactersItChanged) {
  BilanEcriture bilan;
  const std::string octets = Ecrit({{"Erd\xC5\x91s", {"math\xC3\xA9maticien \xE2\x80\x94 \xE4\xB8\xAD"}}}, &bilan);
  EXPECT_EQ(octets, "Erdos\r\nmath\xE9maticien \x97 ?\r\n");
  EXPECT_EQ(bilan.changes, 2u);
  EXPECT_EQ(bilan.exemples, (std::vector<std::string>{"\xC5\x91\xE2\x86\x92o", "\xE4\xB8\xAD\xE2\x86\x92?"}));
}

// The error an article gives, checked for its place; the writer refuses at once.
ErreurImport Refus(std::vector<ArticleImporte> articles) {
  EcrivainDictionnaire e("source.txt");
  try {
    for (auto& a : articles) e.Ajoute(std::move(a));
  } catch (const ErreurImport& x) {
    return x;
  }
  ADD_FAILURE() << "accepted";
  return ErreurImport("", "", "");
}

TEST(EcrivainDictionnaire, RefusesWhatTheFileCannotHoldNamingTheEntry) {
  const ErreurImport nul = Refus({{"a", {"b"}}, {"chat", {"f\xC3\xA9lin", std::string("x\0y", 3)}}});
  EXPECT_EQ(nul.fichier(), "source.txt");
  EXPECT_EQ(nul.endroit(), "entr\xC3\xA9" "e 2 (chat)");
  EXPECT_EQ(nul.probleme(), "la ligne 3 de l'article contient un octet nul");
  EXPECT_EQ(std::string(nul.what()), "source.txt, entr\xC3\xA9" "e 2 (chat) : la ligne 3 de l'article contient un octet nul");

  EXPECT_EQ(Refus({{"chat\rchien", {}}}).probleme(), "le mot d'entr\xC3\xA9" "e contient un retour chariot (CR)");
  EXPECT_EQ(Refus({{"chat", {"a\nb"}}}).probleme(), "la ligne 2 de l'article contient un saut de ligne (LF)");
  const ErreurImport vide = Refus({{"a", {}}, {"b", {}}, {"  ", {"x"}}});
  EXPECT_EQ(vide.endroit(), "entr\xC3\xA9" "e 3");
  EXPECT_EQ(vide.probleme(), "le mot d'entr\xC3\xA9" "e est vide");
}

TEST(EcrivainDictionnaire, AHeadwordOfTenThousandCharactersIsRefused) {
  const ErreurImport long_ = Refus({{std::string(10000, 'a'), {"x"}}});
  EXPECT_EQ(long_.endroit(), "entr\xC3\xA9" "e 1 (" + std::string(40, 'a') + "\xE2\x80\xA6)");
  EXPECT_EQ(long_.probleme(), "le mot d'entr\xC3\xA9" "e a 10000 caract\xC3\xA8res, 250 au plus");
  // The longest allowed is written whole.
  const std::string mot(EcrivainDictionnaire::kLongueurIndex, 'b');
  EXPECT_EQ(Ecrit({{mot, {"x"}}}), mot + "\r\nx\r\n");
}

TEST(EcrivainDictionnaire, LeavesNoFileWhenItCannotWrite) {
  test::DossierTemp d;
  const std::filesystem::path cible = d.Chemin("sortie.dic");
  d.Ecrire("sortie.dic", "ancien");
  EcrivainDictionnaire vide("source.txt");
  try {
    vide.Ecrit(cible);
    ADD_FAILURE() << "nothing written without articles";
  } catch (const ErreurImport& e) {
    EXPECT_EQ(std::string(e.what()), "source.txt : aucun article \xC3\xA0 \xC3\xA9" "crire");
  }
  EXPECT_EQ(d.Lire("sortie.dic"), "ancien");

  EcrivainDictionnaire e("source.txt");
  e.Ajoute({"chat", {"f\xC3\xA9lin"}});
  const std::filesystem::path ailleurs = std::filesystem::path(d.Dossier()) / "absent" / "sortie.dic";
  EXPECT_THROW(e.Ecrit(ailleurs), ErreurEcriture);
  EXPECT_FALSE(std::filesystem::exists(ailleurs.parent_path()));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(d.Dossier()), std::filesystem::directory_iterator{}), 1);
}

}  // namespace
