// Both ends of a run: the window's load event and leaving the program.
#pragma once
#include <string>

namespace lex {

struct Form;

// `dossierProgramme` is the program's folder (Windows-1252 text).
void Chargement(Form& f, const std::string& dossierProgramme);
// Asks about each changed dictionary, writes the configuration and ends the program; returns
// when the user cancels.
void quitter(Form& f);

}  // namespace lex
