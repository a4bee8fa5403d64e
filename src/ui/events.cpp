#include "ui/events.h"

#include "catalogue/startup.h"
#include "ui/buttons.h"
#include "ui/commands.h"
#include "ui/error_trap.h"
#include "ui/key_handlers.h"

namespace lex {

void EvChargement(Form& f, const std::string& dossierProgramme) {
  RunTrapped(f.ui, f.fenetre.Termine, [&] { Chargement(f, dossierProgramme); });
}

bool EvToucheBas(Form& f, Champ c, int code, int shift) {
  bool utilise = false;
  const bool vivant = RunTrapped(f.ui, f.fenetre.Termine, [&] {
    utilise = c == Champ::Rtb ? Rtb_KeyDown(f, code, shift) : txt_KeyDown(f, code, shift);
  });
  return utilise || !vivant;
}

bool EvTouchePresse(Form& f, Champ c, char caractere) {
  bool utilise = false;
  const bool vivant = RunTrapped(f.ui, f.fenetre.Termine, [&] {
    utilise = c == Champ::Rtb ? Rtb_KeyPress(f, caractere) : txt_KeyPress(f, caractere);
  });
  return utilise || !vivant;
}

void EvMenu(Form& f, MenuId id) {
  RunTrapped(f.ui, f.fenetre.Termine, [&] { ExecuteMenu(f, id); });
}

void EvBouton(Form& f, Bouton b) {
  RunTrapped(f.ui, f.fenetre.Termine, [&] {
    switch (b) {
      case Bouton::CmdDic: CmdDic_Click(f); break;
      case Bouton::CmdDivers: CmdDivers_Click(f); break;
      case Bouton::CmdQuitter: CmdQuitter_Click(f); break;
    }
  });
}

void EvFermeture(Form& f) {
  if (f.fenetre.Termine) return;
  RunTrapped(f.ui, f.fenetre.Termine, [&] { quitter(f); });
  // Cancel in quitter keeps the program only when asked from the menu or the button; the
  // close box closes the window anyway, without writing the configuration.
  if (!f.fenetre.Termine) {
    f.fenetre.Termine = true;
    f.ui.Quit();
  }
}

}  // namespace lex
