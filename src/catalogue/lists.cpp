#include "catalogue/lists.h"

#include <vector>

#include "data/folding.h"

namespace lex {

std::string TexteListeDictio(const Catalogue& c) {
  std::string texte = "        LISTE DES DICTIONNAIRES\r\n\r\n";
  for (int i = 1; i <= 9; ++i) texte += c[i].LigneListe + "\r\n";
  for (int i = 10 + c.NombreHistoire; i <= c.NombreDictio() - 1; ++i) texte += c[i].LigneListe + "\r\n";
  texte += c[c.NombreDictio()].LigneListe;
  return texte;
}

std::string TexteListeHistoire(const Catalogue& c) {
  std::string texte = "LISTE DES DICTIONNAIRES sans ordre alphab\xE9tique\r\n\r\n";
  for (int i = 10; i <= 8 + c.NombreHistoire; ++i) texte += c[i].LigneListe + "\r\n";
  if (c.NombreHistoire >= 1) texte += c[9 + c.NombreHistoire].LigneListe;
  return texte;
}

int RangCatalogue(const Catalogue& c, bool histoire, const std::string& tape, const std::string& plie) {
  // The entry of each row of the list on screen.
  std::vector<int> entrees;
  if (histoire) {
    for (int i = 10; i <= 9 + c.NombreHistoire; ++i) entrees.push_back(i);
  } else {
    for (int i = 1; i <= 9; ++i) entrees.push_back(i);
    for (int i = 10 + c.NombreHistoire; i <= c.NombreDictio(); ++i) entrees.push_back(i);
  }
  // A call letter is compared as typed, so that É reaches "Écrivains" and E "ENCYCLOPEDIE".
  if (tape.size() == 1) {
    for (std::size_t r = 0; r < entrees.size(); ++r)
      if (c[entrees[r]].LettreAppel == tape) return static_cast<int>(r);
  }
  std::size_t meilleur = 0;
  std::size_t rang = 0;
  for (std::size_t r = 0; r < entrees.size() && !plie.empty(); ++r) {
    const std::size_t commun = PrefixeCommun(Sansaccent(c[entrees[r]].NomDictio), plie);
    if (commun > meilleur) {
      meilleur = commun;
      rang = r;
    }
  }
  return meilleur == 0 ? -1 : static_cast<int>(rang);
}

}  // namespace lex
