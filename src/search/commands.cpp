#include "search/commands.h"

#include "search/definition_search.h"
#include "search/index_search.h"
#include "search/string_list.h"

namespace lex {

void InscrireCommandesRecherche(RegistreCommandes& registre, PartiesRecherche p) {
  const auto inscrire = [&registre, p](MenuId id, void (*executer)(PartiesRecherche&)) {
    registre.Inscrire(id, [p, executer]() mutable { executer(p); });
  };
  inscrire(MenuId::mnuRechercheindex, mnuRechercheindex);
  inscrire(MenuId::mnuRechercheDansIndex, mnuRechercheDansIndex);
  inscrire(MenuId::mnuRechercheAvant, mnuRechercheAvant);
  inscrire(MenuId::mnuRechercheChaine, mnuRechercheChaine);
  inscrire(MenuId::mnuRechercheBrute, mnuRechercheBrute);
  inscrire(MenuId::mnuRecherchePrecedent, mnuRecherchePrecedent);
  inscrire(MenuId::mnuRechercheSuivant, mnuRechercheSuivant);
  inscrire(MenuId::mnuRechercheSuivantTout, mnuRechercheSuivantTout);
}

}  // namespace lex
