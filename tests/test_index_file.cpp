#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>

#include "data/files.h"
#include "data/index_file.h"
#include "data/write_error.h"
#include "data/write_faults.h"
#include "test_support.h"

using namespace lex;

namespace {

struct Index {
  test::DossierTemp d;
  FichiersIndex f{d.Chemin("dic.txt"), d.Chemin("index.dic.txt"), d.Chemin("lettre.dic.txt")};
  IndexTable table, lu;
  TableLettre lettres, lettresLues;
  int bips = 0;
  void Construit(const std::string& contenu, bool alpha = true) {
    d.Ecrire("dic.txt", contenu);
    ConstruireIndex(f, alpha, table, lettres, [this] { ++bips; });
  }
  EtatIndex Lit() { return LireIndex(f, lu, lettresLues); }
  std::string Enreg(int n) { return d.Lire("index.dic.txt").substr(static_cast<std::size_t>(n - 1) * 144, 144); }
};

std::string Champ(const std::string& s) { return s + std::string(70 - s.size(), ' '); }
std::string Valeur(std::int32_t v) {
  std::string o(4, '\0');
  for (int i = 0; i < 4; ++i) o[i] = static_cast<char>((static_cast<std::uint32_t>(v) >> (8 * i)) & 0xFF);
  return o;
}

}  // namespace

TEST(IndexFile, RecordsByteForByte) {
  Index x;
  const std::string longue(100000, 'x');  // cut in the file, whole in the table
  x.Construit("\xE9t\xE9 (n.m.)\r\nsummer\r\n\r\n" + longue + "\r\nd\r\n");
  // Record 1 carries the key the buffer last held, here the last article's; record 2 the
  // dictionary's date.
  const std::string cleLongue = std::string(70, 'X');
  EXPECT_EQ(x.Enreg(1), Champ("1.20") + cleLongue + Valeur(2));
  const std::string date = "T" + std::to_string(LireEtatDictio(x.f.dictio).date);
  EXPECT_EQ(x.Enreg(2), Champ("") + Champ(date) + Valeur(22 + 100000 + 5));
  EXPECT_EQ(x.Enreg(3), Champ("\xE9t\xE9 (n.m.)") + Champ("ETE(NM)") + Valeur(0));
  EXPECT_EQ(x.Enreg(4), std::string(70, 'x') + cleLongue + Valeur(22));
  EXPECT_EQ(x.table.texte(2), longue);
}

// Offsets count the real bytes of every kind of line end; the last is the dictionary's length.
TEST(IndexFile, ArticlesAndTheirOffsets) {
  Index x;
  const std::vector<std::pair<std::string, std::vector<std::int32_t>>> cas = {
      {"", {0}},
      {"\r\n\r\n\r\n", {6}},  // only empty lines: no article either
      {"a\nb\n\nc\r\nd\r\n\r\n\r\ne", {0, 5, 15, 16}},
  };
  for (const auto& [contenu, positions] : cas) {
    x.Construit(contenu);
    const auto n = static_cast<std::int32_t>(positions.size()) - 1;
    ASSERT_EQ(x.table.NombreArticle(), n) << contenu.substr(0, 20);
    EXPECT_EQ(x.d.Lire("index.dic.txt").size(), static_cast<std::size_t>(n + 2) * 144);
    for (std::int32_t k = 1; k <= n + 1; ++k) EXPECT_EQ(x.table.position(k), positions[k - 1]) << k;
  }
}

// A record of blanks read first: an entry with neither text nor key still has its place.
TEST(IndexFile, AnEmptyFirstEntry) {
  IndexTable t;
  t.Ajouter("", "", 0);
  t.Terminer(0);
  EXPECT_EQ(t.texte(1), "");
  EXPECT_EQ(t.cle(1), "");
}

TEST(IndexFile, LetterTable) {
  Index x;
  x.Construit(
      "(note)\r\nd\r\n\r\nabc\r\nd\r\n\r\nabcd\r\nd\r\n\r\nabd\r\nd\r\n\r\nb\r\nd\r\n\r\nb1x\r\nd\r\n\r\nzz, v\r\nd\r\n");
  const TableLettre& t = x.lettres;
  EXPECT_EQ(t('A', 'B', 'C'), 2);  // "(note)" never enters the table
  EXPECT_EQ(t('A', 'B', 'D'), 4);  // abcd shares abc's three letters: not entered
  EXPECT_EQ(t('A', 'C', 'D'), 2);  // later slots inherit the previous prefix's slot
  EXPECT_EQ(t('A', 'B', 'E'), 1);
  EXPECT_EQ(t('B', '@', '@'), 5);
  EXPECT_EQ(t('B', 'A', 'A'), 6);  // a second letter outside A..Z counts as A
  EXPECT_EQ(t('Z', 'Z', '@'), 7);  // the note after the comma is cut off
  EXPECT_EQ(t('C', 'A', 'A'), 1);  // untouched slots keep 1
  const auto lignes = LireLignes(x.f.lettre);
  ASSERT_EQ(lignes.size(), 18954u);
  EXPECT_EQ(lignes[2 * 27 + 3], " 2");  // A, B, C
  EXPECT_EQ(x.d.Lire("lettre.dic.txt").substr(0, 8), " 1\r\n 1\r\n");
  // An unordered dictionary gets no fresh letter file.
  std::filesystem::remove(CheminNatif(x.f.lettre));
  x.Construit("a\r\nb\r\n", false);
  EXPECT_FALSE(FichierExistant(x.f.lettre));
}

TEST(IndexFile, ProgressBeepsAreShared) {
  Index x;
  std::string dic;
  for (int i = 0; i < 36000; ++i) dic.append("m").append(std::to_string(i)).append("\r\nd\r\n\r\n");
  x.Construit(dic);
  // One beep at 25,000 index lines; the letter loop goes on from 11,000 and beeps at 20,000
  // and 40,000 (counted apart, it would reach 20,000 once).
  EXPECT_EQ(x.bips, 3);
}

// An index is loaded only when it describes the dictionary as it is now (same length, same
// date) and is whole; any other leaves the table empty, to be rebuilt.
TEST(IndexFile, OnlyACurrentWholeIndexIsLoaded) {
  Index x;
  x.Construit("chat (n.m.)\r\ncat\r\n\r\nchien\r\ndog\r\n\r\nzebre\r\nzebra\r\n");
  ASSERT_EQ(x.Lit(), EtatIndex::Charge);
  ASSERT_EQ(x.lu.NombreArticle(), 3);
  for (std::int32_t k = 1; k <= 3; ++k)
    EXPECT_TRUE(x.lu.texte(k) == x.table.texte(k) && x.lu.cle(k) == x.table.cle(k) &&
                x.lu.position(k) == x.table.position(k)) << k;
  EXPECT_EQ(x.lu.position(4), LongueurFichier(x.f.dictio));
  EXPECT_EQ(x.lettresLues.valeurs(), x.lettres.valeurs());
  EXPECT_EQ(LireIndex(x.f, LongueurFichier(x.f.dictio) + 1, x.lu, x.lettresLues), EtatIndex::Perime);
  // Changed to the same length, the dictionary is told by its date.
  const auto date = std::filesystem::last_write_time(CheminNatif(x.f.dictio));
  x.d.Ecrire("dic.txt", "chat (n.m.)\r\ncat\r\n\r\nchien\r\ndog\r\n\r\nzebre\r\nzebre\r\n");
  std::filesystem::last_write_time(CheminNatif(x.f.dictio), date + std::chrono::seconds(1));
  EXPECT_EQ(x.Lit(), EtatIndex::Perime);
  std::filesystem::last_write_time(CheminNatif(x.f.dictio), date);
  EXPECT_EQ(x.Lit(), EtatIndex::Charge);  // (what a date cannot see)

  const std::string bon = x.d.Lire("index.dic.txt");
  auto avec = [&bon](std::size_t ou, const std::string& octets) {
    return std::string(bon).replace(ou, octets.size(), octets);
  };
  const std::vector<std::pair<std::string, EtatIndex>> index = {
      {bon + "x", EtatIndex::Perime},                               // not whole records
      {avec(140, Valeur(9)), EtatIndex::Perime},                    // fewer records than counted
      {avec(3 * 144 + 140, Valeur(0)), EtatIndex::Perime},          // offsets out of order
      {avec(4 * 144 + 140, Valeur(1000)), EtatIndex::Perime},       // an offset beyond the dictionary
      {avec(144 + 70, std::string(70, ' ')), EtatIndex::Perime},    // no date recorded
      {avec(144 + 60, "\x08\xE8"), EtatIndex::Perime},              // not our shape (found by fuzzing)
      {avec(0, "1.10"), EtatIndex::Version},
      {"", EtatIndex::Version},
  };
  for (const auto& [octets, attendu] : index) {
    x.d.Ecrire("index.dic.txt", octets);
    EXPECT_EQ(x.Lit(), attendu) << octets.substr(0, 8);
    EXPECT_EQ(x.lu.NombreArticle(), 0);
  }

  // A letter file with garbage in its lines reads leniently; a short or an overlong one is not
  // trusted, and what was read stays.
  x.d.Ecrire("index.dic.txt", bon);
  std::string garbage;
  for (int i = 0; i < 18954; ++i) garbage += "\xFF\x01zz\r\n";
  for (const auto& [octets, attendu] : std::vector<std::pair<std::string, EtatIndex>>{
           {garbage, EtatIndex::Charge},
           {" 1\r\n 2\r\n", EtatIndex::Perime},
           {TexteLettres(x.lettres) + std::string(kLongueurMaxLettre, ' '), EtatIndex::Perime}}) {
    x.d.Ecrire("lettre.dic.txt", octets);
    EXPECT_EQ(x.Lit(), attendu);
    EXPECT_EQ(x.lu.NombreArticle(), attendu == EtatIndex::Charge ? 3 : 0);
    EXPECT_EQ(x.lettresLues('A', '@', '@'), 0);
  }
}

// A build that fails at any of its writes leaves the earlier index and letter files as they
// were and no temporary file; the dictionary having changed, they are not taken as current.
TEST(IndexFile, AFailedBuildLosesNothingAndIsNotTakenForCurrent) {
  Index x;
  x.Construit("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  const std::string index = x.d.Lire("index.dic.txt"), lettre = x.d.Lire("lettre.dic.txt");
  x.d.Ecrire("dic.txt", "abeille\r\nbee\r\n\r\nchat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  int echecs = 0, lettreNeuve = 0;
  for (int etape = 1;; ++etape) {
    ProgrammerPanne({etape, 61, false});
    try {
      ConstruireIndex(x.f, true, x.table, x.lettres, [] {});
      break;
    } catch (const ErreurEcriture& e) {
      ++echecs;
      EXPECT_TRUE(x.d.Lire("index.dic.txt") == index) << "step " << etape;
      EXPECT_EQ(std::distance(std::filesystem::directory_iterator(CheminNatif(x.d.Dossier())), {}), 3);
      EXPECT_NE(x.Lit(), EtatIndex::Charge) << "step " << etape;
      // The letter file is replaced before the index, whose own replacement fails last.
      if (x.d.Lire("lettre.dic.txt") != lettre) {
        ++lettreNeuve;
        EXPECT_EQ(e.fichier(), x.f.index);
      }
    }
  }
  AnnulerPanne();
  EXPECT_GE(echecs, 6);
  EXPECT_EQ(lettreNeuve, 1);
  ASSERT_EQ(x.Lit(), EtatIndex::Charge);
  EXPECT_EQ(x.lu.NombreArticle(), 3);
}

// Start-up deletes index and letter files of an earlier naming: only files that have their
// shape, never a user's file that happens to bear the name.
TEST(IndexFile, OwnFilesAreToldFromAUsersFiles) {
  Index x;
  x.Construit("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  std::string ancien = x.d.Lire("index.dic.txt");
  ancien.replace(0, 4, "1.10");  // an earlier version is still ours
  for (const auto& [octets, notre] : std::vector<std::pair<std::string, bool>>{
           {ancien, true}, {ancien + std::string(144, ' '), true},  // records left past the count
           {ancien.substr(0, 3 * 144), false}, {ancien + "x", false}, {std::string(), false},
           {"Mes notes" + ancien.substr(9), false},
           {ancien.substr(0, 144) + "x" + ancien.substr(145), false}}) {
    x.d.Ecrire("index.eng", octets);
    EXPECT_EQ(EstFichierIndex(x.d.Chemin("index.eng")), notre) << octets.substr(0, 10);
  }

  const std::string lettres = x.d.Lire("lettre.dic.txt");
  std::string vieux;  // numbers with blanks around, LF ends
  for (int i = 0; i < 18954; ++i) vieux += " " + std::to_string(i) + " \n";
  for (const auto& [octets, notre] : std::vector<std::pair<std::string, bool>>{
           {lettres, true}, {vieux, true}, {lettres.substr(0, lettres.size() - 4), false},
           {lettres + " 1\r\n", false}, {lettres + "fin", false}, {"x" + lettres.substr(1), false},
           {lettres.substr(0, 8) + "\r\n" + lettres.substr(8), false}, {"liste de courses\r\n", false}}) {
    x.d.Ecrire("lettre.eng", octets);
    EXPECT_EQ(EstFichierLettre(x.d.Chemin("lettre.eng")), notre) << octets.substr(0, 10);
  }
}
