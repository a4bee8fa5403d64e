#include "screen_reader/confirm.h"

#include "data/files.h"

namespace lex {
namespace {

// Without its final separators, but a root stays a root ("C:\", "/").
std::string SansSeparateurFinal(std::string s) {
  while (s.size() > 1 && (s.back() == '\\' || s.back() == '/') && s[s.size() - 2] != ':') s.pop_back();
  return s;
}

}  // namespace

Confirmation ConfirmeDossier(Dialogues& dlg, const SystemeFichiers& fs, const std::string& propose) {
  const std::string montre = CheminAffiche(propose);
  const std::string reponse = dlg.InputBox(kTitreScripts, kTitreScripts, montre);
  if (reponse.empty()) return {Issue::Annulee, {}};
  const std::string dossier = SansSeparateurFinal(reponse == montre ? propose : NomNatif(reponse));
  if (!fs.EstDossier(dossier)) {
    dlg.MessageBox("chemin inconnu", Boutons::OK, Icone::Exclamation, kTitreScripts);
    return {Issue::CheminInconnu, {}};
  }
  return {Issue::Installee, dossier};
}

}  // namespace lex
