#include "ui/error_trap.h"

#include <exception>
#include <new>
#include <optional>

#include "ui/ui_services.h"

namespace lex {
namespace {

struct Rapport {
  std::string label;
  std::string diagnostic;
};
// The report of the error being unwound; empty until a trapped procedure is left.
thread_local std::optional<Rapport> rapportEnCours;

}  // namespace

LexError::LexError(int numero) : std::runtime_error(Texte(numero)), numero_(numero) {}

std::string LexError::Texte(int numero) {
  switch (numero) {
    case 5: return "Argument ou appel de proc\xE9" "dure incorrect";
    case 6: return "D\xE9passement de capacit\xE9";
    case 7: return "M\xE9moire insuffisante";
    case 9: return "L'indice n'appartient pas \xE0 la s\xE9lection";
    case 52: return "Nom ou num\xE9ro de fichier incorrect";
    case 53: return "Fichier introuvable";
    case 61: return "Disque plein";
    case 62: return "Lecture apr\xE8s la fin du fichier";
    case 70: return "Permission refus\xE9" "e";
    case 76: return "Chemin d'acc\xE8s introuvable";
    default: return "Erreur d'application";
  }
}

void Erreur(int numero) { throw LexError(numero); }

ErrorTrap::ErrorTrap(const char* label, std::function<std::string()> diagnostic)
    : label_(label), diagnostic_(std::move(diagnostic)), enVol_(std::uncaught_exceptions()) {}

ErrorTrap::~ErrorTrap() {
  if (std::uncaught_exceptions() > enVol_ && !rapportEnCours) {
    Rapport r{label_, {}};
    if (diagnostic_) {
      try {
        r.diagnostic = diagnostic_();
      } catch (...) {  // a diagnostic must never hide the error it reports
      }
    }
    rapportEnCours = std::move(r);
  }
}

bool RunTrapped(UiServices& ui, bool& termine, const std::function<void()>& travail) {
  if (termine) return false;
  rapportEnCours.reset();
  int numero = 0;
  try {
    travail();
    return !termine;
  } catch (const ProgrammeTermine&) {
    termine = true;
    return false;
  } catch (const LexError& e) {
    numero = e.numero();
  } catch (const std::bad_alloc&) {
    numero = 7;
  } catch (const std::out_of_range&) {
    numero = 9;
  } catch (...) {
    numero = 5;
  }
  Rapport r = rapportEnCours.value_or(Rapport{});
  rapportEnCours.reset();
  termine = true;
  ui.MessageBox(std::to_string(numero) + LexError::Texte(numero) + r.label, Boutons::OK, Icone::Critique,
                "Dictionnaires");
  if (!r.diagnostic.empty()) ui.MessageBox(r.diagnostic, Boutons::OK, Icone::Critique, "Dictionnaires");
  ui.Quit();
  return false;
}

}  // namespace lex
