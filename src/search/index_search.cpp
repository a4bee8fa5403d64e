#include "search/index_search.h"

#include <cstdint>
#include <string>

#include "base/error.h"
#include "data/folding.h"
#include "search/index_lookup.h"

namespace lex {
namespace {

void ChercheDansIndex(PartiesRecherche& p, bool arriere) {
  const EtatRecherche& r = p.etat;
  const ListeAffichee& liste = p.ecran.Liste();
  const std::string aiguille = r.RespectCasse ? r.ChaineRecherche : SansAccentSeul(r.ChaineRecherche);
  const std::int32_t n = liste.Nombre();
  const std::int32_t pas = arriere ? -1 : 1;
  if (!aiguille.empty()) {
    for (std::int32_t i = p.ecran.EntreeCourante() + pas; i >= 1 && i <= n; i += pas) {
      const std::string_view texte = liste.Texte(i);
      const bool trouve = r.RespectCasse ? texte.find(aiguille) != std::string_view::npos
                                         : SansAccentSeul(texte).find(aiguille) != std::string::npos;
      if (trouve) {
        p.ecran.MontrePage(i);
        return;
      }
    }
  }
  p.ecran.message("introuvable");
}

}  // namespace

void mnuRechercheindex(PartiesRecherche& p) {
  ErrorTrap trap(" sur RechercheIndex_click");
  const Mode m = p.ecran.mode();
  if (SurLeCatalogue(m)) {
    const std::string reponse = p.dialogues.InputBox("Dictionnaire", kTitreBoites, "");
    if (!reponse.empty()) p.ecran.ChercheDebut(Sansaccent(reponse));
    return;
  }
  if (!DansUnDictionnaire(m)) return;
  const std::string reponse = p.dialogues.InputBox("D\xE9" "but de l'index", kTitreBoites, "");
  if (reponse.empty()) return;
  const std::string plie = Sansaccent(reponse);
  if (plie.empty()) {
    p.ecran.message("index invalide");
    return;
  }
  const Trouve t = MeilleureEntree(p.ecran.Liste(), plie);
  // An exact entry speaks for itself as the page's first line; a nearest one is announced.
  p.ecran.RetourPage(t.numero, !t.exact, plie);
}

void mnuRechercheDansIndex(PartiesRecherche& p) {
  EtatRecherche& r = p.etat;
  if (!SurUneListe(p.ecran.mode())) {
    p.ecran.message("mettez vous sur les index");
    return;
  }
  const std::string reponse = p.dialogues.InputBox(
      r.RespectCasse ? "Chaine avec respect de la casse dans index" : "Chaine dans index", kTitreBoites,
      r.ChaineRecherche);
  if (reponse.empty()) return;
  r.ChaineRecherche = reponse;
  r.RechercheDansIndex = true;
  RechercheDansIndexAvant(p);
}

void RechercheDansIndexAvant(PartiesRecherche& p) { ChercheDansIndex(p, false); }
void RechercheDansIndexArriere(PartiesRecherche& p) { ChercheDansIndex(p, true); }

}  // namespace lex
