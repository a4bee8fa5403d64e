// The screen reader's folder chosen last time, kept between runs in the program folder: the
// marker may come back years later (a new screen reader), and that folder is then the best
// guess left when the usual places hold nothing.
#pragma once
#include <string>

namespace lex {

// One line: the system path as it is (UTF-8), so that no folder name is lost on the way.
inline constexpr const char* kFichierCheminScripts = "cheminjaws.ini";

// The folder kept in `dossierProgramme` (ending with a separator), or the default when none
// is kept or the file cannot be read.
std::string CheminScriptsRetenu(const std::string& dossierProgramme);
// Raises ErreurEcriture when the file cannot be written.
void RetientCheminScripts(const std::string& dossierProgramme, const std::string& chemin);

}  // namespace lex
