#include "search/definition_search.h"

#include <string>

#include "base/error.h"
#include "data/folding.h"
#include "search/article_search.h"
#include "search/index_search.h"
#include "search/next_article.h"

namespace lex {

void mnuRechercheAvant(PartiesRecherche& p) {
  ErrorTrap trap(" sur RechercheAvant_Click");
  EtatRecherche& r = p.etat;
  const std::string reponse = p.dialogues.InputBox(
      r.RespectCasse ? "Recherche avec respect de la casse" : "Recherche", kTitreBoites, r.ChaineRecherche);
  if (reponse.empty()) return;
  r.RechercheDansIndex = false;
  r.ChaineRecherche = reponse;
  const Mode m = p.ecran.mode();
  if (SurUneListe(m)) rechercheChaineSuivant(p);
  else if (m == Mode::Article) rechercher(p, DebutSuivant(p), true);
  // In the list of dictionaries the string names a dictionary.
  else if (SurLeCatalogue(m)) p.ecran.ChercheDebut(Sansaccent(reponse));
}

void mnuRechercheBrute(PartiesRecherche& p) {
  EtatRecherche& r = p.etat;
  r.RespectCasse = !r.RespectCasse;
  p.ecran.message(r.RespectCasse ? "recherche avec respect de la casse" : "recherche sur chaine mise en majuscule");
}

void mnuRechercheSuivant(PartiesRecherche& p) {
  const Mode m = p.ecran.mode();
  if (SurUneListe(m)) {
    if (p.etat.RechercheDansIndex) RechercheDansIndexAvant(p);
    else rechercheChaineSuivant(p);
  } else if (m == Mode::Article) {
    rechercher(p, DebutSuivant(p), false);
  }
}

void mnuRechercheSuivantTout(PartiesRecherche& p) {
  const Mode m = p.ecran.mode();
  if (SurUneListe(m)) rechercheChaineSuivant(p);
  else if (m == Mode::Article) rechercher(p, DebutSuivant(p), true);
}

void mnuRecherchePrecedent(PartiesRecherche& p) {
  const Mode m = p.ecran.mode();
  if (SurUneListe(m)) {
    if (p.etat.RechercheDansIndex) RechercheDansIndexArriere(p);
    else rechercheChaineArriere(p);
  } else if (m == Mode::Article) {
    AppelRechercheArriere(p);
  }
}

}  // namespace lex
