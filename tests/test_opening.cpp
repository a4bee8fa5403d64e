#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "data/files.h"
#include "app/headless/headless_window.h"
#include "test_support.h"
#include "base/encoding.h"
#include "controller/events.h"
#include "controller/key_route.h"
#include "controller/form.h"
#include "view/keys.h"
#include "controller/line_helpers.h"

using namespace lex;

namespace {
struct Session {
  test::DossierTemp d;
  headless::HeadlessWindow ui;
  Form f{ui, ui};
  Session() { d.Ecrire("lex.eng", "chat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n"); }
  void Charge() { EvChargement(f, d.Dossier()); }
  void Touche(char c) { RouteTouche(f, Champ::Txt, 0, 0, UnicodeDeAnsi(c)); }
  bool Installe() {
    return std::any_of(ui.messages.begin(), ui.messages.end(), [](const std::string& m) {
      return m.find("Installation de l'index  pour ANGLAIS francais") != std::string::npos;
    });
  }
  void Ouvre() {
    ui.messages.clear();
    Touche('a');
    Touche(13);
  }
};
}  // namespace

TEST(Opening, IndexIsBuiltThenReloadedThenRebuiltWhenTheDictionaryChanges) {
  Session s;
  s.Charge();
  s.Ouvre();
  EXPECT_TRUE(s.Installe());
  EXPECT_TRUE(FichierExistant(s.d.Chemin("index.lex.eng")) && FichierExistant(s.d.Chemin("lettre.lex.eng")));

  s.Touche(27);
  s.Ouvre();
  EXPECT_FALSE(s.Installe());
  EXPECT_EQ(s.ui.messages.back(), " chat (n.)");

  s.Touche(27);
  s.d.Ecrire("lex.eng", "chat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n\r\nzebre\r\nzebra\r\n");
  s.Ouvre();
  EXPECT_TRUE(s.Installe());
  EXPECT_EQ(s.f.dico.TableIndex.NombreArticle(), 3);
}

TEST(Opening, MissingDictionaryAndModifiedCopy) {
  Session s;
  std::filesystem::remove(CheminNatif(s.d.Chemin("lex.eng")));
  s.Charge();
  s.Ouvre();
  ASSERT_EQ(s.ui.boxes.size(), 1u);
  EXPECT_EQ(s.ui.boxes[0], "dictionnaire " + s.d.Chemin("lex.eng") + " absent, Ctrl-n pour cr\xE9" "er le premier index ");
  EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::ListeDictionnaires);
  s.f.catalogue[1].DicModifie = true;
  s.Ouvre();
  EXPECT_EQ(s.ui.boxes.back().find(s.d.Chemin("lex.eng.bak")), 13u);
}

TEST(Opening, CallLetterAsTyped) {
  Session s;
  s.Charge();
  s.Touche('\xE9');
  EXPECT_EQ(s.ui.txt.CurrentLine().rfind("\xC9" "crivains", 0), 0u);
  s.Touche('e');
  EXPECT_EQ(s.ui.txt.CurrentLine().rfind("ENCYCLOPEDIE", 0), 0u);
  s.Touche('x');
  EXPECT_EQ(s.ui.messages.back(), " introuvable");
}

TEST(Saving, WorkingCopy) {
  Session s;
  s.Charge();
  s.Ouvre();
  s.d.Ecrire("s\xE9lectionlex.eng", " 1\r\n");
  EvMenu(s.f, MenuId::mnuEnregistrer);  // unchanged: the copy starts again from the saved dictionary
  EXPECT_EQ(s.ui.messages.back(), " enregistrer");
  EXPECT_EQ(s.d.Lire("lex.eng.bak"), s.d.Lire("lex.eng"));
  EXPECT_FALSE(FichierExistant(s.d.Chemin("s\xE9lectionlex.eng")));
  const std::string dico = s.d.Lire("lex.eng");
  std::filesystem::remove(CheminNatif(s.d.Chemin("lex.eng.bak")));
  s.f.catalogue[1].DicModifie = true;
  EvMenu(s.f, MenuId::mnuEnregistrer);  // the copy has gone: nothing is lost
  EXPECT_EQ(s.d.Lire("lex.eng"), dico);
  // Saving cleared the changed flag: leaving asks nothing.
  EvMenu(s.f, MenuId::mnuQuitter);
  EXPECT_TRUE(s.ui.boxes.empty());
  EXPECT_TRUE(s.ui.quit);
}

TEST(Saving, LeavingAsksForEachChangedDictionary) {
  for (Reponse r : {Reponse::Yes, Reponse::No, Reponse::Cancel}) {
    Session s;
    s.Charge();
    s.d.Ecrire("lex.eng.bak", "change\r\nx\r\n");
    s.d.Ecrire("s\xE9lectionlex.eng", " 1\r\n");
    s.f.catalogue[1].DicModifie = true;
    s.ui.answers.push_back({headless::Answer::Kind::Button, r, {}, 0});
    const auto avant = s.d.Lire("lex301.INI");
    s.f.catalogue[2].PositionDictio = 5;
    EvMenu(s.f, MenuId::mnuQuitter);
    EXPECT_EQ(s.ui.boxes.back(), "Souhaitez vous sauvegarder le dictionnaire ANGLAIS francais");
    EXPECT_EQ(s.d.Lire("lex.eng") == "change\r\nx\r\n", r == Reponse::Yes);
    EXPECT_EQ(FichierExistant(s.d.Chemin("s\xE9lectionlex.eng")), r == Reponse::Cancel);
    EXPECT_EQ(s.ui.quit, r != Reponse::Cancel);
    EXPECT_EQ(s.d.Lire("lex301.INI") == avant, r == Reponse::Cancel);
  }
}
