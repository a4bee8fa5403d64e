#include "search/next_article.h"

#include <cstdint>
#include <string>

#include "base/error.h"
#include "search/article_scan.h"
#include "search/article_text.h"

namespace lex {
namespace {

void ChercheArticle(PartiesRecherche& p, std::int32_t premier, std::int32_t dernier, bool arriere) {
  const EtatRecherche& r = p.etat;
  const ListeAffichee& liste = p.ecran.Liste();
  const std::string aiguille = AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse);
  std::int32_t trouve = 0;
  ParcoursArticles(
      liste, [&p] { p.ecran.Beep(); }, premier, dernier, arriere, aiguille, r.RespectCasse,
      [&trouve](std::int32_t k) {
        trouve = k;
        return false;
      });
  if (trouve == 0) {
    p.ecran.message("introuvable");
    return;
  }
  const std::string article = liste.Lit(trouve);
  std::size_t position = OccurrenceArticle(article, aiguille, r.RespectCasse, arriere);
  // The file may have changed between the scan and this read.
  if (position == std::string::npos) position = 0;
  p.ecran.MontreArticle(trouve, article, position);
  p.ecran.message("nouveau index " + ExtraitIndexDictio(article));
}

}  // namespace

void rechercheChaineSuivant(PartiesRecherche& p) {
  ErrorTrap trap(" sur rechercheChaineSuivante");
  if (!DansUnDictionnaire(p.ecran.mode())) return;
  ChercheArticle(p, p.ecran.EntreeCourante() + 1, p.ecran.Liste().Nombre(), false);
}

void rechercheChaineArriere(PartiesRecherche& p) {
  ErrorTrap trap(" sur rechercheChaineArriere");
  if (!DansUnDictionnaire(p.ecran.mode())) return;
  ChercheArticle(p, p.ecran.EntreeCourante() - 1, 1, true);
}

}  // namespace lex
