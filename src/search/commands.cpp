#include "ui/commands.h"

#include "search/definition_search.h"
#include "search/index_search.h"
#include "search/string_list.h"

namespace lex {

// The search commands of the Recherche menu.
void InscrireCommandesRecherche(TableCommandes& t) {
  t[MenuId::mnuRechercheindex] = mnuRechercheindex;
  t[MenuId::mnuRechercheDansIndex] = mnuRechercheDansIndex;
  t[MenuId::mnuRechercheAvant] = mnuRechercheAvant;
  t[MenuId::mnuRechercheChaine] = mnuRechercheChaine;
  t[MenuId::mnuRechercheBrute] = mnuRechercheBrute;
  t[MenuId::mnuRecherchePrecedent] = mnuRecherchePrecedent;
  t[MenuId::mnuRechercheSuivant] = mnuRechercheSuivant;
  t[MenuId::mnuRechercheSuivantTout] = mnuRechercheSuivantTout;
}

}  // namespace lex
