#include "catalogue/config.h"

#include <algorithm>

#include "data/files.h"
#include "base/numbers.h"

namespace lex {

std::vector<std::string> LignesUsine(const std::string& dossierProgramme) {
  std::vector<std::string> l(8, " 1");
  l.insert(l.end(), {"1,11", " 1", dossierProgramme + "blocnote.txt", "Courier", "10", " 1 "});
  for (const char* nom : {"1,TXT,Chronologie histoire, ,SansOrdreAlpha",
                          "1,txt,Chronologies diverses, ,SansOrdreAlpha",
                          "1,txt,Chronologie sciences et techniques, ,SansOrdreAlpha",
                          "1,txt,Sciences et techniques  , ,SansOrdreAlpha",
                          "1,TXT,Monde, ,SansOrdreAlpha",
                          "1,TXT,France, ,SansOrdreAlpha",
                          "1,TXT,Allemagne, ,SansOrdreAlpha",
                          "1,txt,\xC9gypte, ,SansOrdreAlpha",
                          "1,txt,\xC9tats-Unis, ,SansOrdreAlpha",
                          "1,TXT,Grande Bretagne, ,SansOrdreAlpha",
                          "1,TXT,Russie, ,SansOrdreAlpha",
                          "1,TXT,\xC9" "crivains,\xC9,SansOrdreAlpha"})
    l.emplace_back(nom);
  return l;
}

namespace {
std::int32_t Position(std::string_view texte) { return std::clamp(Val(texte), 1, kPositionMax); }
}  // namespace

std::vector<std::string> LireConfig(const std::vector<std::string>& lignes, Catalogue& c, Reglages& r,
                                    std::int16_t& rangCourant) {
  std::vector<std::string> refus;
  const std::string fichier = NomFichSeul(r.FichierConfig);
  int enTrop = 0;
  for (std::size_t k = 0; k < lignes.size(); ++k) {
    const int n = static_cast<int>(k + 1);
    const std::string& l = lignes[k];
    const int nombre = c.NombreDictio();
    if (n <= 8) {
      c[n].PositionDictio = Position(l);
    } else if (n == 9) {
      auto virgule = l.find(',');
      c[9].PositionDictio = Position(l.substr(0, virgule));
      c.NombreHistoire = static_cast<std::int16_t>(
          virgule == std::string::npos ? 0 : std::clamp(Val(l.substr(virgule + 1)), 0, 10000));
    } else if (n == nombre) {
      c[nombre].PositionDictio = Position(l);
    } else if (n == nombre + 1) {
      r.FichierBlocNote = l;
    } else if (n == nombre + 2) {
      r.PoliceNom = l;
    } else if (n == nombre + 3) {
      r.PoliceTaille = l;
    } else if (n == nombre + 4) {
      rangCourant = static_cast<std::int16_t>(std::clamp(Val(l), -32768, 32767));
    } else if (n > nombre + 4 && !l.empty()) {
      if (c.NombreDictio() >= kEntreesMax) {
        ++enTrop;
      } else if (std::string defaut = LireLigneCatalogue(c, l); !defaut.empty()) {
        refus.push_back("Ligne " + std::to_string(n) + " de " + fichier + " ignor\xE9" "e : " + defaut + ".");
      }
    }
  }
  if (enTrop > 0)
    refus.push_back(std::to_string(enTrop) + " dictionnaires de " + fichier + " ignor\xE9s : le catalogue en compte au plus " +
                    std::to_string(kEntreesMax) + ".");
  // A history group larger than the entries read would reach "BLOC NOTE" and beyond.
  c.NombreHistoire = static_cast<std::int16_t>(std::min<int>(c.NombreHistoire, c.NombreDictio() - 10));
  return refus;
}

std::vector<std::string> LignesConfig(const Catalogue& c, const Reglages& r, bool histoire, int dictioCourant) {
  std::vector<std::string> l;
  for (int i = 1; i <= 8; ++i) l.push_back(NombreImprime(c[i].PositionDictio));
  l.push_back(std::to_string(c[9].PositionDictio) + "," + std::to_string(c.NombreHistoire));
  l.push_back(std::to_string(c[c.NombreDictio()].PositionDictio));
  l.push_back(r.FichierBlocNote);
  l.push_back(r.PoliceNom);
  l.push_back(r.PoliceTaille);
  // The file keeps the row of the main list: added entries come after the history group.
  int rang = 9;
  if (!histoire) rang = dictioCourant > 9 ? dictioCourant - c.NombreHistoire : dictioCourant;
  l.push_back(NombreImprime(rang) + " ");
  for (int i = 10; i <= c.NombreDictio() - 1; ++i) l.push_back(LigneCatalogue(c[i]));
  return l;
}

}  // namespace lex
