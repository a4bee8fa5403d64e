#include "search/string_list.h"

#include <string>
#include <vector>

#include "search/article_scan.h"
#include "search/article_text.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/message.h"
#include "ui/paging.h"

namespace lex {

void mnuRechercheChaine(Form& f) {
  ErrorTrap trap(" sur RechercheChaine_Click");
  EtatRecherche& r = f.recherche;
  const std::string reponse =
      f.ui.InputBox(r.RespectCasse ? "Liste des index contenant la chaine avec respect de la casse"
                                   : "Liste des index contenant la chaine",
                    "Dictionnaires", r.ChaineRecherche);
  if (reponse.empty()) return;
  r.RechercheDansIndex = false;
  if (f.fenetre.ModeCourant != 2 && f.fenetre.ModeCourant != 3) {
    message(f, "choisissez d'abord le dictionnaire");
    return;
  }
  r.ChaineRecherche = reponse;
  rechercheChaine(f);
}

void rechercheChaine(Form& f) {
  ErrorTrap trap(" sur rechercheChaine");
  EtatRecherche& r = f.recherche;
  EtatFenetre& w = f.fenetre;
  std::vector<EntreeTrouvee> liste;
  ParcoursArticles(f, 1, NombreArticle(f), false, AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse),
                   r.RespectCasse, [&](std::int32_t i) {
                     const Etendue e = EtendueArticle(f, i);
                     liste.push_back({NumeroDictio(f, i), static_cast<std::int32_t>(e.debut),
                                      static_cast<std::int32_t>(e.fin)});
                     return true;
                   });
  if (liste.empty()) {
    message(f, "introuvable");
    return;
  }
  r.ListeTrouvee = std::move(liste);
  r.ListeEnCours = true;
  r.TitreListe = "index contenant " + r.ChaineRecherche;
  w.ModeCourant = 2;
  w.DebutIndexCherche.clear();
  w.DebutIndexTape.clear();
  f.ui.SetButtonCaption(Bouton::CmdDic, "D\xE9" "finition");
  f.ui.SetButtonCaption(Bouton::CmdDivers, "Liste");
  f.ui.SetButtonVisible(Bouton::CmdDivers, true);
  AfficheStatus(f);
  w.PremierIndexAffiche = 1;
  InitTableIndex(f);
  f.ui.FocusLine();
  std::string annonce = std::to_string(r.ListeTrouvee.size()) + " index trouv\xE9";
  message(f, annonce);
}

}  // namespace lex
