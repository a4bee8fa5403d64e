#include "ui/navigation.h"

#include <algorithm>

#include "data/folding.h"
#include "ui/article_view.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"
#include "ui/message.h"
#include "ui/paging.h"
#include "search/index_lookup.h"

namespace lex {
namespace {

bool DansIndex(const Form& f) { return f.fenetre.ModeCourant == 2 || f.fenetre.EditionBlocNote; }

void OublieDebutTape(Form& f) {
  f.fenetre.DebutIndexCherche.clear();
  f.fenetre.DebutIndexTape.clear();
}

// New page, caret on `ligne` of it (kept within the page), that line announced: the line
// the screen reader speaks is the line under the caret.
void TournePage(Form& f, std::int32_t premier, std::int32_t ligne) {
  f.fenetre.PremierIndexAffiche = premier;
  InitTableIndex(f);
  const std::string texte = f.ui.GetLineText();
  f.ui.SetLineSelection(DebutLigne(texte, std::max(ligne, 1)), 0);
  AnnonceLigneCourante(f);
}

bool PagePrecedente(Form& f, bool surLaLignePrecedente) {
  ErrorTrap trap(" sur IndexPrecedent");
  if (!DansIndex(f)) return false;
  OublieDebutTape(f);
  const std::int32_t ancien = f.fenetre.PremierIndexAffiche;
  if (ancien != 1) {
    const std::int32_t premier = std::max(1, ancien - kLignesPage);
    // From the arrows, the entry just above the old page; from Page Up, the same line.
    TournePage(f, premier, surLaLignePrecedente ? ancien - premier : LigneCurseur(f));
  }
  return true;
}

bool PageSuivante(Form& f, bool surLaPremiereLigne) {
  ErrorTrap trap(" sur IndexSuivant");
  if (!DansIndex(f)) return false;
  OublieDebutTape(f);
  const std::int32_t premier = f.fenetre.PremierIndexAffiche + kLignesPage;
  if (premier > NombreArticle(f)) {
    f.ui.Beep();
    return true;
  }
  TournePage(f, premier, surLaPremiereLigne ? 1 : LigneCurseur(f));
  return true;
}

}  // namespace

bool FlecheHaut(Form& f) {
  ErrorTrap trap(" sur FlecheHaut");
  EtatFenetre& w = f.fenetre;
  if (!DansIndex(f)) return false;
  OublieDebutTape(f);
  if (LigneCurseur(f) != 1) {
    w.FlecheHautArmee = w.FlecheBasArmee = false;
    return false;
  }
  if (!w.FlecheHautArmee) {
    w.FlecheHautArmee = true;
    return false;
  }
  return PagePrecedente(f, true);
}

bool FlecheBas(Form& f) {
  ErrorTrap trap(" sur FlecheBas");
  EtatFenetre& w = f.fenetre;
  if (!DansIndex(f)) return false;
  OublieDebutTape(f);
  if (FinLigne(f) < f.ui.GetLineText().size()) {
    w.FlecheHautArmee = w.FlecheBasArmee = false;
    return false;
  }
  if (!w.FlecheBasArmee) {
    w.FlecheBasArmee = true;
    return false;
  }
  return PageSuivante(f, true);
}

bool Indexprecedent(Form& f) { return PagePrecedente(f, false); }
bool Indexsuivant(Form& f) { return PageSuivante(f, false); }

bool AppelDebutIndex(Form& f) {
  ErrorTrap trap(" sur AppelDebutIndex");
  if (!DansIndex(f)) return false;
  TournePage(f, 1, 1);
  return true;
}

bool AppelFinIndex(Form& f) {
  ErrorTrap trap(" sur AppelFinIndex");
  if (!DansIndex(f)) return false;
  const std::int32_t premier = DebutDernierePage(NombreArticle(f));
  TournePage(f, premier, NombreArticle(f) - premier + 1);
  return true;
}

void MontreEntree(Form& f, int numero) {
  f.fenetre.FlecheHautArmee = f.fenetre.FlecheBasArmee = false;
  TournePage(f, numero, 1);
}

void BakSpaceIndex(Form& f) {
  ErrorTrap trap(" sur BakSpaceIndex");
  EtatFenetre& w = f.fenetre;
  message(f, std::string(80, ' ').c_str());
  if (w.DebutIndexCherche.size() >= 2) {
    w.DebutIndexCherche.pop_back();
    if (!w.DebutIndexTape.empty()) w.DebutIndexTape.pop_back();
    PositionIndex(f);
  } else if (!w.PileSuite.empty()) {
    RetourSuiteIndex(f);
  } else {
    f.ui.Beep();
  }
}

void PositionIndex(Form& f) {
  ErrorTrap trap(" sur PositionIndex");
  EtatFenetre& w = f.fenetre;
  if (w.ModeCourant == 1) {
    PositionCatalogue(f);
    return;
  }
  const std::string prefixe = SansaccentEpure(w.DebutIndexCherche);
  if (prefixe.empty()) {
    message(f, "index invalide");
    return;
  }
  const std::int32_t i = PremierCommencantPar(f, prefixe);
  if (i == 0) message(f, "introuvable");
  else MontreEntree(f, i);
}

void SuiteIndex(Form& f) {
  ErrorTrap trap(" sur SuiteIndex");
  EtatFenetre& w = f.fenetre;
  const std::string mot = MotSousCurseur(TexteChamp(f), CurseurChamp(f));
  const std::string plie = Sansaccent(mot);
  if (plie.empty()) {
    f.ui.Beep();
    return;
  }
  // A word is looked up in the dictionary's own index, even from a result list.
  const std::int32_t depuis = NumeroDictio(f, w.IndexCourant);
  f.recherche.ListeEnCours = false;
  f.recherche.ListeTrouvee.clear();
  w.PileSuite.push_back(depuis);
  const std::int32_t i = MeilleureEntree(f, plie).numero;
  w.ModeCourant = 2;
  f.ui.SetButtonCaption(Bouton::CmdDic, "D\xE9" "finition");
  f.ui.SetButtonCaption(Bouton::CmdDivers, "Liste");
  f.ui.SetButtonVisible(Bouton::CmdDivers, true);
  MontreEntree(f, i);
  AfficheStatus(f);
}

void RetourSuiteIndex(Form& f) {
  ErrorTrap trap(" sur RetourSuiteIndex");
  EtatFenetre& w = f.fenetre;
  if (w.PileSuite.empty()) {
    f.ui.Beep();
    return;
  }
  const std::int32_t n = w.PileSuite.back();
  w.PileSuite.pop_back();
  f.recherche.ListeEnCours = false;
  f.recherche.ListeTrouvee.clear();
  OublieDebutTape(f);
  const std::string article = LitDictio(f, n);
  w.PremierIndexAffiche = n;
  MontreArticle(f, n, article, 0);
  std::string annonce = "retour sur " + std::string(TexteIndex(f, n));
  message(f, annonce);
}

void parlerIndex(Form& f) {
  // In an article the entry being read is what the user asks for.
  if (f.fenetre.ModeCourant == 3) {
    std::string t = f.fenetre.TexteIndexCourant;
    message(f, t);
  } else {
    AnnonceLigneCourante(f);
  }
}

}  // namespace lex
