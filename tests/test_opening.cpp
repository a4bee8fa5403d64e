#include <gtest/gtest.h>

#include <filesystem>

#include "catalogue/saving.h"
#include "data/files.h"
#include "data/folding.h"
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
    for (const auto& m : ui.messages)
      if (m.find("Installation de l'index  pour ANGLAIS francais") != std::string::npos) return true;
    return false;
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
  EXPECT_EQ(s.f.fenetre.ModeCourant(), Mode::Index);
  EXPECT_EQ(s.ui.txt.Text(), "chat (n.)\r\nchien (n.)");
  EXPECT_EQ(s.ui.Title(), "ANGLAIS francais");
  EXPECT_EQ(s.ui.GetButtonCaption(Bouton::CmdDic), "D\xE9" "finition");
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

TEST(Saving, ArticleOrder) {
  auto avant = [](const std::string& existant, const std::string& nouveau) {
    return RangeArticle(existant, Sansaccent(nouveau), CleTete(nouveau));
  };
  EXPECT_TRUE(avant("abc (x)", "abc"));   // an equal head places the new article first
  EXPECT_FALSE(avant("abc (x)", "abc (y)"));
  EXPECT_TRUE(avant("abc (y)", "abc (x)"));
  EXPECT_TRUE(avant("abd", "abc"));
  EXPECT_FALSE(avant("abc", "abc"));
  EXPECT_TRUE(avant("abd", "abc (x)"));
  EXPECT_FALSE(avant("abc", "abc (x)"));
  EXPECT_FALSE(avant("\xE9t\xE9", "ete"));
  EXPECT_TRUE(avant("\xE9l\xE8ve", "abc"));
}

TEST(Saving, WorkingCopy) {
  Session s;
  s.Charge();
  s.d.Ecrire("s\xE9lectionlex.eng", " 1\r\n");
  SauvegardeDic(s.f.catalogue, s.f.reglages.DossierDictio, 1, nullptr, 0);  // unchanged: the copy starts again from the saved dictionary
  EXPECT_EQ(s.d.Lire("lex.eng.bak"), s.d.Lire("lex.eng"));
  EXPECT_FALSE(FichierExistant(s.d.Chemin("s\xE9lectionlex.eng")));
  s.d.Ecrire("lex.eng.bak", "nouveau\r\nnew\r\n");
  s.f.catalogue[1].DicModifie = true;
  SauvegardeDic(s.f.catalogue, s.f.reglages.DossierDictio, 1, nullptr, 0);
  EXPECT_EQ(s.d.Lire("lex.eng"), "nouveau\r\nnew\r\n");
  EXPECT_FALSE(s.f.catalogue[1].DicModifie);
  std::filesystem::remove(CheminNatif(s.d.Chemin("lex.eng.bak")));
  s.f.catalogue[1].DicModifie = true;
  SauvegardeDic(s.f.catalogue, s.f.reglages.DossierDictio, 1, nullptr, 0);  // the copy has gone: nothing is lost, the flag clears
  EXPECT_EQ(s.d.Lire("lex.eng"), "nouveau\r\nnew\r\n");
  EXPECT_FALSE(s.f.catalogue[1].DicModifie);
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
