// The reports: the comparison of two dictionaries (its keys, the other index as it may be
// found on disk, the choice and the way back from it), the entries without definition, and
// the spoken reports where the scenarios do not go.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "base/blanks.h"
#include "controller/comparison.h"
#include "controller/line_helpers.h"
#include "data/folding.h"
#include "data/index_file.h"
#include "reports/comparison.h"
#include "reports/without_definition.h"
#include "session.h"

using namespace lex;
using M = MenuId;

namespace {

// A dictionary of `n` one-line articles "mot00001 (n.)"..., leaving out those `sauf` says.
template <class Sauf>
std::string Mots(int n, Sauf sauf) {
  std::string texte;
  for (int i = 1; i <= n; ++i) {
    if (sauf(i)) continue;
    char mot[64];
    std::snprintf(mot, sizeof mot, "mot%05d (n.)\r\nsens %d\r\n\r\n", i, i);
    texte += mot;
  }
  return texte;
}

// A dictionary of the folder, indexed as opening it would.
DictionnaireOuvert Indexe(const test::DossierTemp& d, const std::string& nom, const std::string& octets) {
  d.Ecrire(nom, octets);
  DictionnaireOuvert dico;
  dico.fichiers = {d.Chemin(nom), d.Chemin("index." + nom), d.Chemin("lettre." + nom)};
  ConstruireIndex(dico.fichiers, true, dico.TableIndex, dico.Lettres, [] {});
  return dico;
}

std::vector<std::int32_t> Numeros(const std::vector<EntreeTrouvee>& v) {
  std::vector<std::int32_t> n;
  for (const EntreeTrouvee& e : v) n.push_back(e.numero);
  return n;
}

Comparaison Compare(const DictionnaireOuvert& ouvert, const DictionnaireOuvert& autre) {
  return CompareAvecIndex(ouvert, autre.fichiers.index, LongueurFichier(autre.fichiers.dictio), [] {});
}

// The program on a folder holding ANGLAIS francais (lex.eng) and FRANCAIS ANGLAIS (lex.fen).
struct Deux : test::Session {
  explicit Deux(const std::string& eng = Mots(100, [](int) { return false; })) {
    d.Ecrire("lex.eng", eng);
    d.Ecrire("lex.fen", "chat\r\ncat\r\n\r\n");
    Charge();
  }
  void Menu(M id) { EvMenu(f, id); }
  std::string Dit() const { return std::string(Rogne(ui.messages.back())); }
  // FRANCAIS ANGLAIS opened once, so that its index exists, then ANGLAIS francais.
  void OuvreLesDeux() {
    Tape('f');
    Tape(13);
    Tape(27);
    Ouvre();
  }
  void Ligne(int n) { ui.txt.SetCaret(DebutLigne(ui.txt.Text(), n)); }
};

}  // namespace

// The compared key is taken from an index's key, not folded again from the line: this is what
// lets it do so.
TEST(Reports, TheComparedKeyIsSansaccentOfTheLine) {
  char tampon[kTailleChamp];
  for (int b = 1; b < 256; ++b) {
    // Short and long keys, the byte at each place of a word.
    for (const std::string& ligne : {std::string("a") + static_cast<char>(b),
                                     std::string("abcdefgh") + static_cast<char>(b) + "(n.) [vx], b+c \xE9t\xE9",
                                     std::string("abc") + static_cast<char>(b) + "defghijkl"})
      EXPECT_EQ(std::string(CleComparee(SansaccentEpure(ligne), tampon)), Sansaccent(ligne)) << b;
  }
  // A field of an index file, blanks after the key; and a key cut at the field's width.
  EXPECT_EQ(CleComparee("CHAT(N)      ", tampon), "CHATN");
  EXPECT_EQ(CleComparee(std::string(80, 'A'), tampon), std::string(kTailleChamp, 'A'));
}

TEST(Reports, ComparisonListsWhatTheOtherLacksWhateverTheMarksAndTheLengths) {
  test::DossierTemp d;
  const std::string longue(75, 'x');
  DictionnaireOuvert a = Indexe(d, "a.lex",
                                "chat (n.)\r\nun\r\n\r\n\xC9t\xE9\r\ndeux\r\n\r\nchien\r\ntrois\r\n\r\n" + longue +
                                    "1\r\nquatre\r\n\r\nz\xE8" "bre\r\ncinq\r\n");
  DictionnaireOuvert b = Indexe(d, "b.lex", "CHAT(N.)\r\n\r\nete\r\n\r\n" + longue + "2\r\n\r\nzebre (n.)\r\n");
  // "chien" is missing; so is "zèbre", which is "zebre (n.)" there; the long lines differ past
  // what an index keeps of them.
  const Comparaison c = Compare(a, b);
  ASSERT_EQ(c.etat, LectureIndex::Lue);
  EXPECT_EQ(Numeros(c.absents), (std::vector<std::int32_t>{3, 5}));
  const ListeAffichee index(a);
  EXPECT_EQ(c.absents[1].debut, index.EtendueArticle(5).debut);
  EXPECT_EQ(c.absents[1].fin, index.EtendueArticle(5).fin);

  // With itself: nothing, though an entry is marked and the table holds whole lines where the
  // index file holds them cut.
  a.TableIndex.ChangerTexte(1, "chat (n.) s\xE9lectionn\xE9");
  EXPECT_TRUE(Compare(a, a).absents.empty());
  DictionnaireOuvert relu;
  relu.fichiers = a.fichiers;
  ASSERT_EQ(LireIndex(relu.fichiers, relu.TableIndex, relu.Lettres), EtatIndex::Charge);
  EXPECT_TRUE(Compare(relu, a).absents.empty());
  EXPECT_TRUE(Compare(a, relu).absents.empty());

  // Enough entries for many parts, each read half of the other index among them.
  const DictionnaireOuvert grand = Indexe(d, "grand.lex", Mots(30000, [](int) { return false; }));
  const DictionnaireOuvert troue = Indexe(d, "troue.lex", Mots(30000, [](int i) { return i % 7 == 3; }));
  std::vector<std::int32_t> attendus;
  for (int i = 3; i <= 30000; i += 7) attendus.push_back(i);
  EXPECT_EQ(Numeros(Compare(grand, troue).absents), attendus);
  EXPECT_TRUE(Compare(troue, grand).absents.empty());
  const DictionnaireOuvert vide = Indexe(d, "vide.lex", "");
  EXPECT_EQ(Compare(troue, vide).absents.size(), static_cast<std::size_t>(troue.TableIndex.NombreArticle()));
  EXPECT_TRUE(Compare(vide, grand).absents.empty());
}

TEST(Reports, AnOtherIndexIsReadOnlyWhenItStillDescribesItsDictionary) {
  test::DossierTemp d;
  const DictionnaireOuvert a = Indexe(d, "a.lex", "chat\r\n\r\nchien\r\n");
  const std::string index = d.Lire("index.a.lex");
  const std::int64_t taille = LongueurFichier(a.fichiers.dictio);
  struct Cas {
    const char* quoi;
    std::string octets;
    std::int64_t taille;
    LectureIndex etat;
  };
  std::string version = index, compte = index;
  version.replace(0, 4, "1.10");
  compte[140] = 3;  // three entries counted, two records
  const std::vector<Cas> cas = {
      {"whole", index, taille, LectureIndex::Lue},
      {"another version", version, taille, LectureIndex::Version},
      {"cut inside a record", index.substr(0, index.size() - 10), taille, LectureIndex::ARefaire},
      {"cut inside the header", index.substr(0, 100), taille, LectureIndex::ARefaire},
      {"more entries counted than written", compte, taille, LectureIndex::ARefaire},
      {"its dictionary changed since", index, taille + 1, LectureIndex::ARefaire},
  };
  for (const Cas& c : cas) {
    d.Ecrire("index.x", c.octets);
    const EnTeteIndex tete = LireEnTeteIndex(d.Chemin("index.x"), c.taille);
    EXPECT_EQ(tete.etat, c.etat) << c.quoi;
    EXPECT_EQ(tete.nombre, c.etat == LectureIndex::Lue ? 2 : 0) << c.quoi;
  }
  EXPECT_EQ(LireEnTeteIndex(d.Chemin("index.absent"), taille).etat, LectureIndex::Absente);
  // A file that shrank after its header was read.
  d.Ecrire("index.x", index.substr(0, 3 * kTailleEnreg));
  ClesReparties cles(2);
  EXPECT_FALSE(LireClesIndex(d.Chemin("index.x"), 0, 2, cles));
}

TEST(Reports, WithoutDefinitionIsWhatTheArticlesSayWhateverTheBlocks) {
  test::DossierTemp d;
  const DictionnaireOuvert dico =
      Indexe(d, "d.lex",
             "\r\n\r\nseul\r\n\r\nplein\r\ntexte\r\n\r\ndeux vides\r\n\r\n\r\nblancs\r\n   \r\n\r\n"
             "lf\n\nlf plein\nx\n\nlong " + std::string(3000, 'y') + "\r\n\r\ndernier");
  // What reading each article shows: nothing but line ends after the index line.
  const ListeAffichee index(dico);
  std::vector<std::int32_t> attendus;
  for (std::int32_t i = 1; i <= index.Nombre(); ++i) {
    const std::string a = index.Lit(i);
    const std::size_t fin = a.find_first_of("\r\n", a.find_first_not_of("\r\n"));
    if (fin == std::string::npos || a.find_first_not_of("\r\n", fin) == std::string::npos) attendus.push_back(i);
  }
  EXPECT_EQ(attendus, (std::vector<std::int32_t>{1, 3, 5, 7, 8}));
  for (std::size_t bloc : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{7}, std::size_t{1} << 20}) {
    int bips = 0;
    EXPECT_EQ(Numeros(IndexSansDefinition(dico, [&bips] { ++bips; }, bloc)), attendus) << bloc;
    EXPECT_EQ(bips, 0);
  }
}

TEST(Reports, GivingUpTheChoiceComesBackWhereTheUserWas) {
  Deux s;
  s.OuvreLesDeux();
  s.Touche(Touche::PageSuiv);
  s.Ligne(5);
  s.Menu(M::mnucomparaisonIndex);
  EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::ChoixComparaison);
  EXPECT_EQ(s.ui.Title(), "Comparaisonde 2 dic");
  EXPECT_EQ(s.Dit(), "Choix du dictionnaire \xE0 comparer avec ANGLAIS francais");
  EXPECT_EQ(s.ui.GetButtonCaption(Bouton::CmdDic), "OK");
  EXPECT_EQ(s.ui.GetButtonCaption(Bouton::CmdDivers), "Annuler");
  EXPECT_TRUE(s.ui.ButtonVisible(Bouton::CmdDivers));
  s.Tape(27);
  EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::Index);
  EXPECT_EQ(s.f.fenetre.PremierIndexAffiche, 41);
  EXPECT_EQ(IndexAbsolu(s.f), 45);
  EXPECT_EQ(s.ui.Title(), "ANGLAIS francais");

  // From an article, "Annuler": the page holding it, the caret on it.
  s.Tape(13);
  s.Menu(M::mnucomparaisonIndex);
  EvBouton(s.f, Bouton::CmdDivers);
  EXPECT_EQ(IndexAbsolu(s.f), 45);

  // From a result list: the list is dropped, and the index comes back on the entry's own number.
  s.ui.answers.push_back({headless::Answer::Kind::Input, Reponse::OK, "sens 7", 0});
  s.Menu(M::mnuRechercheChaine);  // "sens 7", "sens 70" ... "sens 79"
  s.Ligne(3);
  s.Menu(M::mnucomparaisonIndex);
  EXPECT_FALSE(s.f.liste.EstResultats());
  s.Tape(27);
  EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::Index);
  EXPECT_EQ(IndexAbsolu(s.f), 71);

  // Letters move on the rows; Enter compares with the dictionary there.
  s.Menu(M::mnucomparaisonIndex);
  s.Tape('f');
  EvBouton(s.f, Bouton::CmdDic);
  EXPECT_EQ(s.Dit(), "100 index trouv\xE9");
  EXPECT_EQ(s.ui.Title(), "comparaison ANGLAIS francais avec FRANCAIS ANGLAIS");
  EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::ListeResultats);
}

TEST(Reports, WhatTheChoiceCannotCompareLeavesTheUserInIt) {
  Deux s;
  s.OuvreLesDeux();
  Catalogue& c = s.f.catalogue;
  s.Menu(M::mnucomparaisonIndex);
  const auto Choisit = [&](int ligne) {
    s.ui.messages.clear();
    s.Ligne(ligne);
    s.Tape(13);
    EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::ChoixComparaison) << ligne;
  };
  Choisit(1);
  EXPECT_EQ(s.Dit(), "choisissez un dictionnaire");
  Choisit(11);
  EXPECT_EQ(s.Dit(), "index absent de Histoire");
  Choisit(2 + LigneDeEntree(c, c.NombreDictio()));
  EXPECT_EQ(s.Dit(), "le bloc note n'est pas un dictionnaire");
  Choisit(5);  // INFORMATIQUE, never opened: no index
  EXPECT_EQ(s.ui.boxes.back(), "dictionnaire INFORMATIQUE ANGLAIS FRANCAIS absent");
  c[2].OrdreAlpha = false;
  Choisit(4);
  EXPECT_EQ(s.Dit(), "index absent de FRANCAIS ANGLAIS");
  c[2].OrdreAlpha = true;
  // Changed since it was indexed.
  s.d.Ecrire("lex.fen", "chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  Choisit(4);
  EXPECT_EQ(s.Dit(), "index de FRANCAIS ANGLAIS \xE0 refaire : ouvrez ce dictionnaire, puis recommencez");
  // Another version: a beep, not a word.
  std::string index = s.d.Lire("index.lex.fen");
  index.replace(0, 4, "1.10");
  s.d.Ecrire("index.lex.fen", index);
  const int bips = s.ui.beeps;
  Choisit(4);
  EXPECT_TRUE(s.ui.messages.empty());
  EXPECT_EQ(s.ui.beeps, bips + 1);
  EXPECT_EQ(s.ui.boxes.size(), 1u);
}

TEST(Reports, OutsideADictionaryTheReportsSaySo) {
  Deux s;
  const int bips = s.ui.beeps;
  for (M id : {M::mnucomparaisonIndex, M::mnuSansDefinition, M::mnuNombreIndex}) {
    s.Menu(id);
    EXPECT_EQ(s.Dit(), "choisissez d'abord le dictionnaire");
  }
  s.Menu(M::mnuXY);
  EXPECT_EQ(s.ui.beeps, bips + 1);
  // The code of a character works on whatever the field shows, and beeps past its end.
  s.Menu(M::mnuCodeIso);
  EXPECT_EQ(s.Dit(), "65");  // the "A" of "ANGLAIS francais"
  s.ui.txt.SetCaret(s.ui.txt.Text().size());
  s.Menu(M::mnuCodeIso);
  EXPECT_EQ(s.ui.beeps, bips + 2);
  EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::ListeDictionnaires);
}

TEST(Reports, TheCaretsPlaceIsAnEntryOnAPageAndALineInAnArticle) {
  Deux s;
  s.OuvreLesDeux();
  s.Touche(Touche::PageSuiv);
  s.Ligne(5);
  s.ui.txt.SetCaret(s.ui.txt.Caret() + 3);
  s.Menu(M::mnuXY);
  EXPECT_EQ(s.Dit(), "colonne 4 ligne 45");
  s.Tape(13);
  s.Menu(M::mnuXY);
  EXPECT_EQ(s.Dit(), "colonne 1 ligne 2");
  // The count is the dictionary's, even on a result list.
  s.Tape(27);
  s.ui.answers.push_back({headless::Answer::Kind::Input, Reponse::OK, "sens 7", 0});
  s.Menu(M::mnuRechercheChaine);
  s.Menu(M::mnuNombreIndex);
  EXPECT_EQ(s.Dit(), "100 sur ANGLAIS francais");
}
