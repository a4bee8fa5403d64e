#include "screen_reader/folder_search.h"

#include <algorithm>
#include <vector>

#include "base/encoding.h"
#include "base/error.h"

namespace lex {
namespace {

// However wide a profile tree is, the walk gives up past this many folders: a start-up must
// not hang on a disk full of user folders.
constexpr int kDossiersVisites = 5000;

bool Parcourt(const SystemeFichiers& fs, const std::string& dossier, const std::string& cible, int profondeur,
              int& visites, std::string& trouve) {
  if (profondeur <= 0) return false;
  std::vector<std::string> noms = fs.SousDossiers(dossier);
  std::stable_partition(noms.begin(), noms.end(), [](const std::string& n) { return NomMajuscule(n) == "ALL USERS"; });
  for (const std::string& n : noms) {
    if (++visites > kDossiersVisites) return false;
    const std::string chemin = Joindre(dossier, n);
    if (NomMajuscule(n) == cible) {
      trouve = chemin;
      return true;
    }
    if (Parcourt(fs, chemin, cible, profondeur - 1, visites, trouve)) return true;
  }
  return false;
}

}  // namespace

std::string NomMajuscule(std::string_view nom) { return MajusculesAnsi(Utf8VersAnsi(nom)); }

bool rechercherDossier(const SystemeFichiers& fs, std::string_view dossier, std::string_view nom, std::string& trouve) {
  ErrorTrap trap("sur rechercherDossier");
  const std::string cible = NomMajuscule(nom);
  for (const std::string& n : fs.SousDossiers(dossier))
    if (NomMajuscule(n) == cible) {
      trouve = Joindre(dossier, n);
      return true;
    }
  return false;
}

std::optional<std::string> SousChemin(const SystemeFichiers& fs, std::string_view dossier,
                                      std::initializer_list<std::string_view> noms) {
  std::string chemin(dossier);
  for (std::string_view nom : noms) {
    std::string suivant;
    if (!rechercherDossier(fs, chemin, nom, suivant)) return std::nullopt;
    chemin = std::move(suivant);
  }
  return chemin;
}

std::optional<std::string> recherche_dir(const SystemeFichiers& fs, std::string_view racine, std::string_view nom,
                                         int profondeur) {
  ErrorTrap trap("sur recherche_dir");
  int visites = 0;
  std::string trouve;
  if (Parcourt(fs, std::string(racine), NomMajuscule(nom), profondeur, visites, trouve)) return trouve;
  return std::nullopt;
}

}  // namespace lex
