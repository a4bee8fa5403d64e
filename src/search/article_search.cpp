#include "search/article_search.h"

#include <string>

#include "search/article_text.h"
#include "search/next_article.h"
#include "ui/error_trap.h"
#include "ui/form.h"
#include "ui/line_helpers.h"
#include "ui/message.h"

namespace lex {
namespace {

void MontreOccurrence(Form& f, const std::string& texte, std::size_t position) {
  PoseCurseur(f, position);
  std::string ligne = extraitLigne(texte, position);
  message(f, ligne);
}

}  // namespace

std::size_t DebutSuivant(const Form& f) { return CurseurChamp(f) + 1; }

void rechercher(Form& f, std::size_t debut, bool suite) {
  ErrorTrap trap(" sur rechercher");
  const EtatRecherche& r = f.recherche;
  const std::string texte = TexteChamp(f);
  const std::size_t p = ChercheAvant(texte, AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse), r.RespectCasse, debut);
  if (p != std::string::npos) MontreOccurrence(f, texte, p);
  else if (suite && !f.fenetre.ModificationEnCours) rechercheChaineSuivant(f);
  else message(f, "introuvable");
}

void AppelRechercheArriere(Form& f) {
  ErrorTrap trap(" sur testRechercheArriere");
  const EtatRecherche& r = f.recherche;
  const std::string texte = TexteChamp(f);
  const std::size_t p = TestRechercheChaineArriere(texte, AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse),
                                                   r.RespectCasse, CurseurChamp(f));
  if (p != std::string::npos) MontreOccurrence(f, texte, p);
  else if (!f.fenetre.ModificationEnCours) rechercheChaineArriere(f);
  else message(f, "introuvable");
}

}  // namespace lex
