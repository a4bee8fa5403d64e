#include "screen_reader/copy.h"

#include "base/error.h"
#include "data/files.h"
#include "data/write_error.h"
#include "screen_reader/confirm.h"
#include "screen_reader/file_system.h"

namespace lex {
std::string Raison(int numero) {
  std::string r = LexError::Texte(numero);
  if (!r.empty() && r[0] >= 'A' && r[0] <= 'Z') r[0] = static_cast<char>(r[0] - 'A' + 'a');
  return r;
}

Copie CopieScripts(Dialogues& dlg, const std::string& dossierProgramme, const std::string& dossier,
                   const std::vector<FichierScript>& fichiers) {
  Copie c;
  for (const FichierScript& f : fichiers) {
    const std::string source = dossierProgramme + NomNatif(f.source);
    if (!FichierExistant(source)) continue;
    std::string texte;
    try {
      CopierFichier(source, Joindre(dossier, NomNatif(f.cible)));
      ++c.copies;
      continue;
    } catch (const ErreurEcriture& e) {
      texte = MessageErreurEcriture(e);
    } catch (const LexError& e) {
      // The write was not begun: it is the program's own file that could not be read.
      texte = "Impossible de lire le fichier " + CheminAffiche(source) + " : " + Raison(e.numero());
    }
    OublieRapport();
    dlg.MessageBox(texte, Boutons::OK, Icone::Exclamation, kTitreScripts);
    c.reussie = false;
    return c;
  }
  return c;
}

}  // namespace lex
