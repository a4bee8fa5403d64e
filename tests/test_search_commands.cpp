// The Recherche menu's commands as the user reaches them, on a small dictionary.
#include <gtest/gtest.h>

#include "data/index_file.h"
#include "app/headless/headless_window.h"
#include "test_support.h"
#include "controller/events.h"
#include "controller/key_route.h"
#include "controller/modes.h"
#include "view/keys.h"
#include "controller/form.h"
#include "controller/line_helpers.h"
#include "controller/paging.h"

using namespace lex;
using M = MenuId;

namespace {

struct Banc {
  test::DossierTemp d;
  headless::HeadlessWindow ui;
  Form f{ui, ui};
  explicit Banc(const std::string& octets = test::Fixture("search_mots.txt")) {
    d.Ecrire("d.txt", octets);
    f.dico.fichiers = {d.Chemin("d.txt"), d.Chemin("index.d"), d.Chemin("lettre.d")};
    ConstruireIndex(f.dico.fichiers, true, f.dico.TableIndex, f.dico.Lettres, [] {});
    EntrerIndex(f, 1, Annonce::Non);
  }
  void Menu(M id, const std::string& reponse = {}) {
    if (!reponse.empty()) ui.answers.push_back({headless::Answer::Kind::Input, Reponse::OK, reponse, 0});
    EvMenu(f, id);
    EXPECT_TRUE(ui.boxes.empty()) << ui.boxes.back();
  }
  void Ligne(int n) { ui.txt.SetCaret(DebutLigne(ui.txt.Text(), n)); }
  std::string Dit() const {
    const std::string& m = ui.messages.back();
    const auto d = m.find_first_not_of(' ');
    return d == std::string::npos ? "" : m.substr(d, m.find_last_not_of(' ') - d + 1);
  }
};

}  // namespace

TEST(SearchCommands, CancelledAnswersChangeNothing) {
  Banc b;
  b.f.recherche.RechercheDansIndex = true;
  b.f.recherche.ChaineRecherche = "loup";
  b.Ligne(4);
  for (M id : {M::mnuRechercheindex, M::mnuRechercheDansIndex, M::mnuRechercheAvant, M::mnuRechercheChaine}) b.Menu(id);
  EXPECT_EQ(b.ui.prompts, (std::vector<std::string>{"D\xE9" "but de l'index", "Chaine dans index", "Recherche",
                                                    "Liste des index contenant la chaine"}));
  EXPECT_TRUE(b.ui.messages.empty());
  EXPECT_TRUE(b.f.recherche.RechercheDansIndex);
  EXPECT_EQ(b.f.recherche.ChaineRecherche, "loup");
  EXPECT_EQ(IndexAbsolu(b.f), 4);
}

// The scenarios follow a list and the way back from it; here, a list searched again.
TEST(SearchCommands, AResultListIsNarrowedBySearchingItAgain) {
  Banc b;
  b.Menu(M::mnuRechercheChaine, "chat");
  EXPECT_EQ(b.ui.txt.Text(), "chat\r\nchien\r\nhibou\r\nlion");
  b.Menu(M::mnuRechercheChaine, "noir");  // zèbre holds it too, but is not in the list
  EXPECT_EQ(b.Dit(), "1 index trouv\xE9");
  EXPECT_EQ(b.ui.txt.Text(), "chat");
  EXPECT_EQ(b.ui.Title(), "index contenant noir");
  b.Menu(M::mnuRechercheChaine, "loup");  // nothing: the list stays
  EXPECT_EQ(b.Dit(), "introuvable");
  EXPECT_EQ(b.ui.txt.Text(), "chat");
  RouteTouche(b.f, Champ::Txt, Touche::Echap, 0, 27);  // Escape: the dictionary's own index, on that entry
  EXPECT_FALSE(b.f.liste.EstResultats());
  EXPECT_EQ(IndexAbsolu(b.f), 3);
  EXPECT_EQ(b.f.liste.Nombre(), 11);
}

TEST(SearchCommands, EmptyHugeAndChangedDictionaries) {
  Banc vide("");
  for (M id : {M::mnuRechercheChaine, M::mnuRechercheAvant, M::mnuRechercheDansIndex}) {
    vide.Menu(id, "x");
    EXPECT_EQ(vide.Dit(), "introuvable");
  }
  vide.Menu(M::mnuRechercheindex, "x");
  vide.Menu(M::mnuRecherchePrecedent);
  EXPECT_EQ(vide.Dit(), "introuvable");

  const std::string grande(10000, 'q');
  Banc b("a\r\nrien\r\n\r\nb\r\n" + grande + "\r\n");
  b.Menu(M::mnuRechercheChaine, grande);
  EXPECT_EQ(b.ui.txt.Text(), "b");
  b.Menu(M::mnuRechercheChaine, grande + "q");
  EXPECT_EQ(b.Dit(), "introuvable");

  Banc change;
  change.d.Ecrire("d.txt", "chat\r\n");  // shrunk after its index was made
  change.Menu(M::mnuRechercheChaine, "chat");
  EXPECT_EQ(change.Dit(), "1 index trouv\xE9");
  change.Menu(M::mnuRechercheAvant, "grand");
  EXPECT_EQ(change.Dit(), "introuvable");
  EXPECT_FALSE(change.ui.quit);
}

