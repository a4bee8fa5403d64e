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
// Reads the lines of the configuration file into the catalogue, the settings and the current
// row of the main list; short files leave the rest as it was. Returns what the user must be
// told of the lines refused (French, one text a line), after which the file is to be written
// again.
std::vector<std::string> LireConfig(const std::vector<std::string>& lignes, Catalogue& c, Reglages& r,
                                    std::int16_t& rangCourant);
// Catalogue entries beyond this are refused: the lists and the file count them in 16 bits.
inline constexpr int kEntreesMax = 32000;
// A saved position beyond this is taken as the last entry's.
inline constexpr std::int32_t kPositionMax = 1 << 30;
// The lines written back when leaving, the user on catalogue entry `dictioCourant` (in the
// history list when `histoire`).
std::vector<std::string> LignesConfig(const Catalogue& c, const Reglages& r, bool histoire, int dictioCourant);

}  // namespace lex
