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
  IndexTable table;
  TableLettre lettres;
  int bips = 0;
  void Construit(const std::string& contenu, bool alpha = true) {
    d.Ecrire("dic.txt", contenu);
    ConstruireIndex(f, alpha, table, lettres, [this] { ++bips; });
  }
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
  const std::string longue(75, 'x');
  x.Construit("\xE9t\xE9 (n.m.)\r\nsummer\r\n\r\n" + longue + "\r\nd\r\n");
  const std::string idx = x.d.Lire("index.dic.txt");
  ASSERT_EQ(idx.size(), 4u * 144);
  // Record 1 carries the key the buffer last held, here the last article's; record 2 the
  // dictionary's date.
  const std::string cleLongue = std::string(70, 'X');
  EXPECT_EQ(x.Enreg(1), Champ("1.20") + cleLongue + Valeur(2));
  const std::string date = "T" + std::to_string(LireEtatDictio(x.f.dictio).date);
  EXPECT_EQ(x.Enreg(2), Champ("") + Champ(date) + Valeur(22 + 75 + 5));
  EXPECT_EQ(x.Enreg(3), Champ("\xE9t\xE9 (n.m.)") + Champ("ETE(NM)") + Valeur(0));
  EXPECT_EQ(x.Enreg(4), std::string(70, 'x') + cleLongue + Valeur(22));
  // The table keeps the whole line and sentinel.
  EXPECT_EQ(x.table.NombreArticle(), 2);
  EXPECT_EQ(x.table.texte(2), longue);
  EXPECT_EQ(x.table.position(3), 22 + 75 + 5);
  EXPECT_EQ(x.table.texte(3), "");
}

TEST(IndexFile, EmptyDictionaryHasOnlyTheHeader) {
  Index x;
  x.Construit("");
  EXPECT_EQ(x.d.Lire("index.dic.txt").size(), 288u);
  EXPECT_EQ(x.table.NombreArticle(), 0);
  EXPECT_EQ(x.table.position(1), 0);
  x.Construit("\r\n\r\n\r\n");  // only empty lines: no article either
  EXPECT_EQ(x.table.NombreArticle(), 0);
  EXPECT_EQ(x.table.position(1), 6);
}

TEST(IndexFile, LineEndsOfEveryKindCountTheirRealBytes) {
  Index x;
  x.Construit("a\nb\n\nc\r\nd\r\n\r\n\r\ne");
  ASSERT_EQ(x.table.NombreArticle(), 3);
  EXPECT_EQ(x.table.position(2), 5);
  EXPECT_EQ(x.table.position(3), 15);
  EXPECT_EQ(x.table.position(4), 16);
  // A line of 100,000 characters is an index line like any other.
  x.Construit(std::string(100000, 'z') + "\r\ndef\r\n\r\nmot\r\n");
  EXPECT_EQ(x.table.NombreArticle(), 2);
  EXPECT_EQ(x.table.texte(1).size(), 100000u);
  EXPECT_EQ(x.table.position(2), 100009);
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
  EXPECT_EQ(lignes[0], " 1");
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
  for (int i = 0; i < 30000; ++i) dic.append("m").append(std::to_string(i)).append("\r\nd\r\n\r\n");
  x.Construit(dic);
  // One beep at 25,000 index lines; the letter loop goes on from 5,000 and beeps at 20,000.
  EXPECT_EQ(x.bips, 2);
}

TEST(IndexFile, ReadBackWhenCurrent) {
  Index x;
  x.Construit("chat (n.m.)\r\ncat\r\n\r\nchien\r\ndog\r\n");
  IndexTable t;
  TableLettre l;
  ASSERT_EQ(LireIndex(x.f, LongueurFichier(x.f.dictio), t, l), EtatIndex::Charge);
  ASSERT_EQ(t.NombreArticle(), 2);
  EXPECT_EQ(t.texte(1), "chat (n.m.)");
  EXPECT_EQ(t.cle(1), "CHAT(NM)");
  EXPECT_EQ(t.position(2), 20);
  EXPECT_EQ(t.position(3), LongueurFichier(x.f.dictio));
  EXPECT_EQ(l.valeurs(), x.lettres.valeurs());
}

TEST(IndexFile, StaleOrDamagedIndexIsNotLoaded) {
  Index x;
  x.Construit("chat\r\ncat\r\n\r\nchien\r\ndog\r\n\r\nzebre\r\nzebra\r\n");
  const std::string bon = x.d.Lire("index.dic.txt");
  const auto longueur = LongueurFichier(x.f.dictio);
  IndexTable t;
  TableLettre l;
  auto etat = [&](const std::string& index) {
    x.d.Ecrire("index.dic.txt", index);
    return LireIndex(x.f, longueur, t, l);
  };
  EXPECT_EQ(LireIndex(x.f, longueur + 1, t, l), EtatIndex::Perime);  // the dictionary changed
  EXPECT_EQ(etat(bon.substr(0, bon.size() - 10)), EtatIndex::Perime);  // truncated
  std::string plus = bon;
  plus.replace(140, 4, Valeur(9));
  EXPECT_EQ(etat(plus), EtatIndex::Perime);  // count larger than the records
  std::string desordre = bon;
  desordre.replace(3 * 144 + 140, 4, Valeur(0));
  EXPECT_EQ(etat(desordre), EtatIndex::Perime);  // offsets out of order
  std::string hors = bon;
  hors.replace(4 * 144 + 140, 4, Valeur(1000));
  EXPECT_EQ(etat(hors), EtatIndex::Perime);  // offset beyond the file
  std::string version = bon;
  version.replace(0, 4, "1.10");
  EXPECT_EQ(etat(version), EtatIndex::Version);
  EXPECT_EQ(etat(""), EtatIndex::Version);
  EXPECT_EQ(t.NombreArticle(), 0);
  // A letter file that is short is not trusted; one with garbage reads leniently.
  etat(bon);
  x.d.Ecrire("lettre.dic.txt", " 1\r\n 2\r\n");
  EXPECT_EQ(LireIndex(x.f, longueur, t, l), EtatIndex::Perime);
  std::string garbage;
  for (int i = 0; i < 18954; ++i) garbage += "\xFF\x01zz\r\n";
  x.d.Ecrire("lettre.dic.txt", garbage);
  EXPECT_EQ(LireIndex(x.f, longueur, t, l), EtatIndex::Charge);
  EXPECT_EQ(l('A', '@', '@'), 0);
}

// A dictionary changed to the same length is no longer described by its index: the date
// recorded beside the length says so. An index that recorded no date is stale too.
TEST(IndexFile, CurrentOnlyForTheSameLengthAndDate) {
  Index x;
  x.Construit("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  IndexTable t;
  TableLettre l;
  ASSERT_EQ(LireIndex(x.f, t, l), EtatIndex::Charge);
  const auto date = std::filesystem::last_write_time(CheminNatif(x.f.dictio));
  x.d.Ecrire("dic.txt", "chat\r\ncat\r\n\r\nzebre\r\nzeb\r\n");
  ASSERT_EQ(LongueurFichier(x.f.dictio), t.position(3));
  std::filesystem::last_write_time(CheminNatif(x.f.dictio), date + std::chrono::seconds(1));
  EXPECT_EQ(LireIndex(x.f, t, l), EtatIndex::Perime);
  EXPECT_EQ(LireIndex(x.f, LongueurFichier(x.f.dictio), t, l), EtatIndex::Perime);
  EXPECT_EQ(t.NombreArticle(), 0);
  std::filesystem::last_write_time(CheminNatif(x.f.dictio), date);
  EXPECT_EQ(LireIndex(x.f, t, l), EtatIndex::Charge);  // (what a date cannot see)

  std::string sansDate = x.d.Lire("index.dic.txt");
  sansDate.replace(144 + 70, 70, std::string(70, ' '));
  x.d.Ecrire("index.dic.txt", sansDate);
  EXPECT_EQ(LireIndex(x.f, t, l), EtatIndex::Perime);

  // Saving copies the working copy over the dictionary, date and all: no rebuild follows.
  FichiersIndex bak = x.f;
  bak.dictio += ".bak";
  x.d.Ecrire("dic.txt.bak", "ours\r\nbear\r\n");
  ConstruireIndex(bak, true, x.table, x.lettres, [] {});
  CopierFichier(bak.dictio, x.f.dictio);
  EXPECT_EQ(LireIndex(x.f, t, l), EtatIndex::Charge);
  EXPECT_EQ(t.texte(1), "ours");
}

// A build that fails at any of its writes leaves the earlier index and letter files as they
// were and no temporary file; the dictionary having changed, they are not taken as current.
TEST(IndexFile, AFailedBuildLosesNothingAndIsNotTakenForCurrent) {
  Index x;
  x.Construit("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  const std::string index = x.d.Lire("index.dic.txt"), lettre = x.d.Lire("lettre.dic.txt");
  x.d.Ecrire("dic.txt", "abeille\r\nbee\r\n\r\nchat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  IndexTable t;
  TableLettre l;
  int echecs = 0, lettreNeuve = 0;
  for (int etape = 1;; ++etape) {
    ProgrammerPanne({etape, 61, false});
    try {
      ConstruireIndex(x.f, true, x.table, x.lettres, [] {});
    } catch (const ErreurEcriture& e) {
      ++echecs;
      EXPECT_TRUE(x.d.Lire("index.dic.txt") == index) << "step " << etape;
      EXPECT_EQ(std::distance(std::filesystem::directory_iterator(CheminNatif(x.d.Dossier())), {}), 3);
      EXPECT_NE(LireIndex(x.f, t, l), EtatIndex::Charge) << "step " << etape;
      // The letter file is replaced before the index, whose own replacement fails last.
      if (x.d.Lire("lettre.dic.txt") != lettre) {
        ++lettreNeuve;
        EXPECT_EQ(e.fichier(), x.f.index);
      }
      continue;
    }
    break;
  }
  AnnulerPanne();
  EXPECT_GE(echecs, 6);
  EXPECT_EQ(lettreNeuve, 1);
  ASSERT_EQ(LireIndex(x.f, t, l), EtatIndex::Charge);
  EXPECT_EQ(t.NombreArticle(), 3);
}

// Start-up deletes index and letter files of an earlier naming: only files that have their
// shape, never a user's file that happens to bear the name.
TEST(IndexFile, OwnFilesAreToldFromAUsersFiles) {
  Index x;
  x.Construit("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  EXPECT_TRUE(EstFichierIndex(x.f.index));
  EXPECT_TRUE(EstFichierLettre(x.f.lettre));
  std::string ancien = x.d.Lire("index.dic.txt");
  ancien.replace(0, 4, "1.10");  // an earlier version is still ours
  x.d.Ecrire("index.eng", ancien);
  EXPECT_TRUE(EstFichierIndex(x.d.Chemin("index.eng")));
  x.d.Ecrire("index.eng", ancien + std::string(144, ' '));  // records left past the count
  EXPECT_TRUE(EstFichierIndex(x.d.Chemin("index.eng")));
  for (const std::string& pas : {ancien.substr(0, 3 * 144), ancien.substr(0, ancien.size() - 1), std::string(),
                                 "Mes notes" + ancien.substr(9), ancien.substr(0, 144) + "x" + ancien.substr(145)}) {
    x.d.Ecrire("index.eng", pas);
    EXPECT_FALSE(EstFichierIndex(x.d.Chemin("index.eng"))) << pas.substr(0, 10);
  }
  EXPECT_FALSE(EstFichierIndex(x.d.Chemin("absent")));

  const std::string lettres = x.d.Lire("lettre.dic.txt");
  std::string vieux;  // numbers with blanks around, LF ends
  for (int i = 0; i < 18954; ++i) vieux += " " + std::to_string(i) + " \n";
  EXPECT_TRUE(EstTexteLettres(vieux));
  for (const std::string& pas : {lettres.substr(0, lettres.size() - 4), lettres + " 1\r\n", lettres + "fin",
                                 "x" + lettres.substr(1), lettres.substr(0, 8) + "\r\n" + lettres.substr(8),
                                 std::string("liste de courses\r\n")}) {
    x.d.Ecrire("lettre.eng", pas);
    EXPECT_FALSE(EstFichierLettre(x.d.Chemin("lettre.eng")));
  }
}

// A hostile letter file is not read: too long a file is stale on its length alone.
TEST(IndexFile, AHugeLetterFileIsNotRead) {
  Index x;
  x.Construit("chat\r\ncat\r\n");
  std::filesystem::resize_file(CheminNatif(x.f.lettre), 100u << 20);
  IndexTable t;
  TableLettre l;
  l('A', '@', '@') = 42;
  EXPECT_EQ(LireIndex(x.f, t, l), EtatIndex::Perime);
  EXPECT_EQ(l('A', '@', '@'), 42);
  EXPECT_EQ(t.NombreArticle(), 0);
}

// Found by fuzzing: the reader loaded an index whose record 2 had text in its index field,
// a file this program never writes and would not recognise as its own.
TEST(IndexFile, OnlyAFileOfOurShapeIsLoaded) {
  Index x;
  x.Construit("chat\r\ncat\r\n\r\nchien\r\ndog\r\n");
  const std::string bon = x.d.Lire("index.dic.txt");
  IndexTable t;
  TableLettre l;
  for (const std::string& autre : {bon.substr(0, 144 + 60) + "\x08\xE8" + bon.substr(144 + 62), bon + "x"}) {
    x.d.Ecrire("index.dic.txt", autre);
    EXPECT_FALSE(EstFichierIndex(x.f.index));
    EXPECT_EQ(LireIndex(x.f, t, l), EtatIndex::Perime);
  }
}
