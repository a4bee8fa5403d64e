#include "search/article_text.h"

#include "base/encoding.h"
#include "base/error.h"

namespace lex {

std::string FormeRecherche(std::string_view texte) {
  ErrorTrap trap(" sur FormeRecherche");
  std::string forme;
  forme.reserve(texte.size());
  for (std::size_t i = 0; i < texte.size(); ++i) {
    if (texte[i] == '\r' && i + 1 < texte.size() && texte[i + 1] == '\n') {
      forme += ' ';
      ++i;
    } else {
      forme += texte[i];
    }
  }
  return forme;
}

std::size_t PositionDansArticle(std::string_view texte, std::size_t position) {
  std::size_t reel = 0;
  for (std::size_t forme = 0; forme < position && reel < texte.size(); ++forme)
    reel += texte[reel] == '\r' && reel + 1 < texte.size() && texte[reel + 1] == '\n' ? 2 : 1;
  return reel;
}

std::string ExtraitIndexDictio(std::string_view texte) { return std::string(texte.substr(0, texte.find('\r'))); }

std::string AiguilleDefinitions(std::string_view chaine, bool respectCasse) {
  return respectCasse ? std::string(chaine) : MajusculesAnsi(chaine);
}

std::size_t OccurrenceArticle(std::string_view texte, std::string_view aiguille, bool respectCasse, bool derniere) {
  if (aiguille.empty()) return std::string::npos;
  const bool forme = texte.find(' ') != std::string_view::npos;
  std::string vu = forme ? FormeRecherche(texte) : std::string(texte);
  if (!respectCasse) vu = MajusculesAnsi(vu);
  const std::size_t p = derniere ? vu.rfind(aiguille) : vu.find(aiguille);
  if (p == std::string::npos || !forme) return p;
  return PositionDansArticle(texte, p);
}

std::size_t ChercheAvant(std::string_view texte, std::string_view aiguille, bool respectCasse, std::size_t debut) {
  if (aiguille.empty() || debut > texte.size()) return std::string::npos;
  if (respectCasse) return texte.find(aiguille, debut);
  return MajusculesAnsi(texte).find(aiguille, debut);
}

std::size_t TestRechercheChaineArriere(std::string_view texte, std::string_view aiguille, bool respectCasse,
                                       std::size_t limite) {
  ErrorTrap trap(" sur TestRechercheChaineArriere");
  if (aiguille.empty() || limite == 0) return std::string::npos;
  // The last start before the limit is the last find of a forward search repeated from one
  // past each find.
  if (respectCasse) return texte.rfind(aiguille, limite - 1);
  return MajusculesAnsi(texte).rfind(aiguille, limite - 1);
}

}  // namespace lex
