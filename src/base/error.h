// The program's one error mechanism. Any run-time error raised in the core travels as an
// exception up to the event that started the work; on its way it picks up the label of the
// innermost trapped procedure it left, which the event's trap then reports.
#pragma once
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

namespace lex {

// A run-time error with its classic number and French text:
// 5 "Argument ou appel de procédure incorrect", 7 "Mémoire insuffisante",
// 9 "L'indice n'appartient pas à la sélection", 52 "Nom ou numéro de fichier incorrect",
// 53 "Fichier introuvable", 57 "Erreur d'entrée/sortie de périphérique", 61 "Disque plein",
// 62 "Lecture après la fin du fichier", 70 "Permission refusée", 76 "Chemin d'accès introuvable".
class LexError : public std::runtime_error {
 public:
  explicit LexError(int numero);
  int numero() const { return numero_; }
  // The French text of an error number (Windows-1252).
  static std::string Texte(int numero);

 private:
  int numero_;
};

[[noreturn]] void Erreur(int numero);

// Thrown once the program has ended (quitter or a trapped error), to leave every procedure
// at once, as the end of the program would.
struct ProgrammeTermine {};

// Marks a trapped procedure for as long as it runs. When an error leaves the procedure, the
// label is recorded (the innermost one wins) together with an optional diagnostic line.
class ErrorTrap {
 public:
  explicit ErrorTrap(const char* label, std::function<std::string()> diagnostic = {});
  ~ErrorTrap();
  ErrorTrap(const ErrorTrap&) = delete;
  ErrorTrap& operator=(const ErrorTrap&) = delete;

 private:
  const char* label_;
  std::function<std::string()> diagnostic_;
  int enVol_;
};

// What the trapped procedures recorded about the error being unwound.
struct RapportErreur {
  std::string label;
  std::string diagnostic;
};
// Forgets any report (at the start of an event's work).
void OublieRapport();
// The report of the error that just left the work, forgotten once taken.
std::optional<RapportErreur> PrendRapport();
// The error number an exception stands for: its own, 7 out of memory, 9 out of range, else 5.
int NumeroErreur(const std::exception_ptr& e);

}  // namespace lex
