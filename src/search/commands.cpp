#include "search/commands.h"

#include "search/definition_search.h"
#include "search/index_search.h"
#include "search/string_list.h"

namespace lex {

void InscrireCommandesRecherche(RegistreCommandes& registre, PartiesRecherche p) {
  InscrireCommandes<PartiesRecherche>(registre, p,
                                      {{MenuId::mnuRechercheindex, mnuRechercheindex},
                                       {MenuId::mnuRechercheDansIndex, mnuRechercheDansIndex},
                                       {MenuId::mnuRechercheAvant, mnuRechercheAvant},
                                       {MenuId::mnuRechercheChaine, mnuRechercheChaine},
                                       {MenuId::mnuRechercheBrute, mnuRechercheBrute},
                                       {MenuId::mnuRecherchePrecedent, mnuRecherchePrecedent},
                                       {MenuId::mnuRechercheSuivant, mnuRechercheSuivant},
                                       {MenuId::mnuRechercheSuivantTout, mnuRechercheSuivantTout}});
}

}  // namespace lex
