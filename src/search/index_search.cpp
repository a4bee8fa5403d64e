#include "search/index_search.h"

#include <cstdint>
#include <string>

#include "data/folding.h"
#include "search/index_lookup.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"
#include "ui/message.h"
#include "ui/navigation.h"
#include "ui/paging.h"

namespace lex {
namespace {

// The page starting at entry i, the caret on it, its line announced.
void MontrePage(Form& f, std::int32_t i) {
  f.fenetre.PremierIndexAffiche = i;
  InitTableIndex(f);
  AnnonceLigneCourante(f);
}

void ChercheDansIndex(Form& f, bool arriere) {
  const EtatRecherche& r = f.recherche;
  const std::string aiguille = r.RespectCasse ? r.ChaineRecherche : SansAccentSeul(r.ChaineRecherche);
  const std::int32_t n = NombreArticle(f);
  const std::int32_t pas = arriere ? -1 : 1;
  if (!aiguille.empty()) {
    for (std::int32_t i = IndexAbsolu(f) + pas; i >= 1 && i <= n; i += pas) {
      const std::string_view texte = TexteIndex(f, i);
      const bool trouve = r.RespectCasse ? texte.find(aiguille) != std::string_view::npos
                                         : SansAccentSeul(texte).find(aiguille) != std::string::npos;
      if (trouve) {
        MontrePage(f, i);
        return;
      }
    }
  }
  message(f, "introuvable");
}

}  // namespace

void mnuRechercheindex(Form& f) {
  ErrorTrap trap(" sur RechercheIndex_click");
  EtatFenetre& w = f.fenetre;
  if (w.ModeCourant == 1) {
    const std::string reponse = f.ui.InputBox("Dictionnaire", "Dictionnaires", "");
    if (reponse.empty()) return;
    w.DebutIndexCherche = Sansaccent(reponse);
    w.DebutIndexTape.clear();
    PositionIndex(f);
    return;
  }
  const std::string reponse = f.ui.InputBox("D\xE9" "but de l'index", "Dictionnaires", "");
  if (reponse.empty()) return;
  w.DebutIndexCherche = Sansaccent(reponse);
  if (w.DebutIndexCherche.empty()) {
    message(f, "index invalide");
    return;
  }
  if (w.ModeCourant == 3) {
    w.ModeCourant = 2;
    f.ui.SetButtonCaption(Bouton::CmdDic, "D\xE9" "finition");
    f.ui.SetButtonCaption(Bouton::CmdDivers, "Liste");
    f.ui.SetButtonVisible(Bouton::CmdDivers, true);
  }
  const Trouve t = MeilleureEntree(f, w.DebutIndexCherche);
  w.PremierIndexAffiche = t.numero;
  InitTableIndex(f);
  f.ui.FocusLine();
  AfficheStatus(f);
  // An exact entry speaks for itself as the page's first line; a nearest one is announced.
  if (!t.exact) AnnonceLigneCourante(f);
}

void mnuRechercheDansIndex(Form& f) {
  EtatRecherche& r = f.recherche;
  if (f.fenetre.ModeCourant != 2) {
    message(f, "mettez vous sur les index");
    return;
  }
  const std::string reponse = f.ui.InputBox(
      r.RespectCasse ? "Chaine avec respect de la casse dans index" : "Chaine dans index", "Dictionnaires",
      r.ChaineRecherche);
  if (reponse.empty()) return;
  r.ChaineRecherche = reponse;
  r.RechercheDansIndex = true;
  RechercheDansIndexAvant(f);
}

void RechercheDansIndexAvant(Form& f) { ChercheDansIndex(f, false); }
void RechercheDansIndexArriere(Form& f) { ChercheDansIndex(f, true); }

}  // namespace lex
