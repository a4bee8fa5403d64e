#include "screen_reader/remembered.h"

#include <filesystem>
#include <vector>

#include "base/error.h"
#include "data/files.h"
#include "data/safe_write.h"
#include "screen_reader/places.h"

namespace lex {

std::string CheminScriptsRetenu(const std::string& dossierProgramme) {
  const std::string fichier = dossierProgramme + kFichierCheminScripts;
  if (!FichierExistant(fichier)) return kCheminScriptsDefaut;
  try {
    const std::vector<std::string> lignes = LireLignes(fichier);
    if (!lignes.empty() && !lignes[0].empty()) return lignes[0];
  } catch (const LexError&) {
    // A file that cannot be read only costs a guess.
    OublieRapport();
  }
  return kCheminScriptsDefaut;
}

void RetientCheminScripts(const std::string& dossierProgramme, const std::string& chemin) {
  // A folder typed relative to where the program was started is kept as the folder it was.
  std::error_code ec;
  const std::filesystem::path absolu = std::filesystem::absolute(CheminNatif(chemin), ec);
  EcrireLignesSur(dossierProgramme + kFichierCheminScripts, {ec ? chemin : NomDepuisNatif(absolu)},
                  Donnees::Utilisateur);
}

}  // namespace lex
