// The configuration file "lex301.INI": saved positions, the notepad path, the font, the
// current row, then one line per added dictionary.
#pragma once
#include <string>
#include <vector>

namespace lex {

struct Form;

// The 26 lines a first start writes.
std::vector<std::string> LignesUsine(const std::string& dossierProgramme);
// Reads the file into the catalogue and the settings; short files leave the rest as it was.
void LireConfig(Form& f);
// The lines written back when leaving.
std::vector<std::string> LignesConfig(Form& f);

}  // namespace lex
