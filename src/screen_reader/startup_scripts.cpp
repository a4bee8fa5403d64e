#include "screen_reader/startup_scripts.h"

#include "base/error.h"
#include "data/files.h"
#include "data/write_error.h"
#include "screen_reader/copy.h"
#include "screen_reader/install.h"
#include "screen_reader/real_file_system.h"
#include "screen_reader/remembered.h"

namespace lex {

void ScriptsAuDemarrage(const std::string& dossierProgramme, Dialogues& dlg, Ecran& ecran, const SystemeFichiers& fs) {
  const std::string marqueur = dossierProgramme + kMarqueurJaws;
  if (!FichierExistant(marqueur)) return;
  const ContexteScripts c{dossierProgramme, CheminScriptsRetenu(dossierProgramme), dlg, ecran, fs};
  const Confirmation r = jaws("lex", c);
  if (r.issue == Issue::CheminInconnu || r.issue == Issue::Echouee) return;
  if (r.issue == Issue::Installee) {
    try {
      RetientCheminScripts(dossierProgramme, r.dossier);
    } catch (const ErreurEcriture& e) {
      // The files are in place: only the guess for another time is lost.
      OublieRapport();
      dlg.MessageBox(MessageErreurEcriture(e), Boutons::OK, Icone::Exclamation, kTitreScripts);
    }
  }
  try {
    SupprimerFichier(marqueur);
  } catch (const LexError& e) {
    OublieRapport();
    dlg.MessageBox("Impossible d'effacer le fichier " + CheminAffiche(marqueur) + " : " + Raison(e.numero()),
                   Boutons::OK, Icone::Exclamation, kTitreScripts);
  }
}

void ScriptsAuDemarrage(const std::string& dossierProgramme, Dialogues& dlg, Ecran& ecran) {
  const SystemeFichiersReel fs;
  ScriptsAuDemarrage(dossierProgramme, dlg, ecran, fs);
}

}  // namespace lex
