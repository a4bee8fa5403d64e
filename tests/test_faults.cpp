// A machine that fails under the program: a full disk, a refused permission, a dictionary
// taken away while it is read. Nothing the user had may be lost, and the program goes on.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "app/headless/headless_window.h"
#include "base/encoding.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/key_route.h"
#include "data/files.h"
#include "data/index_file.h"
#include "data/write_faults.h"
#include "session.h"
#include "view/keys.h"

using namespace lex;

namespace {
struct Machine : test::Session {
  void DisquePlein() { ProgrammerPanne({1, 61, true}); }
};
}  // namespace

TEST(Faults, AConfigurationThatCannotBeWrittenKeepsTheProgramAndIsWrittenNextTime) {
  Machine m;
  m.Charge();
  const std::string avant = m.d.Lire("lex301.INI");
  m.Ouvre();
  m.Touche(Touche::Bas);
  m.DisquePlein();
  EvFermeture(m.f);
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_EQ(m.ui.boxes[0], "Impossible d'\xE9" "crire le fichier " + m.d.Chemin("lex301.INI") + " : disque plein");
  EXPECT_FALSE(m.ui.quit);
  EXPECT_EQ(m.d.Lire("lex301.INI"), avant);
  std::size_t temporaires = 0;
  for (const auto& e : std::filesystem::directory_iterator(CheminNatif(m.d.Dossier())))
    temporaires += e.path().filename().string().rfind("~lex", 0) == 0;
  EXPECT_EQ(temporaires, 0u);
  AnnulerPanne();
  EvFermeture(m.f);
  EXPECT_TRUE(m.ui.quit);
  EXPECT_NE(m.d.Lire("lex301.INI"), avant);
}

TEST(Faults, AFirstStartOnAFullDiskShowsTheListAndWritesLater) {
  Machine m;
  m.DisquePlein();
  m.Charge();
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_NE(m.ui.boxes[0].find("lex301.INI : disque plein"), std::string::npos);
  EXPECT_FALSE(m.ui.quit);
  EXPECT_EQ(m.ui.Title(), "LEX");
  EXPECT_FALSE(FichierExistant(m.d.Chemin("lex301.INI")));
  AnnulerPanne();
  EvFermeture(m.f);
  EXPECT_EQ(LireLignes(m.d.Chemin("lex301.INI")).size(), 26u);
}

TEST(Faults, ADictionaryWhoseIndexCannotBeWrittenOpensFromMemory) {
  Machine m;
  m.Charge();
  ProgrammerPanne({1, 70, true});
  m.Ouvre();
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_NE(m.ui.boxes[0].find("permission refus\xE9" "e ; l'index est gard\xE9 en m\xE9moire."), std::string::npos);
  EXPECT_EQ(m.f.fenetre.ModeCourant(), Mode::Index);
  EXPECT_EQ(m.ui.txt.Text(), "chat (n.)\r\nchien (n.)");
  m.Touche(Touche::Bas);
  m.Touche(Touche::Entree, 13);
  EXPECT_EQ(m.ui.Title(), "chien (n.)");
  EXPECT_FALSE(FichierExistant(m.d.Chemin("index.lex.eng")));
}

TEST(Faults, ADictionaryTakenAwayWhileOpenLeadsBackToTheList) {
  Machine m;
  m.Charge();
  m.Ouvre();
  std::filesystem::remove(CheminNatif(m.d.Chemin("lex.eng")));
  m.Touche(Touche::Entree, 13);
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_EQ(m.ui.boxes[0], "Le dictionnaire " + m.d.Chemin("lex.eng") + " est introuvable : retour \xE0 la liste.");
  EXPECT_FALSE(m.ui.quit);
  EXPECT_EQ(m.f.fenetre.ModeCourant(), Mode::ListeDictionnaires);
}

TEST(Faults, ASaveOnAFullDiskKeepsBothCopies) {
  Machine m;
  m.Charge();
  m.Ouvre();
  m.d.Ecrire("lex.eng.bak", "nouveau\r\nnew\r\n");
  m.f.catalogue[1].DicModifie = true;
  m.DisquePlein();
  EvMenu(m.f, MenuId::mnuEnregistrer);
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_NE(m.ui.boxes[0].find(m.d.Chemin("lex.eng") + " : disque plein"), std::string::npos);
  EXPECT_EQ(m.d.Lire("lex.eng"), "chat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n");
  EXPECT_EQ(m.d.Lire("lex.eng.bak"), "nouveau\r\nnew\r\n");
  EXPECT_TRUE(m.f.catalogue[1].DicModifie);
  AnnulerPanne();
  EvMenu(m.f, MenuId::mnuEnregistrer);
  EXPECT_EQ(m.d.Lire("lex.eng"), "nouveau\r\nnew\r\n");
}

TEST(Faults, OnlyOurOwnLeftOversAreDeletedAtStart) {
  Machine m;
  m.d.Ecrire("index.txt", "mes notes\r\n");
  m.d.Ecrire("lettre.txt", "ma lettre\r\n");
  // A real index and letter file of the earlier naming.
  IndexTable t;
  TableLettre l;
  ConstruireIndex({m.d.Chemin("lex.eng"), m.d.Chemin("index.eng"), m.d.Chemin("lettre.eng")}, true, t, l, [] {});
  m.Charge();
  EXPECT_EQ(m.d.Lire("index.txt"), "mes notes\r\n");
  EXPECT_EQ(m.d.Lire("lettre.txt"), "ma lettre\r\n");
  EXPECT_FALSE(FichierExistant(m.d.Chemin("index.eng")));
  EXPECT_FALSE(FichierExistant(m.d.Chemin("lettre.eng")));
}

TEST(Faults, AConfigurationTooBigToHoldIsSaidAndReplacedAtTheEnd) {
  Machine m;
  m.d.Ecrire("lex301.INI", std::string(9'000'000 * 2, '\n'));  // lines that would take far more memory
  m.Charge();
  ASSERT_EQ(m.ui.boxes.size(), 1u);
  EXPECT_NE(m.ui.boxes[0].find("est trop grand pour \xEAtre une configuration de LEX"), std::string::npos);
  EXPECT_FALSE(m.ui.quit);
  EXPECT_EQ(m.f.catalogue.NombreDictio(), 22);
  EvFermeture(m.f);
  EXPECT_EQ(LireLignes(m.d.Chemin("lex301.INI")).size(), 26u);
}

TEST(Faults, AProgramFolderNamedOutsideWindows1252Works) {
  test::DossierTemp racine;
  const std::string dossier = racine.Dossier() + "\xC5\x81\xC3\xB3" "d\xC5\xBA \xC4\xB3/";  // "Łódź ĳ"
  std::filesystem::create_directories(CheminNatif(dossier));
  std::ofstream(CheminNatif(dossier + "lex.eng"), std::ios::binary) << "chat (n.)\r\ncat\r\n";
  headless::HeadlessWindow ui;
  Form f(ui, ui);
  EvChargement(f, dossier);
  RouteTouche(f, Champ::Txt, 'A', 0, 'a');
  RouteTouche(f, Champ::Txt, Touche::Entree, 0, 13);
  EXPECT_EQ(ui.txt.Text(), "chat (n.)");
  EvMenu(f, MenuId::mnuEnregistrer);
  EvFermeture(f);
  EXPECT_TRUE(ui.boxes.empty()) << ui.boxes.front();
  for (const char* nom : {"index.lex.eng", "lex.eng.bak", "lex301.INI"})
    EXPECT_TRUE(FichierExistant(dossier + nom)) << nom;
}

TEST(Faults, AThousandBadNamesMakeSixBoxes) {
  Machine m;
  m.Charge();
  std::vector<std::string> lignes = LireLignes(m.d.Chemin("lex301.INI"));
  for (int i = 0; i < 1000; ++i) lignes.push_back("1,txt,a/" + std::to_string(i) + ",X");
  EcrireLignes(m.d.Chemin("lex301.INI"), lignes);
  Machine n;
  n.d.Ecrire("lex301.INI", m.d.Lire("lex301.INI"));
  n.Charge();
  ASSERT_EQ(n.ui.boxes.size(), 6u);
  EXPECT_NE(n.ui.boxes[5].find("Et 994 autres lignes ignor\xE9" "es."), std::string::npos);
}
