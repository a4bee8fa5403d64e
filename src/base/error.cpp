#include "base/error.h"

#include <exception>
#include <new>

namespace lex {
namespace {

// The report of the error being unwound; empty until a trapped procedure is left.
thread_local std::optional<RapportErreur> rapportEnCours;

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
    case 57: return "Erreur d'entr\xE9" "e/sortie de p\xE9riph\xE9rique";
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
    RapportErreur r{label_, {}};
    if (diagnostic_) {
      try {
        r.diagnostic = diagnostic_();
      } catch (...) {  // a diagnostic must never hide the error it reports
      }
    }
    rapportEnCours = std::move(r);
  }
}

void OublieRapport() { rapportEnCours.reset(); }

std::optional<RapportErreur> PrendRapport() {
  std::optional<RapportErreur> r = std::move(rapportEnCours);
  rapportEnCours.reset();
  return r;
}

int NumeroErreur(const std::exception_ptr& e) {
  try {
    std::rethrow_exception(e);
  } catch (const LexError& x) {
    return x.numero();
  } catch (const std::bad_alloc&) {
    return 7;
  } catch (const std::out_of_range&) {
    return 9;
  } catch (...) {
    return 5;
  }
}

}  // namespace lex
