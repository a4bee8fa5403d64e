#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <vector>

#ifndef _WIN32
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "data/safe_write.h"
#include "data/write_error.h"
#include "data/write_faults.h"
#include "test_support.h"

using namespace lex;
namespace fs = std::filesystem;

namespace {

std::vector<std::string> Noms(const test::DossierTemp& d) {
  std::vector<std::string> noms;
  for (const auto& e : fs::directory_iterator(CheminNatif(d.Dossier()))) noms.push_back(NomDepuisNatif(e.path().filename()));
  std::sort(noms.begin(), noms.end());
  return noms;
}

struct SansPanne {
  ~SansPanne() { AnnulerPanne(); }
};

// Makes each step of `ecrire` fail in turn, then lets it through: after every failure the
// old content is there and nothing else is in the folder.
int EchoueAChaqueEtape(const test::DossierTemp& d, const std::string& nom, const std::function<void()>& ecrire,
                       int numero) {
  SansPanne remise;
  const std::string ancien = d.Lire(nom);
  const auto avant = Noms(d);
  for (int etape = 1;; ++etape) {
    ProgrammerPanne({etape, numero, false});
    try {
      ecrire();
    } catch (const ErreurEcriture& e) {
      EXPECT_EQ(e.numero(), numero);
      EXPECT_EQ(e.fichier(), d.Chemin(nom));
      EXPECT_EQ(d.Lire(nom), ancien) << "step " << etape;
      EXPECT_EQ(Noms(d), avant) << "step " << etape;
      continue;
    }
    return etape - 1;
  }
}

}  // namespace

TEST(SafeWrite, ReplacesWholeAndLeavesNothingElse) {
  test::DossierTemp d;
  d.Ecrire("notes.txt", "ancien contenu, plus long que le nouveau");
  EcrireFichierSur(d.Chemin("notes.txt"), "neuf", Donnees::Utilisateur);
  EXPECT_EQ(d.Lire("notes.txt"), "neuf");
  EcrireFichierSur(d.Chemin("index.x"), std::string("a\0b", 3), Donnees::Reconstructible);
  EXPECT_EQ(d.Lire("index.x"), std::string("a\0b", 3));
  EXPECT_EQ(Noms(d), (std::vector<std::string>{"index.x", "notes.txt"}));
}

TEST(SafeWrite, StreamIsInvisibleUntilCommittedAndDiscardedOtherwise) {
  test::DossierTemp d;
  d.Ecrire("dic.txt", "ancien");
  {
    EcritureSure w(d.Chemin("dic.txt"), Donnees::Utilisateur);
    w.Ecrire("xxxx-bloc1-");
    w.Ecrire("bloc2");
    EXPECT_EQ(d.Lire("dic.txt"), "ancien");
    EXPECT_EQ(Noms(d).size(), 2u);
  }  // never committed
  EXPECT_EQ(d.Lire("dic.txt"), "ancien");
  EXPECT_EQ(Noms(d), std::vector<std::string>{"dic.txt"});
  EcritureSure w(d.Chemin("dic.txt"), Donnees::Utilisateur);
  w.Ecrire("xxxx-bloc1-");
  w.EcrireA(0, "TETE", 4);
  w.Ecrire("bloc2");  // still at the end
  w.Valider();
  EXPECT_EQ(d.Lire("dic.txt"), "TETE-bloc1-bloc2");
  EXPECT_EQ(Noms(d), std::vector<std::string>{"dic.txt"});
  EXPECT_THROW(w.Ecrire("encore"), ErreurEcriture);
}

TEST(SafeWrite, EveryStepCanFailWithoutLoss) {
  test::DossierTemp d;
  d.Ecrire("dic.txt", "ancien");
  auto flux = [&] {
    EcritureSure w(d.Chemin("dic.txt"), Donnees::Utilisateur);
    w.Ecrire("un ");
    w.Ecrire("deux ");
    w.EcrireA(0, "UN", 2);
    w.Valider();
  };
  // Creation, two blocks, the rewrite and the commit.
  EXPECT_EQ(EchoueAChaqueEtape(d, "dic.txt", flux, 61), 5);
  EXPECT_EQ(d.Lire("dic.txt"), "UN deux ");
  auto entier = [&] { EcrireFichierSur(d.Chemin("dic.txt"), "entier", Donnees::Reconstructible); };
  EXPECT_EQ(EchoueAChaqueEtape(d, "dic.txt", entier, 70), 3);
  EXPECT_EQ(d.Lire("dic.txt"), "entier");
}

TEST(SafeWrite, ADiskThatStaysFullFailsEveryWriteUntilFreed) {
  test::DossierTemp d;
  SansPanne remise;
  d.Ecrire("a", "1");
  ProgrammerPanne({2, 61, true});
  EXPECT_THROW(EcrireFichierSur(d.Chemin("a"), "2", Donnees::Utilisateur), ErreurEcriture);
  try {
    EcrireFichierSur(d.Chemin("a"), "3", Donnees::Utilisateur);
    ADD_FAILURE() << "the disk is still full";
  } catch (const ErreurEcriture& e) {
    EXPECT_EQ(MessageErreurEcriture(e), "Impossible d'\xE9" "crire le fichier " + d.Chemin("a") + " : disque plein");
    // Upper code that only knows the classic errors still sees one.
    EXPECT_EQ(NumeroErreur(std::current_exception()), 61);
    EXPECT_STREQ(e.what(), "Disque plein");
  }
  AnnulerPanne();
  EcrireFichierSur(d.Chemin("a"), "4", Donnees::Utilisateur);
  EXPECT_EQ(d.Lire("a"), "4");
  EXPECT_EQ(Noms(d), std::vector<std::string>{"a"});
}

TEST(SafeWrite, RealFailuresAreNamedAndLeaveTheTargetAlone) {
  test::DossierTemp d;
  auto numero = [](const std::string& nom) {
    try {
      EcrireFichierSur(nom, "x", Donnees::Utilisateur);
    } catch (const ErreurEcriture& e) {
      return std::pair{e.numero(), MessageErreurEcriture(e)};
    }
    return std::pair{0, std::string()};
  };
  const std::string perdu = d.Chemin("disparu") + kSeparateur + "f.txt";
  EXPECT_EQ(numero(perdu), std::pair(76, "Impossible d'\xE9" "crire le fichier " + perdu + " : chemin d'acc\xE8s introuvable"));
  fs::create_directory(CheminNatif(d.Chemin("dossier")));
  EXPECT_EQ(numero(d.Chemin("dossier")).first, 70);
  d.Ecrire("lecture.txt", "garde");
  fs::permissions(CheminNatif(d.Chemin("lecture.txt")), fs::perms::owner_read | fs::perms::group_read);
  EXPECT_EQ(numero(d.Chemin("lecture.txt")),
            std::pair(70, "Impossible d'\xE9" "crire le fichier " + d.Chemin("lecture.txt") + " : permission refus\xE9" "e"));
  EXPECT_EQ(d.Lire("lecture.txt"), "garde");
  EXPECT_EQ(Noms(d), (std::vector<std::string>{"dossier", "lecture.txt"}));
}

// The program's own writes go through it: the configuration (lines) and the ".bak" copies.
TEST(SafeWrite, LinesAndCopiesAreSafeWrites) {
  test::DossierTemp d;
  d.Ecrire("lex301.INI", "ancien\r\n");
  auto lignes = [&] { EcrireLignes(d.Chemin("lex301.INI"), {" 1", "", "Courier"}); };
  EXPECT_EQ(EchoueAChaqueEtape(d, "lex301.INI", lignes, 61), 3);
  EXPECT_EQ(d.Lire("lex301.INI"), " 1\r\n\r\nCourier\r\n");

  const std::string gros = std::string(3 << 20, 'a') + "fin";  // several blocks
  d.Ecrire("lex.eng", gros);
  const auto date = fs::last_write_time(CheminNatif(d.Chemin("lex.eng"))) - std::chrono::hours(5);
  fs::last_write_time(CheminNatif(d.Chemin("lex.eng")), date);
  d.Ecrire("lex.eng.bak", "ancienne copie");
  auto copie = [&] { CopierFichier(d.Chemin("lex.eng"), d.Chemin("lex.eng.bak")); };
  EXPECT_EQ(EchoueAChaqueEtape(d, "lex.eng.bak", copie, 61), 6);
  EXPECT_EQ(d.Lire("lex.eng.bak"), gros);
  // The copy keeps its source's date: an index made for one stays current for the other.
  EXPECT_EQ(fs::last_write_time(CheminNatif(d.Chemin("lex.eng.bak"))), date);
  // A missing source is a read error, not a write error, and nothing is written.
  try {
    CopierFichier(d.Chemin("absent"), d.Chemin("lex.eng.bak"));
    ADD_FAILURE();
  } catch (const LexError& e) {
    EXPECT_EQ(e.numero(), 53);
    EXPECT_EQ(dynamic_cast<const ErreurEcriture*>(&e), nullptr);
  }
  EXPECT_EQ(d.Lire("lex.eng.bak"), gros);
}

#ifndef _WIN32
TEST(SafeWrite, KeepsPermissionsAndLinks) {
  test::DossierTemp d;
  d.Ecrire("vrai.txt", "ancien");
  ::chmod(CheminNatif(d.Chemin("vrai.txt")).c_str(), 0640);
  fs::create_symlink("vrai.txt", CheminNatif(d.Chemin("lien.txt")));
  EcrireFichierSur(d.Chemin("lien.txt"), "neuf", Donnees::Utilisateur);
  EXPECT_TRUE(fs::is_symlink(CheminNatif(d.Chemin("lien.txt"))));
  EXPECT_EQ(d.Lire("vrai.txt"), "neuf");
  struct stat st;
  ASSERT_EQ(::stat(CheminNatif(d.Chemin("vrai.txt")).c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 07777, 0640u);
}

// A process that dies in the middle of a write leaves the old file and a temporary, which
// the next start removes; files of the user that look alike stay.
TEST(SafeWrite, LeftOversOfACrashAreRemovedAndOnlyThey) {
  test::DossierTemp d;
  d.Ecrire("dic.txt", "ancien");
  const std::vector<std::string> semblables = {"~lex0123456789ab.tmp.txt", "~lex0123456789AB.tmp", "~lex0123.tmp",
                                               "lex0123456789ab.tmp", "notes.tmp"};
  for (const auto& n : semblables) d.Ecrire(n, "de l'utilisateur");
  const pid_t enfant = ::fork();
  ASSERT_GE(enfant, 0);
  if (enfant == 0) {
    EcritureSure w(d.Chemin("dic.txt"), Donnees::Utilisateur);
    w.Ecrire("moiti\xE9");
    ::_exit(0);  // no destructor: as a crash or a cut
  }
  int statut = 0;
  ::waitpid(enfant, &statut, 0);
  EXPECT_EQ(d.Lire("dic.txt"), "ancien");
  ASSERT_EQ(Noms(d).size(), semblables.size() + 2);
  EXPECT_EQ(SupprimerTemporaires(d.Dossier()), 1);
  auto attendu = semblables;
  attendu.push_back("dic.txt");
  std::sort(attendu.begin(), attendu.end());
  EXPECT_EQ(Noms(d), attendu);
  EXPECT_EQ(SupprimerTemporaires(d.Chemin("absent")), 0);
}
#endif
