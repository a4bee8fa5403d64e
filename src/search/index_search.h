// Searches in the index lines rather than in the definitions: the jump to a beginning of
// index, and a string anywhere in the index lines, forwards and backwards.
#pragma once

#include "search/search_state.h"

namespace lex {

void mnuRechercheindex(PartiesRecherche& p);
void mnuRechercheDansIndex(PartiesRecherche& p);
void RechercheDansIndexAvant(PartiesRecherche& p);
void RechercheDansIndexArriere(PartiesRecherche& p);

}  // namespace lex
