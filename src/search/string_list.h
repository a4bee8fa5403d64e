// The list of the index entries whose article holds a string, shown in place of the index.
#pragma once

#include "search/search_state.h"

namespace lex {

void mnuRechercheChaine(PartiesRecherche& p);
// Reads every article of the shown list (the dictionary's index, or a list shown before, which
// is thus narrowed) and shows the entries that hold the search string; "introuvable" leaves
// everything as it was.
void rechercheChaine(PartiesRecherche& p);

}  // namespace lex
