#include "search/string_list.h"

#include <string>
#include <vector>

#include "base/error.h"
#include "search/article_scan.h"
#include "search/article_text.h"

namespace lex {

void mnuRechercheChaine(PartiesRecherche& p) {
  ErrorTrap trap(" sur RechercheChaine_Click");
  EtatRecherche& r = p.etat;
  const std::string reponse =
      p.dialogues.InputBox(r.RespectCasse ? "Liste des index contenant la chaine avec respect de la casse"
                                          : "Liste des index contenant la chaine",
                           kTitreBoites, r.ChaineRecherche);
  if (reponse.empty()) return;
  r.RechercheDansIndex = false;
  if (!DansUnDictionnaire(p.ecran.mode())) {
    p.ecran.message("choisissez d'abord le dictionnaire");
    return;
  }
  r.ChaineRecherche = reponse;
  rechercheChaine(p);
}

void rechercheChaine(PartiesRecherche& p) {
  ErrorTrap trap(" sur rechercheChaine");
  const EtatRecherche& r = p.etat;
  const ListeAffichee& liste = p.ecran.Liste();
  std::vector<EntreeTrouvee> trouvees;
  ParcoursArticles(
      liste, [&p] { p.ecran.Beep(); }, 1, liste.Nombre(), false,
      AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse), r.RespectCasse, [&](std::int32_t i) {
        const Etendue e = liste.EtendueArticle(i);
        trouvees.push_back(
            {liste.NumeroDictio(i), static_cast<std::int32_t>(e.debut), static_cast<std::int32_t>(e.fin)});
        return true;
      });
  if (trouvees.empty()) {
    p.ecran.message("introuvable");
    return;
  }
  const std::size_t nombre = trouvees.size();
  p.ecran.MontreResultats(std::move(trouvees), "index contenant " + r.ChaineRecherche);
  p.ecran.message(std::to_string(nombre) + " index trouv\xE9");
}

}  // namespace lex
