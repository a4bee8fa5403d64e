#include "controller/events.h"

#include "controller/buttons.h"
#include "controller/commands.h"
#include "controller/error_trap.h"
#include "controller/startup.h"

namespace lex {

void EvChargement(Form& f, const std::string& dossierProgramme) {
  RunTrapped(f.ui, f.dlg, f.fenetre.Termine, [&] { Chargement(f, dossierProgramme); });
}

void EvMenu(Form& f, MenuId id) {
  RunTrapped(f.ui, f.dlg, f.fenetre.Termine, [&] { ExecuteMenu(f, id); });
}

void EvBouton(Form& f, Bouton b) {
  RunTrapped(f.ui, f.dlg, f.fenetre.Termine, [&] {
    switch (b) {
      case Bouton::CmdDic: CmdDic_Click(f); break;
      case Bouton::CmdDivers: CmdDivers_Click(f); break;
      case Bouton::CmdQuitter: CmdQuitter_Click(f); break;
    }
  });
}

void EvFermeture(Form& f) {
  if (f.fenetre.Termine) return;
  RunTrapped(f.ui, f.dlg, f.fenetre.Termine, [&] { quitter(f); });
  // Cancel in quitter keeps the program only when asked from the menu or the button; the
  // close box closes the window anyway, without writing the configuration.
  if (!f.fenetre.Termine) {
    f.fenetre.Termine = true;
    f.ui.Quit();
  }
}

}  // namespace lex
