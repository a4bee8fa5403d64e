#include "ui/error_trap.h"

#include <exception>

#include "ui/ui_services.h"

namespace lex {

bool RunTrapped(UiServices& ui, bool& termine, const std::function<void()>& travail) {
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
  ui.MessageBox(std::to_string(numero) + LexError::Texte(numero) + r.label, Boutons::OK, Icone::Critique,
                "Dictionnaires");
  if (!r.diagnostic.empty()) ui.MessageBox(r.diagnostic, Boutons::OK, Icone::Critique, "Dictionnaires");
  ui.Quit();
  return false;
}

}  // namespace lex
