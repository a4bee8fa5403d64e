#include "search/article_search.h"

#include <string>

#include "base/error.h"
#include "search/article_text.h"
#include "search/next_article.h"

namespace lex {

std::size_t DebutSuivant(const PartiesRecherche& p) { return p.ecran.CurseurChamp() + 1; }

void rechercher(PartiesRecherche& p, std::size_t debut, bool suite) {
  ErrorTrap trap(" sur rechercher");
  const EtatRecherche& r = p.etat;
  const std::string texte = p.ecran.TexteChamp();
  const std::size_t o = ChercheAvant(texte, AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse), r.RespectCasse, debut);
  if (o != std::string::npos) p.ecran.MontreOccurrence(o);
  else if (suite) rechercheChaineSuivant(p);
  else p.ecran.message("introuvable");
}

void AppelRechercheArriere(PartiesRecherche& p) {
  ErrorTrap trap(" sur testRechercheArriere");
  const EtatRecherche& r = p.etat;
  const std::string texte = p.ecran.TexteChamp();
  const std::size_t o = TestRechercheChaineArriere(texte, AiguilleDefinitions(r.ChaineRecherche, r.RespectCasse),
                                                   r.RespectCasse, p.ecran.CurseurChamp());
  if (o != std::string::npos) p.ecran.MontreOccurrence(o);
  else rechercheChaineArriere(p);
}

}  // namespace lex
