// The configuration file "lex301.INI": saved positions, the notepad path, the font, the
// current row, then one line per added dictionary.
#pragma once
#include <string>
#include <vector>

#include "catalogue/catalogue.h"
#include "catalogue/settings.h"

namespace lex {

// The 26 lines a first start writes.
std::vector<std::string> LignesUsine(const std::string& dossierProgramme);
// Reads the configuration file into the catalogue, the settings and the current row of the
// main list; short files leave the rest as it was.
void LireConfig(Catalogue& c, Reglages& r, std::int16_t& rangCourant);
// The lines written back when leaving, the user on catalogue entry `dictioCourant` (in the
// history list when `histoire`).
std::vector<std::string> LignesConfig(const Catalogue& c, const Reglages& r, bool histoire, int dictioCourant);

}  // namespace lex
