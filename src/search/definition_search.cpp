#include "search/definition_search.h"

#include <string>

#include "data/folding.h"
#include "search/article_search.h"
#include "search/index_search.h"
#include "search/next_article.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/message.h"
#include "ui/navigation.h"

namespace lex {

void mnuRechercheAvant(Form& f) {
  ErrorTrap trap(" sur RechercheAvant_Click");
  EtatRecherche& r = f.recherche;
  const std::string reponse = f.ui.InputBox(r.RespectCasse ? "Recherche avec respect de la casse" : "Recherche",
                                            "Dictionnaires", r.ChaineRecherche);
  if (reponse.empty()) return;
  r.RechercheDansIndex = false;
  r.ChaineRecherche = reponse;
  switch (f.fenetre.ModeCourant) {
    case 2: rechercheChaineSuivant(f); break;
    case 3: rechercher(f, DebutSuivant(f), true); break;
    default:
      // In the list of dictionaries the string names a dictionary.
      f.fenetre.DebutIndexCherche = Sansaccent(reponse);
      f.fenetre.DebutIndexTape.clear();
      PositionIndex(f);
  }
}

void mnuRechercheBrute(Form& f) {
  EtatRecherche& r = f.recherche;
  r.RespectCasse = !r.RespectCasse;
  message(f, r.RespectCasse ? "recherche avec respect de la casse" : "recherche sur chaine mise en majuscule");
}

void mnuRechercheSuivant(Form& f) {
  switch (f.fenetre.ModeCourant) {
    case 2:
      if (f.recherche.RechercheDansIndex) RechercheDansIndexAvant(f);
      else rechercheChaineSuivant(f);
      break;
    case 3: rechercher(f, DebutSuivant(f), false); break;
    default: break;
  }
}

void mnuRechercheSuivantTout(Form& f) {
  switch (f.fenetre.ModeCourant) {
    case 2: rechercheChaineSuivant(f); break;
    case 3:
      if (!f.fenetre.ModificationEnCours) rechercher(f, DebutSuivant(f), true);
      break;
    default: break;
  }
}

void mnuRecherchePrecedent(Form& f) {
  switch (f.fenetre.ModeCourant) {
    case 2:
      if (f.recherche.RechercheDansIndex) RechercheDansIndexArriere(f);
      else rechercheChaineArriere(f);
      break;
    case 3: AppelRechercheArriere(f); break;
    default: break;
  }
}

}  // namespace lex
