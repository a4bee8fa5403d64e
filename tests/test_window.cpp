#include <gtest/gtest.h>

#include <cctype>
#include <set>

#include "data/files.h"
#include "app/headless/headless_window.h"
#include "test_support.h"
#include "controller/error_trap.h"
#include "controller/events.h"
#include "controller/form.h"
#include "controller/menus.h"
#include "controller/message.h"

using namespace lex;

TEST(Window, RepeatedMessagesAlwaysChangeTheLabel) {
  headless::HeadlessWindow ui;
  Form f(ui, ui);
  for (int i = 0; i < 4; ++i) message(f, "introuvable");
  EXPECT_EQ(ui.messages, (std::vector<std::string>{" introuvable", " introuvable  ", " introuvable", " introuvable  "}));
  message(f, "   ");
  message(f, "");
  EXPECT_EQ(ui.messages[4], " ");
  EXPECT_EQ(ui.messages[5], " ");
  message(f, "mot  ");
  EXPECT_EQ(ui.messages.back(), " mot");
}

// The real window's menus give their shortcuts to the toolkit by name.
TEST(Window, ShortcutName) {
  EXPECT_EQ(MenuParNom("mnuRechercheSuivant")->raccourci.Nom(), "Ctrl+F3");
}

// Alt and a letter opens a menu: a letter missing or given twice leaves a menu that the
// keyboard reaches only by walking the bar.
TEST(Window, EveryMenuHasItsOwnAccessLetter) {
  std::set<char> lettres;
  for (const Menu& m : TableMenus()) {
    const std::size_t et = m.legende.find('&');
    ASSERT_NE(et, std::string::npos) << m.nom;
    ASSERT_LT(et + 1, m.legende.size()) << m.nom;
    const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(m.legende[et + 1])));
    EXPECT_TRUE(lettres.insert(c).second) << m.nom << " uses '" << c << "' again";
  }
}

TEST(Window, ErrorTrapReportsTheInnermostLabelAndEndsTheProgram) {
  headless::HeadlessWindow ui;
  Form f(ui, ui);
  bool termine = false;
  RunTrapped(ui, ui, termine, [&] {
    ErrorTrap externe(" sur Dictionnaire");
    f.liste.Lit(1);  // no dictionary is open: the entry is outside the index
  });
  ASSERT_EQ(ui.boxes.size(), 1u);
  EXPECT_EQ(ui.boxes[0], "9L'indice n'appartient pas \xE0 la s\xE9lection sur LitDictio");
  EXPECT_TRUE(ui.quit && termine);
  // Once ended, nothing more runs.
  bool appele = false;
  EXPECT_FALSE(RunTrapped(ui, ui, termine, [&] { appele = true; }));
  EXPECT_FALSE(appele);
  // A failed index build adds its diagnostic line.
  headless::HeadlessWindow ui2;
  bool fin = false;
  test::DossierTemp d;
  RunTrapped(ui2, ui2, fin, [&] {
    IndexTable t;
    TableLettre l;
    ConstruireIndex({d.Chemin("absent.txt"), d.Chemin("i"), d.Chemin("l")}, true, t, l, [] {});
  });
  ASSERT_EQ(ui2.boxes.size(), 2u);
  EXPECT_EQ(ui2.boxes[0], "53Fichier introuvable sur InitIndex");
  EXPECT_EQ(ui2.boxes[1].rfind("l=", 0), 0u);
}
