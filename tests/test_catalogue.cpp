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
};
}  // namespace

TEST(Catalogue, FirstStartWritesTheFactoryLinesAndShowsTheList) {
  Demarrage s;
  s.Charge();
  const auto lignes = LireLignes(s.d.Chemin("lex301.INI"));
  ASSERT_EQ(lignes.size(), 26u);
  EXPECT_EQ(lignes[0], " 1");
  EXPECT_EQ(lignes[8], "1,11");
  EXPECT_EQ(lignes[9], " 1");
  EXPECT_EQ(lignes[10], s.d.Dossier() + "blocnote.txt");
  EXPECT_EQ(lignes[13], " 1 ");
  EXPECT_EQ(lignes[17], "1,txt,Sciences et techniques  , ,SansOrdreAlpha");
  EXPECT_EQ(lignes[25], "1,TXT,\xC9" "crivains,\xC9,SansOrdreAlpha");
  EXPECT_EQ(s.d.Lire("lex301.INI").substr(0, 8), " 1\r\n 1\r\n");

  const Catalogue& c = s.f.catalogue;
  EXPECT_EQ(c.NombreDictio(), 22);
  EXPECT_EQ(c.NombreHistoire, 11);
  EXPECT_EQ(c[21].NomDictio, "\xC9" "crivains");
  EXPECT_EQ(c[22].NomDictio, "BLOC NOTE");
  EXPECT_FALSE(c[10].OrdreAlpha);
  // The widest name of the whole catalogue sets the column, history names included.
  const std::string largeur(std::string("Chronologie sciences et techniques").size() + 1 - 16, ' ');
  EXPECT_EQ(c[1].LigneListe, "ANGLAIS francais" + largeur + "A");
  const std::string& txt = s.ui.txt.Text();
  EXPECT_EQ(txt.rfind("        LISTE DES DICTIONNAIRES\r\n\r\nANGLAIS francais", 0), 0u);
  EXPECT_NE(txt.find("Histoire"), std::string::npos);
  EXPECT_EQ(txt.find("Monde"), std::string::npos);
  EXPECT_EQ(txt.substr(txt.size() - 36), "BLOC NOTE" + std::string(26, ' ') + "B");
  EXPECT_EQ(s.ui.Title(), "LEX");
  EXPECT_EQ(s.ui.messages.back(), " " + c[1].LigneListe);
}

TEST(Catalogue, ConfigurationLines) {
  Catalogue c;
  InitDictio(c, "");
  LireLigneCatalogue(c, "5,abc,Mon dico,M");              // no order flag: last character, alphabetical
  LireLigneCatalogue(c, "2,TXT,Monde, ,SansOrdreAlpha");
  LireLigneCatalogue(c, "1,xyz,SansVirgule");             // no comma after the name: three characters lost
  ASSERT_EQ(c.NombreDictio(), 13);
  EXPECT_EQ(c[10].PositionDictio, 5);
  EXPECT_EQ(c[10].Suffixe, "abc");
  EXPECT_EQ(c[10].LettreAppel, "M");
  EXPECT_TRUE(c[10].OrdreAlpha);
  EXPECT_EQ(c[11].LettreAppel, " ");
  EXPECT_FALSE(c[11].OrdreAlpha);
  EXPECT_EQ(c[12].NomDictio, "sVirgule");
  EXPECT_EQ(c[12].LettreAppel, " ");
  EXPECT_EQ(c[13].NomDictio, "BLOC NOTE");
  EXPECT_EQ(LigneCatalogue(c[11]), "2,TXT,Monde, ,SansOrdreAlpha");
  EXPECT_EQ(LigneCatalogue(c[10]), "5,abc,Mon dico,M");
  EXPECT_EQ(NomDictionnaire(c, "/d/", 11), "/d/Monde.TXT");
  // Names are Windows-1252; joined to a folder they become its path text.
  EXPECT_EQ(NomIndex(c, "/d/", 4), "/d/index.Verbes irr\xC3\xA9guliers anglais.txt");
}

TEST(Catalogue, CallLettersAndPadding) {
  Catalogue c;
  InitDictio(c, "");
  LireLigneCatalogue(c, "1,txt,Dico,D");
  AjoutLettreAppelDictio(c);
  EXPECT_EQ(c.LettresUtilisees, "ABDCEFHIPRV");  // inserted before the first smaller letter
  LireLigneCatalogue(c, "1,txt,Blanc, ");
  AjoutLettreAppelDictio(c);
  EXPECT_EQ(c.LettresUtilisees, "ABDCEFHIPRV");
  EXPECT_EQ(complete("abc", 3), "abc");
  EXPECT_EQ(complete("abc", 5), "abc  ");
}

TEST(Catalogue, ConfigurationRoundTrip) {
  Demarrage s;
  s.d.Ecrire("lex301.INI", " 7\r\n 2\r\n 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n3,2\r\n 4\r\n/x/bloc.txt\r\nArial\r\n12\r\n 4 \r\n"
                           "1,TXT,H1, ,SansOrdreAlpha\r\n1,TXT,H2, ,SansOrdreAlpha\r\n9,abc,Ajout\xE9,J\r\n");
  s.Charge();
  EXPECT_EQ(s.ui.Font().nom, "Arial");
  EXPECT_EQ(s.ui.Font().taille, 12);
  EXPECT_EQ(s.f.catalogue.NombreDictio(), 13);
  s.Ferme();
  EXPECT_TRUE(s.ui.quit);
  const auto lignes = LireLignes(s.d.Chemin("lex301.INI"));
  const std::vector<std::string> attendu = {" 7", " 2", " 1", " 1", " 1", " 1", " 1", " 1", "3,2", "4", "/x/bloc.txt",
                                            "Arial", "12", " 4 ", "1,TXT,H1, ,SansOrdreAlpha",
                                            "1,TXT,H2, ,SansOrdreAlpha", "9,abc,Ajout\xE9,J"};
  EXPECT_EQ(lignes, attendu);
}

TEST(Catalogue, HistoryRowIsKeptAtStartAndAtExit) {
  Demarrage s;
  s.Charge();
  s.Ferme();
  auto lignes = LireLignes(s.d.Chemin("lex301.INI"));
  lignes[13] = " 9 ";
  EcrireLignes(s.d.Chemin("lex301.INI"), lignes);
  Demarrage t;
  t.d.Ecrire("lex301.INI", s.d.Lire("lex301.INI"));
  t.Charge();
  EXPECT_TRUE(t.f.fenetre.ListeHistoire);
  EXPECT_EQ(t.ui.txt.Text().rfind("LISTE DES DICTIONNAIRES sans ordre alphab\xE9tique\r\n\r\nChronologie histoire", 0), 0u);
  EXPECT_EQ(t.ui.txt.Caret(), t.ui.txt.Text().find("Chronologie histoire"));
  t.Ferme();
  EXPECT_EQ(LireLignes(t.d.Chemin("lex301.INI"))[13], " 9 ");
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
  s.Charge();
  s.Ferme();
  auto lignes = LireLignes(s.d.Chemin("lex301.INI"));
  const std::size_t avant = lignes.size();
  lignes[8] = "2147483647,11";  // a history row that once overflowed on display
  for (const char* l : {"1,txt,../../etc/passwd,P", "1,txt,sous/dossier,S", "1,txt,C:mot,C", "1,../,Bon nom,B",
                        "1,txt,tab\there,T"})
    lignes.emplace_back(l);
  lignes.push_back("1,txt," + std::string(1 << 20, 'n') + ",N");
  lignes.emplace_back("1,txt,Permis,Q");
  EcrireLignes(s.d.Chemin("lex301.INI"), lignes);

  Demarrage t;
  t.d.Ecrire("lex301.INI", s.d.Lire("lex301.INI"));
  t.Charge();
  ASSERT_EQ(t.ui.boxes.size(), 6u);
  EXPECT_EQ(t.ui.boxes[0], "Ligne " + std::to_string(avant + 1) +
                               " de lex301.INI ignor\xE9" "e : le nom \xAB ../../etc/passwd \xBB contient un s\xE9parateur de dossier.");
  EXPECT_NE(t.ui.boxes[3].find("le suffixe"), std::string::npos);
  EXPECT_NE(t.ui.boxes[4].find("caract\xE8re de contr\xF4le"), std::string::npos);
  EXPECT_NE(t.ui.boxes[5].find("est trop long"), std::string::npos);
  EXPECT_FALSE(t.ui.quit);
  // The file no longer holds them; the good line stays.
  const auto relues = LireLignes(t.d.Chemin("lex301.INI"));
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
