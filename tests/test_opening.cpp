#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "data/files.h"
#include "session.h"

using namespace lex;

namespace {
bool Installe(const test::Session& s) {
  return std::any_of(s.ui.messages.begin(), s.ui.messages.end(), [](const std::string& m) {
    return m.find("Installation de l'index  pour ANGLAIS francais") != std::string::npos;
  });
}
}  // namespace

TEST(Opening, IndexIsBuiltThenReloadedThenRebuiltWhenTheDictionaryChanges) {
  test::Session s;
  s.Charge();
  s.Ouvre();
  EXPECT_TRUE(Installe(s));
  EXPECT_TRUE(FichierExistant(s.d.Chemin("index.lex.eng")) && FichierExistant(s.d.Chemin("lettre.lex.eng")));

  s.Tape(27);
  s.Ouvre();
  EXPECT_FALSE(Installe(s));
  EXPECT_EQ(s.ui.messages.back(), " chat (n.)");

  s.Tape(27);
  s.d.Ecrire("lex.eng", "chat (n.)\r\ncat\r\n\r\nchien (n.)\r\ndog\r\n\r\nzebre\r\nzebra\r\n");
  s.Ouvre();
  EXPECT_TRUE(Installe(s));
  EXPECT_EQ(s.f.dico.TableIndex.NombreArticle(), 3);
}

TEST(Opening, MissingDictionaryAndModifiedCopy) {
  test::Session s;
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
  test::Session s;
  s.Charge();
  s.Tape('\xE9');
  EXPECT_EQ(s.ui.txt.CurrentLine().rfind("\xC9" "crivains", 0), 0u);
  s.Tape('e');
  EXPECT_EQ(s.ui.txt.CurrentLine().rfind("ENCYCLOPEDIE", 0), 0u);
  s.Tape('x');
  EXPECT_EQ(s.ui.messages.back(), " introuvable");
}

TEST(Saving, WorkingCopy) {
  test::Session s;
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
    test::Session s;
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
