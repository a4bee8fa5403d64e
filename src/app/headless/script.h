// Runs the commands of a script against the scripted window.
#pragma once
#include <istream>
#include <ostream>
#include <string>

namespace lex::headless {

// Returns the exit status: 0, or 2 when a line cannot be parsed.
int RunScript(const std::string& dossierProgramme, std::istream& script, std::ostream& out);

}  // namespace lex::headless
