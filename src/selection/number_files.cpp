#include "selection/number_files.h"

#include <cctype>

#include "base/blanks.h"
#include "base/numbers.h"
#include "data/files.h"
#include "data/safe_write.h"

namespace lex {

std::string NomFichierNumeros(const std::string& dossierDictio, std::string_view prefixe,
                              std::string_view fichierDictio) {
  return dossierDictio + NomNatif(prefixe) + NomFichSeul(fichierDictio);
}

void EcrireNumeros(std::string_view fichier, const std::vector<std::int32_t>& numeros) {
  std::vector<std::string> lignes;
  lignes.reserve(numeros.size());
  for (std::int32_t n : numeros) lignes.push_back(NombreImprime(n));
  EcrireLignesSur(fichier, lignes, Donnees::Utilisateur);
}

NumerosLus LireNumeros(std::string_view fichier, std::int32_t nombreArticle) {
  NumerosLus lus;
  std::vector<bool> vu(static_cast<std::size_t>(std::max(nombreArticle, 0)) + 1);
  for (const std::string& ligne : LireLignes(fichier)) {
    const std::string_view t = Rogne(ligne);
    if (t.empty()) continue;
    const std::size_t chiffre = (t[0] == '-' || t[0] == '+') ? 1 : 0;
    const bool nombre = chiffre < t.size() && std::isdigit(static_cast<unsigned char>(t[chiffre]));
    const std::int32_t n = nombre ? Val(t) : 0;
    if (n < 1 || n > nombreArticle) {
      ++lus.ignores;
      continue;
    }
    if (vu[static_cast<std::size_t>(n)]) continue;
    vu[static_cast<std::size_t>(n)] = true;
    lus.numeros.push_back(n);
  }
  return lus;
}

}  // namespace lex
