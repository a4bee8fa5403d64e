#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <set>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "data/safe_write.h"
#include "data/write_error.h"
#include "data/write_faults.h"
#include "test_support.h"

using namespace lex;
namespace fs = std::filesystem;

namespace {

std::set<std::string> Noms(const test::DossierTemp& d) {
  std::set<std::string> noms;
  for (const auto& e : fs::directory_iterator(CheminNatif(d.Dossier()))) noms.insert(NomDepuisNatif(e.path().filename()));
  return noms;
}

// The number of the error that `f` raises, and its message when it is a write error.
std::pair<int, std::string> Echec(const std::function<void()>& f) {
  try {
    f();
  } catch (const ErreurEcriture& e) {
    return {e.numero(), MessageErreurEcriture(e)};
  } catch (const LexError& e) {
    return {e.numero(), ""};
  }
  return {0, ""};
}

struct SansPanne {
  ~SansPanne() { AnnulerPanne(); }
};

// Makes each step of `ecrire` fail in turn, then lets it through: after every failure the
// old content is there, and after every attempt nothing else is in the folder.
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
    EXPECT_EQ(Noms(d), avant);
    return etape - 1;
  }
}

}  // namespace

TEST(SafeWrite, EveryStepCanFailWithoutLoss) {
  test::DossierTemp d;
  d.Ecrire("dic.txt", "ancien");
  auto flux = [&] {
    EcritureSure w(d.Chemin("dic.txt"), Donnees::Utilisateur);
    w.Ecrire("un ");
    w.EcrireA(0, "UN", 2);
    w.Ecrire("deux ");  // still at the end
    w.Valider();
    EXPECT_THROW(w.Ecrire("encore"), ErreurEcriture);
  };
  // Creation, two blocks, the rewrite and the commit.
  EXPECT_EQ(EchoueAChaqueEtape(d, "dic.txt", flux, 61), 5);
  EXPECT_EQ(d.Lire("dic.txt"), "UN deux ");
  auto entier = [&] { EcrireFichierSur(d.Chemin("dic.txt"), std::string("a\0b", 3), Donnees::Reconstructible); };
  EXPECT_EQ(EchoueAChaqueEtape(d, "dic.txt", entier, 70), 3);
  EXPECT_EQ(d.Lire("dic.txt"), std::string("a\0b", 3));
  SansPanne remise;
  ProgrammerPanne({2, 61, true});  // a disk that stays full fails every later write too
  EXPECT_THROW(flux(), ErreurEcriture);
  EXPECT_THROW(flux(), ErreurEcriture);
}

TEST(SafeWrite, RealFailuresAreNamedAndLeaveTheTargetAlone) {
  test::DossierTemp d;
  auto echec = [](const std::string& nom) {
    return Echec([&nom] { EcrireFichierSur(nom, "x", Donnees::Utilisateur); });
  };
  const std::string perdu = d.Chemin("disparu") + kSeparateur + "f.txt";
  EXPECT_EQ(echec(perdu), std::pair(76, "Impossible d'\xE9" "crire le fichier " + perdu + " : chemin d'acc\xE8s introuvable"));
  fs::create_directory(CheminNatif(d.Chemin("dossier")));
  EXPECT_EQ(echec(d.Chemin("dossier")).first, 70);
  d.Ecrire("lecture.txt", "garde");
  fs::permissions(CheminNatif(d.Chemin("lecture.txt")), fs::perms::owner_read | fs::perms::group_read);
  EXPECT_EQ(echec(d.Chemin("lecture.txt")).first, 70);
  EXPECT_EQ(d.Lire("lecture.txt"), "garde");
  EXPECT_EQ(Noms(d), (std::set<std::string>{"dossier", "lecture.txt"}));
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
  EXPECT_EQ(Echec([&] { CopierFichier(d.Chemin("absent"), d.Chemin("lex.eng.bak")); }), std::pair(53, std::string()));
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
#endif

// A write never committed leaves the old file, and its temporary goes with it; one that a
// crash left is removed at the next start, which touches no file of the user that looks alike.
TEST(SafeWrite, UncommittedWritesLeaveTheOldFileAndNoTemporary) {
  test::DossierTemp d;
  d.Ecrire("dic.txt", "ancien");
  for (const char* n : {"~lex0123456789ab.tmp.txt", "~lex0123456789AB.tmp", "~lex0123.tmp", "lex0123456789ab.tmp",
                        "notes.tmp"})
    d.Ecrire(n, "de l'utilisateur");
  const auto noms = Noms(d);
  {
    EcritureSure w(d.Chemin("dic.txt"), Donnees::Utilisateur);
    w.Ecrire("moiti\xE9");
    EXPECT_EQ(d.Lire("dic.txt"), "ancien");
  }
  EXPECT_EQ(Noms(d), noms);
#ifndef _WIN32  // an open file cannot be removed there
  EcritureSure w(d.Chemin("dic.txt"), Donnees::Utilisateur);  // as a crash leaves it
  EXPECT_EQ(SupprimerTemporaires(d.Dossier()), 1);
  EXPECT_EQ(Noms(d), noms);
#endif
  EXPECT_EQ(SupprimerTemporaires(d.Chemin("absent")), 0);
}

// Ranges of another file copied by the system between bytes written by the program: the
// result is those bytes in that order, and a source shorter than the range is a failure
// that leaves the target as it was.
TEST(SafeWrite, RangesOfAnotherFileAreCopiedInPlace) {
  test::DossierTemp d;
  std::string source(3 << 20, '\0');
  for (std::size_t i = 0; i < source.size(); ++i) source[i] = static_cast<char>('a' + i % 26);
  d.Ecrire("source", source);
  d.Ecrire("cible", "ancien");
  {
    EcritureSure e(d.Chemin("cible"), Donnees::Utilisateur);
    e.Copier(d.Chemin("source"), 5, 3);
    e.Ecrire("|");
    e.Copier(d.Chemin("source"), 1000, (2 << 20) + 7);
    e.Copier(d.Chemin("source"), 0, 0);
    e.Valider();
  }
  EXPECT_EQ(d.Lire("cible"), source.substr(5, 3) + "|" + source.substr(1000, (2 << 20) + 7));
  {
    EcritureSure e(d.Chemin("cible"), Donnees::Utilisateur);
    EXPECT_ANY_THROW(e.Copier(d.Chemin("source"), static_cast<std::int64_t>(source.size()) - 2, 10));
  }
  EXPECT_EQ(d.Lire("cible"), source.substr(5, 3) + "|" + source.substr(1000, (2 << 20) + 7));
  EXPECT_EQ(Noms(d), (std::set<std::string>{"cible", "source"}));
}
