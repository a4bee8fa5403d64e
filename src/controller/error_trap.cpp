#include "controller/error_trap.h"

#include <exception>

#include "view/dialogs.h"

namespace lex {

bool RunTrapped(Fenetre& ui, Dialogues& dlg, bool& termine, const std::function<void()>& travail) {
  if (termine) return false;
  OublieRapport();
  std::exception_ptr erreur;
  try {
    travail();
    return !termine;
  } catch (const ProgrammeTermine&) {
    termine = true;
    return false;
  } catch (...) {
    erreur = std::current_exception();
  }
  const int numero = NumeroErreur(erreur);
  const RapportErreur r = PrendRapport().value_or(RapportErreur{});
  termine = true;
  dlg.MessageBox(std::to_string(numero) + LexError::Texte(numero) + r.label, Boutons::OK, Icone::Critique,
                kTitreBoites);
  if (!r.diagnostic.empty()) dlg.MessageBox(r.diagnostic, Boutons::OK, Icone::Critique, kTitreBoites);
  ui.Quit();
  return false;
}

}  // namespace lex
