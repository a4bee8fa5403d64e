#include "ui/buttons.h"

#include <algorithm>

#include "catalogue/lists.h"
#include "catalogue/opening.h"
#include "catalogue/startup.h"
#include "ui/article_view.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"
#include "ui/message.h"
#include "ui/paging.h"

namespace lex {
namespace {

// Back to the index page, with the caret on the entry that was being read.
void RetourALIndex(Form& f) {
  EtatFenetre& w = f.fenetre;
  f.ui.SetButtonCaption(Bouton::CmdDic, "D\xE9" "finition");
  f.ui.SetButtonCaption(Bouton::CmdDivers, "Liste");
  f.ui.SetButtonVisible(Bouton::CmdDivers, true);
  const bool depuisArticle = w.ModeCourant == 3;
  w.ModeCourant = 2;
  const std::int32_t lu = w.IndexCourant;
  if (depuisArticle && (lu < w.PremierIndexAffiche || lu >= w.PremierIndexAffiche + kLignesPage))
    w.PremierIndexAffiche = lu;
  InitTableIndex(f);
  if (depuisArticle && lu >= w.PremierIndexAffiche)
    f.ui.SetLineSelection(DebutLigne(f.ui.GetLineText(), lu - w.PremierIndexAffiche + 1), 0);
  f.ui.FocusLine();
  AfficheStatus(f);
  AnnonceLigneCourante(f);
}

}  // namespace

void RetourIndex(Form& f) {
  ErrorTrap trap(" sur RetourIndex");
  EtatFenetre& w = f.fenetre;
  message(f, " ");
  w.ModificationEnCours = w.CreationIndexEnCours = w.CreationDictioEnCours = false;
  f.ui.SetLineEditable(w.EditionBlocNote);
  f.ui.SetButtonVisible(Bouton::CmdDivers, false);
  f.ui.SetButtonCaption(Bouton::CmdQuitter, "&Quitter");
  f.ui.SetButtonVisible(Bouton::CmdQuitter, true);
  if (w.TexteAideAffiche) {
    w.TexteAideAffiche = false;
    AfficheListeDictio(f);
  } else if (w.EditionBlocNote) {
    w.EditionBlocNote = false;
    f.ui.SetLineEditable(false);
    if (w.ModeCourant == 1) AfficheListeDictio(f);
    else RetourALIndex(f);
  } else if (w.ModeCourant == 1) {
    if (w.ListeHistoire) {
      // Escape in the history list goes back to the main list, on the row "Histoire".
      w.ListeHistoire = false;
      w.DictioCourant = 9;
    } else if (!w.ComparaisonEnCours && RangSousCurseur(f) >= 1) {
      w.DictioCourant = static_cast<std::int16_t>(EntreeDeLigne(f.catalogue, RangSousCurseur(f)));
    }
    AfficheListeDictio(f);
  } else if (w.ModeCourant == 2) {
    if (f.recherche.ListeEnCours) {
      // A result list gives way to the dictionary's own index, on the entry it was on.
      const std::int32_t numero = NombreArticle(f) > 0 ? NumeroDictio(f, IndexAbsolu(f)) : 1;
      f.recherche.ListeEnCours = false;
      f.recherche.ListeTrouvee.clear();
      w.PremierIndexAffiche = numero;
      RetourALIndex(f);
    } else {
      if (NombreArticle(f) > 0) f.catalogue[w.DictioCourant].PositionDictio = IndexAbsolu(f);
      AfficheListeDictio(f);
    }
  } else {
    RetourALIndex(f);
  }
}

void CmdDic_Click(Form& f) {
  const std::string legende = f.ui.GetButtonCaption(Bouton::CmdDic);
  if (legende == "OK") {
    // No editing (notepad, new dictionary, article) exists in this version to be finished
    // here, so OK only goes back.
    RetourIndex(f);
  } else if (legende == "Index") {
    if (f.fenetre.ModeCourant == 1) AppelDictionnaire(f);
    else RetourIndex(f);
  } else if (legende == "D\xE9" "finition") {
    dictionnaire(f);
  } else {
    RetourIndex(f);
  }
  FocusChamp(f);
}

void CmdDivers_Click(Form& f) {
  const std::string legende = f.ui.GetButtonCaption(Bouton::CmdDivers);
  if (legende == "Annuler" || legende == "Liste") RetourIndex(f);
  FocusChamp(f);
}

void CmdQuitter_Click(Form& f) {
  if (f.ui.GetButtonCaption(Bouton::CmdQuitter) == "Annuler") {
    RetourIndex(f);
    FocusChamp(f);
  } else {
    quitter(f);
  }
}

}  // namespace lex
