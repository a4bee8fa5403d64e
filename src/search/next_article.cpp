#include "search/next_article.h"

#include <cstdint>
#include <string>

#include "search/article_scan.h"
#include "search/article_text.h"
#include "ui/article_view.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/index_view.h"
#include "ui/line_helpers.h"
#include "ui/message.h"

namespace lex {
namespace {

// The entry the user is on: the article being read, or the index line under the caret.
std::int32_t EntreeCourante(const Form& f) {
  return f.fenetre.ModeCourant == 3 ? f.fenetre.IndexCourant : IndexAbsolu(f);
}

void ChercheArticle(Form& f, std::int32_t premier, std::int32_t dernier, bool arriere) {
  const EtatRecherche& r = f.recherche;
  const std::string aiguille = AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse);
  std::int32_t trouve = 0;
  ParcoursArticles(f, premier, dernier, arriere, aiguille, r.RespectCasse, [&trouve](std::int32_t k) {
    trouve = k;
    return false;
  });
  if (trouve == 0) {
    message(f, "introuvable");
    return;
  }
  const std::string article = LitDictio(f, trouve);
  std::size_t position = OccurrenceArticle(article, aiguille, r.RespectCasse, arriere);
  // The file may have changed between the scan and this read.
  if (position == std::string::npos) position = 0;
  f.fenetre.PremierIndexAffiche = trouve;
  MontreArticle(f, trouve, article, position);
  std::string annonce = "nouveau index " + ExtraitIndexDictio(article);
  message(f, annonce);
}

}  // namespace

void rechercheChaineSuivant(Form& f) {
  ErrorTrap trap(" sur rechercheChaineSuivante");
  if (f.fenetre.ModeCourant == 1) return;
  ChercheArticle(f, EntreeCourante(f) + 1, NombreArticle(f), false);
}

void rechercheChaineArriere(Form& f) {
  ErrorTrap trap(" sur rechercheChaineArriere");
  if (f.fenetre.ModeCourant == 1) return;
  ChercheArticle(f, EntreeCourante(f) - 1, 1, true);
}

}  // namespace lex
