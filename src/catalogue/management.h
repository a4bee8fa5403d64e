// Adding, renaming and removing dictionaries of the catalogue. The catalogue keeps its shape
// whatever is done: the nine built-in rows, the history group (entries 10 to
// 9 + NombreHistoire), the added dictionaries, "BLOC NOTE" last.
#pragma once
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"
#include "selection/selections.h"

namespace lex {

// Whether `nom` can be a file name on every system the program runs on, and stay in the
// dictionaries' folder: none of \ / : * ? " < > |, no control character, not empty once
// trimmed, not "." or "..", not ending in a blank or a point, not too long.
bool NomDeFichierPermis(std::string_view nom);

// The call letters in use, in the order of the catalogue.
std::string LettresUtilisees(const Catalogue& c);

// Inserts `e` as entry `avant` (the entries from there on move down), in the history group
// when `histoire`. The numbers kept per dictionary move with their entries.
void InsereDictio(Catalogue& c, Selections& s, int avant, CatalogueEntry e, bool histoire);
// Removes entry `i` (the later ones move up) and what was kept for it.
void RetireDictio(Catalogue& c, Selections& s, int i);

}  // namespace lex
