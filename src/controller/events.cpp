#include "controller/events.h"

#include <utility>

#include "controller/buttons.h"
#include "controller/commands.h"
#include "controller/error_trap.h"
#include "controller/modes.h"
#include "controller/startup.h"
#include "controller/zoom.h"
#include "data/files.h"
#include "data/write_error.h"

namespace lex {
namespace {

bool DictionnaireDisparu(const Form& f, const LexError& e) {
  return e.numero() == 53 && DansUnDictionnaire(f.fenetre.ModeCourant()) && !FichierExistant(f.dico.fichiers.dictio);
}

}  // namespace

Issue Evenement(Form& f, const std::function<void()>& travail) {
  bool ecritureEchouee = false;
  const bool vivant = RunTrapped(f.ui, f.dlg, f.fenetre.Termine, [&] {
    try {
      travail();
    } catch (const ErreurEcriture& e) {
      OublieRapport();
      ecritureEchouee = true;
      f.dlg.MessageBox(MessageErreurEcriture(e), Boutons::OK, Icone::Exclamation, kTitreBoites);
    } catch (const LexError& e) {
      if (!DictionnaireDisparu(f, e)) throw;
      OublieRapport();
      f.dlg.MessageBox("Le dictionnaire " + CheminAffiche(f.dico.fichiers.dictio) + " est introuvable : retour \xE0 la liste.",
                       Boutons::OK, Icone::Exclamation, kTitreBoites);
      EntrerListeDictio(f);
    }
  });
  return !vivant ? Issue::Terminee : ecritureEchouee ? Issue::EcritureEchouee : Issue::Faite;
}

void EvChargement(Form& f, const std::string& dossierProgramme) {
  Evenement(f, [&] { Chargement(f, dossierProgramme); });
}

void EvMenu(Form& f, MenuId id) {
  Evenement(f, [&] { ExecuteMenu(f, id); });
}

void EvBouton(Form& f, Bouton b) {
  Evenement(f, [&] {
    switch (b) {
      case Bouton::CmdDic: CmdDic_Click(f); break;
      case Bouton::CmdDivers: CmdDivers_Click(f); break;
      case Bouton::CmdQuitter: CmdQuitter_Click(f); break;
    }
  });
}

bool EvMolette(Form& f, int rotation, int cran, int modificateurs) {
  if (f.fenetre.Termine) return false;
  bool pris = false;
  Evenement(f, [&] { pris = MoletteZoom(f, rotation, cran, modificateurs); });
  return pris;
}

void EvFermeture(Form& f) {
  if (f.fenetre.Termine) return;
  // A configuration that could not be written keeps the window open: closing would lose the
  // user's catalogue. The next close tries again.
  if (Evenement(f, [&] { quitter(f); }) == Issue::EcritureEchouee) return;
  // The article being typed is kept when the user said so: the window stays.
  if (std::exchange(f.fenetre.SaisieGardee, false)) return;
  // Cancel in quitter keeps the program only when asked from the menu or the button; the
  // close box closes the window anyway, without writing the configuration.
  if (!f.fenetre.Termine) {
    f.fenetre.Termine = true;
    f.ui.Quit();
  }
}

}  // namespace lex
