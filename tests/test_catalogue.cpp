#include <gtest/gtest.h>

#include "catalogue/catalogue.h"
#include "catalogue/config.h"
#include "controller/startup.h"
#include "app/headless/headless_window.h"
#include "test_support.h"
#include "controller/error_trap.h"
#include "controller/events.h"
#include "controller/form.h"

using namespace lex;

namespace {
struct Demarrage {
  test::DossierTemp d;
  headless::HeadlessWindow ui;
  Form f{ui, ui};
  void Charge() { EvChargement(f, d.Dossier()); }
  void Ferme() { EvFermeture(f); }
  void Configure(const std::vector<std::string>& lignes) { EcrireLignes(d.Chemin("lex301.INI"), lignes); }
};
}  // namespace

TEST(Catalogue, FirstStartWritesTheFactoryLinesAndShowsTheList) {
  Demarrage s;
  s.Charge();
  EXPECT_EQ(LireLignes(s.d.Chemin("lex301.INI")), LignesUsine(s.d.Dossier()));
  EXPECT_EQ(s.d.Lire("lex301.INI").substr(0, 8), " 1\r\n 1\r\n");
  // The widest name of the whole catalogue sets the column, history names included.
  const std::string premiere =
      "ANGLAIS francais" + std::string(std::string("Chronologie sciences et techniques").size() + 1 - 16, ' ') + "A";
  const std::string& txt = s.ui.txt.Text();
  EXPECT_EQ(txt.rfind("        LISTE DES DICTIONNAIRES\r\n\r\n" + premiere + "\r\n", 0), 0u);
  // The history group is one row; the entries after it are listed again.
  EXPECT_NE(txt.find("\r\nHistoire "), std::string::npos);
  EXPECT_EQ(txt.find("Monde"), std::string::npos);
  EXPECT_NE(txt.find("\r\n\xC9" "crivains "), std::string::npos);
  EXPECT_EQ(txt.substr(txt.size() - 36), "BLOC NOTE" + std::string(26, ' ') + "B");
  EXPECT_EQ(s.ui.Title(), "LEX");
  EXPECT_EQ(s.ui.messages.back(), " " + premiere);
}

TEST(Catalogue, ConfigurationRoundTrip) {
  Demarrage s;
  s.d.Ecrire("lex301.INI", " 7\r\n 2\r\n 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n3,2\r\n 4\r\n/x/bloc.txt\r\nArial\r\n12\r\n 4 \r\n"
                           "1,TXT,H1, ,SansOrdreAlpha\r\n1,TXT,H2, ,SansOrdreAlpha\r\n9,abc,Ajout\xE9,J\r\n"
                           "1,xyz,SansVirgule\r\n");  // no comma after the name: three characters lost
  s.Charge();
  EXPECT_EQ(s.ui.Font().nom, "Arial");
  EXPECT_EQ(s.ui.Font().taille, 12);
  EXPECT_EQ(s.f.catalogue.NombreDictio(), 14);
  s.Ferme();
  EXPECT_TRUE(s.ui.quit);
  const std::vector<std::string> attendu = {" 7", " 2", " 1", " 1", " 1", " 1", " 1", " 1", "3,2", "4", "/x/bloc.txt",
                                            "Arial", "12", " 4 ", "1,TXT,H1, ,SansOrdreAlpha",
                                            "1,TXT,H2, ,SansOrdreAlpha", "9,abc,Ajout\xE9,J", "1,xyz,sVirgule, "};
  EXPECT_EQ(LireLignes(s.d.Chemin("lex301.INI")), attendu);
}

TEST(Catalogue, LeftInTheHistoryListItStartsThereAndKeepsItsRow) {
  Demarrage s;
  auto lignes = LignesUsine(s.d.Dossier());
  lignes[13] = " 9 ";
  s.Configure(lignes);
  s.Charge();
  EXPECT_EQ(s.ui.txt.Text().rfind("LISTE DES DICTIONNAIRES sans ordre alphab\xE9tique\r\n\r\nChronologie histoire", 0), 0u);
  EXPECT_EQ(s.ui.txt.Caret(), s.ui.txt.Text().find("Chronologie histoire"));
  s.Ferme();
  EXPECT_EQ(LireLignes(s.d.Chemin("lex301.INI"))[13], " 9 ");
}

TEST(Catalogue, BadConfigurationFilesStartAnyway) {
  const std::string pleinDeBruit = std::string(1 << 20, 'x') + "\r\n\x01\x02\xFF\r\nabc\r\n-5\r\n99999999999\r\n";
  for (const std::string& contenu :
       {std::string(), std::string(" 3\r\n 4\r\n"), pleinDeBruit, std::string("\0\0\0\n\n\n", 6),
        std::string(" 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n1,999\r\n 1\r\nb\r\nCourier\r\nzz\r\n 9999 \r\n")}) {
    Demarrage s;
    s.d.Ecrire("lex301.INI", contenu);
    s.Charge();
    EXPECT_FALSE(s.ui.quit) << s.ui.boxes.size();
    EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::ListeDictionnaires);
    EXPECT_EQ(s.ui.Font().taille, 10);
    s.Ferme();
    EXPECT_TRUE(s.ui.quit);
  }
}

TEST(Catalogue, NamesThatLeadOutOfTheFolderAreRefusedSaidAndDropped) {
  Demarrage s;
  auto lignes = LignesUsine(s.d.Dossier());
  const std::size_t avant = lignes.size();
  lignes[8] = "2147483647,11";  // a history row that once overflowed on display
  for (const char* l : {"1,txt,../../etc/passwd,P", "1,txt,sous/dossier,S", "1,txt,C:mot,C", "1,../,Bon nom,B",
                        "1,txt,tab\there,T"})
    lignes.emplace_back(l);
  lignes.push_back("1,txt," + std::string(1 << 20, 'n') + ",N");
  lignes.emplace_back("1,txt,Permis,Q");
  s.Configure(lignes);
  s.Charge();
  ASSERT_EQ(s.ui.boxes.size(), 6u);
  EXPECT_EQ(s.ui.boxes[0], "Ligne " + std::to_string(avant + 1) +
                               " de lex301.INI ignor\xE9" "e : le nom \xAB ../../etc/passwd \xBB contient un s\xE9parateur de dossier.");
  EXPECT_NE(s.ui.boxes[3].find("le suffixe"), std::string::npos);
  EXPECT_NE(s.ui.boxes[4].find("caract\xE8re de contr\xF4le"), std::string::npos);
  EXPECT_NE(s.ui.boxes[5].find("est trop long"), std::string::npos);
  EXPECT_FALSE(s.ui.quit);
  // The file no longer holds them; the good line stays.
  const auto relues = LireLignes(s.d.Chemin("lex301.INI"));
  ASSERT_EQ(relues.size(), avant + 1);
  EXPECT_EQ(relues.back(), "1,txt,Permis,Q");
  EXPECT_EQ(relues[8], "1073741824,11");
}

TEST(Catalogue, ASecondProgramOnTheSameFolderLeavesTheFirstOnesFilesAlone) {
  Demarrage premier;
  premier.Charge();
  const std::string config = premier.d.Lire("lex301.INI");
  headless::HeadlessWindow ui;
  Form second(ui, ui);
  EvChargement(second, premier.d.Dossier());
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0].rfind("Un autre LEX utilise d\xE9j\xE0 le dossier ", 0), 0u);
  EXPECT_TRUE(ui.quit);
  EvFermeture(second);
  EXPECT_EQ(premier.d.Lire("lex301.INI"), config);
  premier.Ferme();
  // Once the first has gone, the folder is free again.
  headless::HeadlessWindow ui3;
  Form troisieme(ui3, ui3);
  EvChargement(troisieme, premier.d.Dossier());
  EXPECT_TRUE(ui3.boxes.empty());
  EXPECT_FALSE(ui3.quit);
}
